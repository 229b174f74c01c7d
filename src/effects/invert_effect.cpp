#include "effects/invert_effect.h"

namespace nocturo {

void NDInvertEffect::applyEffectOnGammaCurve(ZQGammaCurve* curve) {
    ZQGammaCurveReverse(curve);
}

} // namespace nocturo
