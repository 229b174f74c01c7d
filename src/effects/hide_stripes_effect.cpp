#include "effects/hide_stripes_effect.h"

#include <utility>

namespace nocturo {

namespace {

// Exchanges each pair twice, so the curve keeps its order: unlike inverting, overexposing has a
// direction only in its target.
void exchangeEveryPairTwice(ZQGammaCurve* curve) {
    for (std::uint32_t i = 0; i < curve->sampleCount; ++i) {
        const std::uint32_t mirror = curve->sampleCount - 1 - i;
        std::swap(curve->redTable[i], curve->redTable[mirror]);
        std::swap(curve->greenTable[i], curve->greenTable[mirror]);
        std::swap(curve->blueTable[i], curve->blueTable[mirror]);
    }
}

} // namespace

void NDHideStripesEffect::applyEffectOnGammaCurve(ZQGammaCurve* curve) {
    exchangeEveryPairTwice(curve);
    const float start = curve->redTable[0] + curve->greenTable[0] + curve->blueTable[0];
    const float target = 1.5F > start ? 0.0F : 1.0F;
    ZQGammaCurveBlendUniform(curve, target, -0.1F);
    ZQGammaCurveClamp(curve);
}

} // namespace nocturo
