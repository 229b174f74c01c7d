#include "displays/calibration/profile_calibrations.h"

#include "base/log.h"
#include "displays/calibration/profile_file.h"

#include <utility>

namespace nocturo {

ProfileCalibrations::ProfileCalibrations(XConnection* server, Bus* systemBus) : colord_(systemBus) {
    if (server != nullptr) {
        rootProfiles_.emplace(*server);
    }
}

CalibrationAnswer ProfileCalibrations::calibration(const std::string& connector,
                                                   std::uint32_t rampSize) {
    const ColordProfiles::Answer assigned = colord_.profileOf(connector);
    if (!assigned.file.empty()) {
        auto found = readProfileFile(assigned.file).and_then([&](const auto& bytes) {
            return readCalibration(bytes, rampSize);
        });
        if (found) {
            return {std::move(*found), true};
        }
        refuse(assigned.file, found.error());
    }
    if (rootProfiles_) {
        if (const auto profile = rootProfiles_->profileOf(connector)) {
            auto found = readCalibration(profile->bytes, rampSize);
            if (found) {
                return {std::move(*found), assigned.settled};
            }
            refuse(profile->property, found.error());
        }
    }
    return {std::nullopt, assigned.settled};
}

std::uint64_t ProfileCalibrations::generation() {
    return colord_.generation() + (rootProfiles_ ? rootProfiles_->generation() : 0);
}

void ProfileCalibrations::whenChanged(std::function<void()> look) {
    if (rootProfiles_) {
        rootProfiles_->whenChanged(look);
    }
    colord_.whenChanged(std::move(look));
}

bool ProfileCalibrations::waitForAnswers(std::chrono::milliseconds patience) {
    return colord_.waitUntilSettled(patience);
}

void ProfileCalibrations::refuse(const std::string& what, const Problem& problem) {
    if (refused_.insert(what).second) {
        logWarning(kLogDisplays,
                   "The color profile " + what + " is not used, because " + problem.text + ".");
    }
}

} // namespace nocturo
