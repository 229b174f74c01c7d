#pragma once

#include "effects/effect.h"

namespace nocturo {

/// Maps full range onto the video range 16 to 235 of 255.
class NDHDTVLuminanceEffect : public NDEffect {
  public:
    static constexpr std::string_view kName = "NDHDTVLuminanceEffect";
    static NDHDTVLuminanceEffect effect() { return {}; }

    using NDEffect::applyEffectOnGammaCurve;
    std::string_view name() const override { return kName; }
    void applyEffectOnGammaCurve(ZQGammaCurve* curve) override;
    std::int32_t priority() const override { return 40; }
};

} // namespace nocturo
