#include "displays/calibration/calibration_profile.h"

#include "displays/readability.h"

#include <array>
#include <memory>
#include <vector>

#include <lcms2.h>

namespace nocturo {

namespace {

constexpr std::size_t kHeaderSize = 128;

struct CloseProfile {
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};
using Profile = std::unique_ptr<void, CloseProfile>;

// The library opens a profile whose end is missing and reports the tags there as absent.
bool isCutShort(std::span<const std::uint8_t> profile) {
    const std::uint32_t size = std::uint32_t{profile[0]} << 24 | std::uint32_t{profile[1]} << 16 |
                               std::uint32_t{profile[2]} << 8 | std::uint32_t{profile[3]};
    return size > profile.size();
}

// A calibration that falls is none, however readable it would be.
bool risesOnNoChannel(const Ramp& ramp) {
    return ramp.red.back() <= ramp.red.front() && ramp.green.back() <= ramp.green.front() &&
           ramp.blue.back() <= ramp.blue.front();
}

bool isUnreadable(const Ramp& ramp) {
    ZQGammaCurve curve;
    curve.sampleCount = kGammaCurveCapacity;
    tableFromChannel(ramp.red, curve.sampleCount, curve.redTable.data());
    tableFromChannel(ramp.green, curve.sampleCount, curve.greenTable.data());
    tableFromChannel(ramp.blue, curve.sampleCount, curve.blueTable.data());
    return isUnreadable(curve);
}

} // namespace

Result<std::optional<Ramp>> readCalibration(std::span<const std::uint8_t> profile,
                                            std::uint32_t rampSize) {
    if (profile.size() < kHeaderSize) {
        return failed("it is not a color profile");
    }
    if (isCutShort(profile)) {
        return failed("it is cut short or not a color profile");
    }
    const Profile opened(
        cmsOpenProfileFromMem(profile.data(), static_cast<cmsUInt32Number>(profile.size())));
    if (opened == nullptr) {
        return failed("it is not a color profile");
    }
    if (!cmsIsTag(opened.get(), cmsSigVcgtTag)) {
        return std::nullopt;
    }
    const auto* curves = static_cast<cmsToneCurve* const*>(cmsReadTag(opened.get(), cmsSigVcgtTag));
    if (curves == nullptr || curves[0] == nullptr || curves[1] == nullptr || curves[2] == nullptr) {
        return failed("its calibration is damaged");
    }
    Ramp ramp(rampSize);
    const std::array<std::vector<std::uint16_t>*, 3> channels = {&ramp.red, &ramp.green,
                                                                 &ramp.blue};
    std::vector<float> table(rampSize);
    for (std::size_t channel = 0; channel < channels.size(); ++channel) {
        for (std::uint32_t i = 0; i < rampSize; ++i) {
            table[i] =
                cmsEvalToneCurveFloat(curves[channel], static_cast<float>(i / (rampSize - 1.0)));
        }
        channelFromTable(table.data(), rampSize, *channels[channel]);
    }
    if (risesOnNoChannel(ramp) || isUnreadable(ramp)) {
        return failed("its calibration would leave the screen unreadable");
    }
    return ramp;
}

} // namespace nocturo
