#pragma once

#include "displays/calibration/calibration_profile.h"
#include "displays/calibration/colord_profiles.h"
#include "displays/calibration/root_profiles.h"
#include "displays/calibration_source.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <string>

namespace nocturo {

/// Calibrations from the colour profiles that are assigned to displays: colord's, or else those on
/// the root window of an X server. A profile that is refused is said once, and the next place is
/// looked at.
class ProfileCalibrations final : public CalibrationSource {
  public:
    /// Null for what cannot be reached, which has no profiles. Both must outlive this.
    ProfileCalibrations(XConnection* server, Bus* systemBus);

    CalibrationAnswer calibration(const std::string& connector, std::uint32_t rampSize) override;
    std::uint64_t generation() override;
    void whenChanged(std::function<void()> look) override;
    bool waitForAnswers(std::chrono::milliseconds patience) override;

  private:
    void refuse(const std::string& what, const Problem& problem);

    ColordProfiles colord_;
    std::optional<RootProfiles> rootProfiles_;
    std::set<std::string> refused_;
};

} // namespace nocturo
