#pragma once

#include "displays/calibration/calibration_profile.h"
#include "displays/calibration/colord_profiles.h"
#include "displays/calibration/root_profiles.h"
#include "displays/calibration_source.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <set>
#include <span>
#include <string>
#include <vector>

namespace nocturo {

/// Calibrations from the colour profiles that are assigned to displays: colord's, or else those on
/// the root window of an X server. A profile that is refused is said once, and the next place is
/// looked at.
class ProfileCalibrations final : public CalibrationSource {
  public:
    /// A display name such as ":0" or an empty one, and a D-Bus address. What cannot be reached has
    /// no profiles.
    ProfileCalibrations(const std::string& xDisplay, const std::string& systemBusAddress);

    CalibrationAnswer calibration(const std::string& connector, std::uint32_t rampSize) override;
    std::uint64_t generation() override;
    bool waitForAnswers(std::chrono::milliseconds patience) override;

    /// Descriptors that are readable when generation() should be asked. They stay this object's.
    std::vector<int> descriptors() const;

  private:
    void refuse(const std::string& what, const Problem& problem);

    ColordProfiles colord_;
    std::unique_ptr<RootProfiles> rootProfiles_; // may be null
    std::set<std::string> refused_;
};

} // namespace nocturo
