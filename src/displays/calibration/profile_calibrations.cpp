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
        auto found = readProfileFile(assigned.file).and_then([&](const auto& bytes) {
            return readCalibration(bytes, rampSize);
        });
        if (found) {
            return {std::move(*found), true};
        }
        refuse(assigned.file, found.error());
    }
    if (rootProfiles_ != nullptr) {
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

void ProfileCalibrations::refuse(const std::string& what, const Problem& problem) {
    if (refused_.insert(what).second) {
        logWarning(kLogDisplays,
                   "The color profile " + what + " is not used, because " + problem.text + ".");
    }
}

} // namespace nocturo
