#include "effects/hdtv_luminance_effect.h"

namespace nocturo {

void NDHDTVLuminanceEffect::applyEffectOnGammaCurve(ZQGammaCurve* curve) {
    constexpr float kVideoBlack = 16.0F / 255.0F;
    constexpr float kVideoWhite = 235.0F / 255.0F;
    ZQGammaCurveMapRangeUniform(curve, kVideoBlack, kVideoWhite);
}

} // namespace nocturo
