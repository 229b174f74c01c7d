#include "effects/color_filter_effect.h"

#include "settings/defaults_store.h"
#include "settings/settings_keys.h"

#include <algorithm>
#include <cmath>

namespace nocturo {

namespace {

constexpr float kRedPhase = 0.0F;
constexpr float kGreenPhase = 1.0F / 3.0F;
constexpr float kBluePhase = 2.0F / 3.0F;

} // namespace

float NDColorFilterEffect::colorAmmountForHue(float hue, float phase) const {
    constexpr double kTurnsPerDegree = 0.002777777777777778;
    constexpr double kRadiansPerTurn = 6.283185307179586;
    const double distance =
        (static_cast<double>(hue) * kTurnsPerDegree - static_cast<double>(phase)) * kRadiansPerTurn;
    return static_cast<float>(std::max(0.0, std::min(std::cos(distance) + 0.5, 1.0)));
}

void NDColorFilterEffect::applyEffectOnGammaCurve(ZQGammaCurve* curve) {
    const float currentHue = hue();
    const float currentVividness = vividness();
    const auto weight = [&](float phase) {
        return (1.0F - colorAmmountForHue(currentHue, phase)) * currentVividness;
    };
    ZQGammaCurveBlend(curve, {0.0F, 0.0F, 0.0F},
                      {weight(kRedPhase), weight(kGreenPhase), weight(kBluePhase)});
}

float NDColorFilterEffect::hue() {
    return userDefaults().floatForKey(kColorFilterHue);
}

void NDColorFilterEffect::setHue(float hue) {
    userDefaults().setFloat(hue, kColorFilterHue.key);
}

float NDColorFilterEffect::vividness() {
    return userDefaults().floatForKey(kColorFilterVividness);
}

void NDColorFilterEffect::setVividness(float vividness) {
    userDefaults().setFloat(vividness, kColorFilterVividness.key);
}

} // namespace nocturo
