#pragma once

#include "desktop/preview/preview_curves.h"
#include "displays/display_services.h"
#include "effects/gamma_curve.h"

#include <functional>

namespace nocturo {

class NDEffect;

/// The curve that was captured from a display before the effect was put on it; null while the
/// effect is not on that display.
using CapturedCurve = std::function<const ZQGammaCurve*(CGDirectDisplayID)>;

/// The curve of a display without the effect; without samples when it cannot be told.
ZQGammaCurve curveWithoutEffect(CGDirectDisplayID display, const CapturedCurve& capturedCurve);

/// What the effect makes of it; the selected effects where it is null.
PreviewCurves previewCurves(const ZQGammaCurve& withoutEffect, NDEffect* effect);

} // namespace nocturo
