#pragma once

#include "displays/ramp.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace nocturo {

/// What came of looking for the calibration in a colour profile.
struct CalibrationReading {
    std::optional<Ramp> ramp; // nothing when the profile carries no calibration
    std::string problem;      // why the profile is refused, a clause; empty when it is good
};

/// Reads the calibration ("vcgt") of an ICC profile at `rampSize` entries per channel, which is
/// usable. The bytes may be anything: what is no profile, is cut short or would leave a screen
/// unreadable is refused.
CalibrationReading readCalibration(std::span<const std::uint8_t> profile, std::uint32_t rampSize);

} // namespace nocturo
