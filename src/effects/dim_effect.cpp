#include "effects/dim_effect.h"

#include "settings/defaults_store.h"
#include "settings/settings_keys.h"

namespace nocturo {

void NDDimEffect::applyEffectOnGammaCurve(ZQGammaCurve* curve) {
    const float currentLevel = level();
    if (currentLevel > 0.0F) {
        ZQGammaCurveBlendUniform(curve, 1.0F, currentLevel);
    } else {
        ZQGammaCurveBlendUniform(curve, 0.0F, -currentLevel);
    }
}

float NDDimEffect::level() {
    return userDefaults().floatForKey(kDimLevel);
}

void NDDimEffect::setLevel(float level) {
    userDefaults().setFloat(level, kDimLevel.key);
}

} // namespace nocturo
