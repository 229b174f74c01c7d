#pragma once

#include "effects/effect.h"

namespace nocturo {

/// Pulls the picture toward black (negative level) or white (positive level).
class NDDimEffect : public NDEffect {
  public:
    static constexpr std::string_view kName = "NDDimEffect";
    static NDDimEffect effect() { return {}; }

    using NDEffect::applyEffectOnGammaCurve;
    std::string_view name() const override { return kName; }
    void applyEffectOnGammaCurve(ZQGammaCurve* curve) override;
    std::int32_t priority() const override { return 20; }

    /// The level: -1 is black, 0 changes nothing, 1 is white; not limited. -0.5 when never set.
    static float level();
    static void setLevel(float level);
};

} // namespace nocturo
