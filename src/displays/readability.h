#pragma once

#include "effects/gamma_curve.h"

namespace nocturo {

/// How much of the range between black and white a display still shows through a curve, 0.0 (one
/// flat color) to 1.0 (all of it): the lightest minus the darkest that any level of grey becomes.
///
/// What the hardware is sent is limited to 0..1 (not a number is black). The light of the three
/// channels, v^2.2, is added up with Rec. 709 weights, and its 2.2nd root is the lightness. Adding
/// has to be done with light, or a pure blue, dark grey by the numbers, would count for far less
/// than the eye gets; comparing has to be done with lightness, in which equal steps look equal, so
/// that a screen drawn toward white counts like one drawn toward black. For greys the result is
/// simply the difference of the curve's entries.
///
/// 1.0 without samples: what cannot be changed has lost nothing.
double remainingContrast(const ZQGammaCurve& after);

/// Whether somebody who sees only this may fail to find the way back: less than an eighth of the
/// range is left to all levels but a few, one in 64, which may stray from the others. White that is
/// dimmed to an eighth gives a hundredth of its light, which the reflections on a screen in
/// daylight outshine. A negative, a single channel at full strength and the video range are far
/// from it. False without samples.
bool isUnreadable(const ZQGammaCurve& after);

} // namespace nocturo
