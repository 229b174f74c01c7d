#include "desktop/preferences/previewed_display.h"

#include "displays/display_gamma.h"
#include "effects/group_effect.h"

namespace nocturo {

ZQGammaCurve curveWithoutEffect(CGDirectDisplayID display, const CapturedCurve& capturedCurve) {
    const ZQGammaCurve* captured = capturedCurve(display);
    return captured != nullptr ? *captured : ZQDisplayGammaCurve(display);
}

PreviewCurves previewCurves(const ZQGammaCurve& withoutEffect, NDEffect* effect) {
    PreviewCurves curves{withoutEffect, withoutEffect};
    if (effect != nullptr) {
        effect->applyEffectOnGammaCurve(&curves.after, 0);
    } else {
        NDGroupEffect::effect().applyEffectOnGammaCurve(&curves.after, 0);
    }
    return curves;
}

} // namespace nocturo
