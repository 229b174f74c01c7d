#pragma once

#include "effects/effect.h"

namespace nocturo {

/// Overexposes by a tenth, which washes out faint light stripes. A curve that starts dark is pushed
/// up to full brightness, one that starts bright (an inverted one) is pushed below zero.
class NDHideStripesEffect : public NDEffect {
  public:
    static constexpr std::string_view kName = "NDHideStripesEffect";
    static NDHideStripesEffect effect() { return {}; }

    using NDEffect::applyEffectOnGammaCurve;
    std::string_view name() const override { return kName; }
    void applyEffectOnGammaCurve(ZQGammaCurve* curve) override;
    std::int32_t priority() const override { return 13; }
};

} // namespace nocturo
