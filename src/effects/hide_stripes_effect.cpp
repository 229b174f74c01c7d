#include "effects/hide_stripes_effect.h"

namespace nocturo {

namespace {

// The two never are the same entry, which lets a compiler see what becomes of the pair.
void exchangeTwice(float* __restrict entry, float* __restrict mirror) {
    float kept = *entry;
    *entry = *mirror;
    *mirror = kept;
    kept = *entry;
    *entry = *mirror;
    *mirror = kept;
}

// The curve keeps its order: unlike inverting, overexposing has a direction only in its target.
void exchangeEveryPairTwice(ZQGammaTable& table, std::uint32_t count) {
    for (std::uint32_t i = 0; i < count / 2; ++i) {
        exchangeTwice(&table[i], &table[count - 1 - i]);
    }
}

} // namespace

void NDHideStripesEffect::applyEffectOnGammaCurve(ZQGammaCurve* curve) {
    for (ZQGammaTable* table : {&curve->redTable, &curve->greenTable, &curve->blueTable}) {
        exchangeEveryPairTwice(*table, curve->sampleCount);
    }
    const float start = curve->redTable[0] + curve->greenTable[0] + curve->blueTable[0];
    const float target = 1.5F > start ? 0.0F : 1.0F;
    ZQGammaCurveBlendUniform(curve, target, -0.1F);
    ZQGammaCurveClamp(curve);
}

} // namespace nocturo
