#include "displays/kde/own_profile.h"

#include "base/log.h"
#include "displays/calibration/calibration_profile.h"
#include "displays/calibration/profile_file.h"
#include "displays/kde/curve_profile.h"

#include <utility>

namespace nocturo {

namespace {

OwnProfile plain(const ProfileSetting& own, const OutputDevice& device) {
    const bool byEdid = own.source == ColorSource::edid;
    return {plainProfile(byEdid ? device.edid : std::vector<std::uint8_t>()),
            identityRamp(kCalibrationSize), false};
}

Result<OwnProfile> readFile(const std::string& path) {
    auto bytes = readProfileFile(path);
    if (!bytes) {
        return tl::unexpected(bytes.error());
    }
    auto calibration = readCalibration(*bytes, kCalibrationSize);
    if (!calibration) {
        return tl::unexpected(calibration.error());
    }
    Ramp ramp = calibration->value_or(identityRamp(kCalibrationSize));
    // What can be read cannot always be written.
    if (const auto copy = profileWithCurve(*bytes, ramp); !copy) {
        return tl::unexpected(copy.error());
    }
    return OwnProfile{std::move(*bytes), std::move(ramp), true};
}

} // namespace

OwnProfile OwnProfiles::read(const ProfileSetting& own, const OutputDevice& device) {
    if (own.source != ColorSource::profile || own.path.empty()) {
        return plain(own, device);
    }
    Result<OwnProfile> found = readFile(own.path);
    return found ? std::move(*found) : refuse(own, device, found.error().text);
}

OwnProfile OwnProfiles::refuse(const ProfileSetting& own, const OutputDevice& device,
                               const std::string& because) {
    if (refused_.insert(own.path).second) {
        logWarning(kLogDisplays, "The color profile " + own.path +
                                     " is not used while an effect is on, because " + because +
                                     ".");
    }
    return plain(own, device);
}

} // namespace nocturo
