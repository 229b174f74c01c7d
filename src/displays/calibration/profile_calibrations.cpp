#include "displays/calibration/profile_calibrations.h"

#include "base/log.h"
#include "displays/calibration/profile_file.h"

#include <algorithm>
#include <utility>

#include <poll.h>

namespace nocturo {

ProfileCalibrations::ProfileCalibrations(const std::string& xDisplay,
                                         const std::string& systemBusAddress)
    : colord_(systemBusAddress) {
    if (!xDisplay.empty()) {
        rootProfiles_ = RootProfiles::open(xDisplay);
    }
}

CalibrationAnswer ProfileCalibrations::calibration(const std::string& connector,
                                                   std::uint32_t rampSize) {
    const ColordProfiles::Answer assigned = colord_.profileOf(connector);
    if (!assigned.file.empty()) {
        const ProfileFile file = readProfileFile(assigned.file);
        CalibrationReading reading = file.problem.empty()
                                         ? readCalibration(file.bytes, rampSize)
                                         : CalibrationReading{std::nullopt, file.problem};
        if (reading.problem.empty()) {
            return {std::move(reading.ramp), true};
        }
        refuse(assigned.file, reading.problem);
    }
    if (rootProfiles_ != nullptr) {
        if (const auto profile = rootProfiles_->profileOf(connector)) {
            CalibrationReading reading = readCalibration(profile->bytes, rampSize);
            if (reading.problem.empty()) {
                return {std::move(reading.ramp), assigned.settled};
            }
            refuse(profile->property, reading.problem);
        }
    }
    return {std::nullopt, assigned.settled};
}

std::uint64_t ProfileCalibrations::generation() {
    return colord_.generation() + (rootProfiles_ != nullptr ? rootProfiles_->generation() : 0);
}

std::vector<int> ProfileCalibrations::descriptors() const {
    std::vector<int> all;
    if (colord_.descriptor() >= 0) {
        all.push_back(colord_.descriptor());
    }
    if (rootProfiles_ != nullptr) {
        all.push_back(rootProfiles_->descriptor());
    }
    return all;
}

bool ProfileCalibrations::waitForAnswers(std::chrono::milliseconds patience) {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    colord_.generation();
    while (!colord_.isSettled()) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(
            deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0) {
            return false;
        }
        pollfd source{colord_.descriptor(), POLLIN, 0};
        poll(&source, 1, static_cast<int>(left.count()));
        colord_.generation();
    }
    return true;
}

void ProfileCalibrations::refuse(const std::string& what, const std::string& problem) {
    if (refused_.insert(what).second) {
        logWarning(kLogDisplays,
                   "The color profile " + what + " is not used, because " + problem + ".");
    }
}

} // namespace nocturo
