#pragma once

#include "effects/effect.h"

namespace nocturo {

/// Tints the picture as coloured glass would: keeps the channels near a hue, darkens the others.
class NDColorFilterEffect : public NDEffect {
  public:
    static constexpr std::string_view kName = "NDColorFilterEffect";
    static NDColorFilterEffect effect() { return {}; }

    using NDEffect::applyEffectOnGammaCurve;
    std::string_view name() const override { return kName; }
    void applyEffectOnGammaCurve(ZQGammaCurve* curve) override;
    std::int32_t priority() const override { return 30; }

    /// How much of a channel passes at a hue, 0.0 to 1.0: min(1, max(0, cos(distance) + 0.5)). Full
    /// within 60 degrees of the channel's own hue, nothing from 120 degrees on. `hue` is in
    /// degrees, `phase`, the hue of the channel, in turns.
    float colorAmmountForHue(float hue, float phase) const;

    /// Degrees; 0 (red) when never set.
    static float hue();
    static void setHue(float hue);

    /// 0 changes nothing, 1 (also when never set) removes the unwanted channels; not limited.
    static float vividness();
    static void setVividness(float vividness);
};

} // namespace nocturo
