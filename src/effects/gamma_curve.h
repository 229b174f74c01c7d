#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace nocturo {

inline constexpr std::size_t kGammaCurveCapacity = 256;

using ZQGammaTable = std::array<float, kGammaCurveCapacity>;

/// The transfer tables of one display: for each channel the output intensity at evenly spaced input
/// levels, nominally 0.0 (black) to 1.0 (full). Values outside that range are allowed.
///
/// The first `sampleCount` entries (0 to 256) of all three tables are valid; no operation reads or
/// writes the others. A count of 0 means that there is no curve, and every operation leaves it so.
struct ZQGammaCurve {
    ZQGammaTable redTable{};
    ZQGammaTable greenTable{};
    ZQGammaTable blueTable{};
    std::uint32_t sampleCount = 0;
};

/// One value for each of red, green and blue.
using ZQChannelValues = std::array<float, 3>;

// All operations change the curve in place, allocate nothing and cannot fail.

/// Turns the curve end for end, so that dark inputs map to bright outputs.
void ZQGammaCurveReverse(ZQGammaCurve* curve);

/// Moves every entry v by its channel's weight w toward its channel's target t:
/// w t + (1 - w) v. Weights are not limited; a negative one pushes away from the target.
/// The product w t is formed in single precision, the rest in double, rounded once at the end.
void ZQGammaCurveBlend(ZQGammaCurve* curve, const ZQChannelValues& targets,
                       const ZQChannelValues& weights);
void ZQGammaCurveBlendUniform(ZQGammaCurve* curve, float target, float weight);

/// The same with the entries of a second curve as targets; its own sample count is not consulted.
void ZQGammaCurveBlendWithCurve(ZQGammaCurve* curve, const ZQGammaCurve& targets,
                                const ZQChannelValues& weights);
void ZQGammaCurveBlendWithCurveUniform(const ZQGammaCurve& targets, ZQGammaCurve* curve,
                                       float weight);

/// Maps 0..1 onto lows..highs in single precision. Blue uses the green pair; the third values are
/// never read.
void ZQGammaCurveMapRange(ZQGammaCurve* curve, const ZQChannelValues& lows,
                          const ZQChannelValues& highs);
void ZQGammaCurveMapRangeUniform(ZQGammaCurve* curve, float low, float high);

/// Limits entries to 1.0 from above. There is no lower bound: zero, negative entries and
/// not-a-number stay as they are.
void ZQGammaCurveClamp(ZQGammaCurve* curve);

} // namespace nocturo
