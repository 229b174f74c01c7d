#pragma once

#include "base/result.h"
#include "displays/ramp.h"

#include <cstdint>
#include <optional>
#include <span>

namespace nocturo {

/// Reads the calibration ("vcgt") of an ICC profile at `rampSize` entries per channel, which is
/// usable; nothing when the profile carries none. The bytes may be anything: what is no profile, is
/// cut short or would leave a screen unreadable is refused, and the problem is a clause that says
/// why.
Result<std::optional<Ramp>> readCalibration(std::span<const std::uint8_t> profile,
                                            std::uint32_t rampSize);

} // namespace nocturo
