#include "effects/dim_effect.h"

#include "settings/defaults_store.h"

namespace nocturo {

namespace {

constexpr std::string_view kLevelKey = "NDDimEffectLevel";
constexpr float kDefaultLevel = -0.5F;

} // namespace

void NDDimEffect::applyEffectOnGammaCurve(ZQGammaCurve* curve) {
    const float currentLevel = level();
    if (currentLevel > 0.0F) {
        ZQGammaCurveBlendUniform(curve, 1.0F, currentLevel);
    } else {
        ZQGammaCurveBlendUniform(curve, 0.0F, -currentLevel);
    }
}

float NDDimEffect::level() {
    const DefaultsStore& defaults = userDefaults();
    return defaults.objectForKey(kLevelKey) == nullptr ? kDefaultLevel
                                                       : defaults.floatForKey(kLevelKey);
}

void NDDimEffect::setLevel(float level) {
    userDefaults().setFloat(level, kLevelKey);
}

} // namespace nocturo
