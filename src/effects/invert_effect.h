#pragma once

#include "effects/effect.h"

namespace nocturo {

/// The negative of the picture: every channel's curve end for end.
class NDInvertEffect : public NDEffect {
  public:
    static constexpr std::string_view kName = "NDInvertEffect";
    static NDInvertEffect effect() { return {}; }

    using NDEffect::applyEffectOnGammaCurve;
    std::string_view name() const override { return kName; }
    void applyEffectOnGammaCurve(ZQGammaCurve* curve) override;
    std::int32_t priority() const override { return 10; }
};

} // namespace nocturo
