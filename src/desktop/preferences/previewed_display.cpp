#include "desktop/preferences/previewed_display.h"

#include "displays/display_functions.h"
#include "displays/display_gamma.h"
#include "displays/readability.h"
#include "effects/group_effect.h"

#include <array>

namespace nocturo {

ZQGammaCurve curveWithoutEffect(CGDirectDisplayID display, const CapturedCurve& capturedCurve) {
    const ZQGammaCurve* captured = capturedCurve(display);
    return captured != nullptr ? *captured : ZQDisplayGammaCurve(display);
}

PreviewCurves previewCurves(const ZQGammaCurve& withoutEffect) {
    PreviewCurves curves{withoutEffect, withoutEffect};
    NDGroupEffect::effect().applyEffectOnGammaCurve(&curves.after, 0);
    return curves;
}

bool everyAffectedDisplayIsUnreadable(const CapturedCurve& capturedCurve) {
    std::array<CGDirectDisplayID, kZQMaxDisplays> displays{};
    std::uint32_t count = 0;
    if (CGGetOnlineDisplayList(kZQMaxDisplays, displays.data(), &count) != kCGErrorSuccess) {
        return false;
    }
    bool anyAffected = false;
    for (std::uint32_t i = 0; i < count; ++i) {
        const ZQGammaCurve* captured = capturedCurve(displays[i]);
        if (captured == nullptr || captured->sampleCount == 0) {
            continue;
        }
        anyAffected = true;
        if (!isUnreadable(previewCurves(*captured).after)) {
            return false;
        }
    }
    return anyAffected;
}

} // namespace nocturo
