#pragma once

#include "base/result.h"
#include "displays/ramp.h"

#include <cstdint>
#include <span>
#include <vector>

namespace nocturo {

/// Entries per channel of the calibrations that are written here.
inline constexpr std::uint32_t kCalibrationSize = 256;

/// A profile of a display whose primaries are those of its EDID, or sRGB's where that tells none.
std::vector<std::uint8_t> plainProfile(std::span<const std::uint8_t> edid);

/// `profile` with the ramp, of kCalibrationSize entries, as its calibration in the place of its
/// own; everything else stays. The problem is a clause.
Result<std::vector<std::uint8_t>> profileWithCurve(std::span<const std::uint8_t> profile,
                                                   const Ramp& ramp);

} // namespace nocturo
