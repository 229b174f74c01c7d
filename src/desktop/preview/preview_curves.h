#pragma once

#include "desktop/level_tables.h"
#include "effects/gamma_curve.h"

#include <array>
#include <cstdint>

namespace nocturo {

/// What a preview is drawn from.
struct PreviewCurves {
    ZQGammaCurve before; // the display's own colors; without samples: nothing is changed
    ZQGammaCurve after;  // with the effect; without samples: the display has no usable ramp

    /// What the screen on which the preview is seen does to it just now: `before` while the effect
    /// is off, `after` while it is on, and another display's curve when the window is over there.
    /// Without samples: the same as `before`.
    ZQGammaCurve seenThrough{};
};

/// The tables of a curve: red, green, blue.
std::array<const ZQGammaTable*, 3> channelsOf(const ZQGammaCurve& curve);

/// What the hardware makes of an entry: limited to 0..1, 0 for not a number.
float limitedEntry(float entry);

/// How a picture is to be drawn, level by level of each channel, so that it is seen as the display
/// will show it with the effect.
std::array<LevelTable, 3> pictureLevels(const PreviewCurves& curves);

/// The same for what is no picture of the effect but drawn beside one, so that it is seen as if the
/// screen did nothing to it.
std::array<LevelTable, 3> plainLevels(const PreviewCurves& curves);

/// Where a curve cannot be followed: the entries above or below what a display can show, and those
/// that other entries were cut to. A channel that is the same everywhere was not cut but removed.
struct ClippedEntries {
    std::array<bool, kGammaCurveCapacity> bright{};
    std::array<bool, kGammaCurveCapacity> dark{};
    bool anyBright = false;
    bool anyDark = false;
};
ClippedEntries clippedEntries(const ZQGammaCurve& curve);

} // namespace nocturo
