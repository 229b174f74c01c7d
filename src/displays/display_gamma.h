#pragma once

#include "displays/display_services.h"
#include "effects/gamma_curve.h"

namespace nocturo {

// What a display does with its curve. Failures are silent: a failed read is a curve without
// samples, a failed list is no displays, and nobody looks at the result of a write.

/// The display's curve of 256 entries; `sampleCount` 0 when it cannot be read.
ZQGammaCurve ZQDisplayGammaCurve(CGDirectDisplayID display);

/// Does nothing when the curve has no samples.
void ZQDisplaySetGammaCurve(CGDirectDisplayID display, const ZQGammaCurve* curve);

/// Gives every display the system's own colours back.
void ZQDisplayRestoreColorSync();

/// 1 when no channel ends above where it starts (a flat curve included), 0 when one does, -1 when
/// the display cannot be read. Looks at entries 0 and 255, whatever the sample count.
int ZQDisplayGammaIsInverted(CGDirectDisplayID display);
int ZQMainDisplayGammaIsInverted();

/// Turns the display's curve end for end.
void ZQDisplayReverseGamma(CGDirectDisplayID display);

/// The same for the first ten active displays, or the first ten that meet a rectangle.
void ZQReverseGammaOfActiveDisplays();
void ZQReverseGammaOfDisplaysInRect(const DisplayRect& rect);

/// A display that meets the rectangle; 0 when none does.
CGDirectDisplayID ZQDisplayInRect(const DisplayRect& rect);

} // namespace nocturo
