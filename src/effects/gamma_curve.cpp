#include "effects/gamma_curve.h"

#include <cfloat>
#include <utility>

namespace nocturo {

// Results are the same to the last bit everywhere only where float expressions are evaluated as
// floats; processors that widen them (x87) need -msse2 -mfpmath=sse.
static_assert(FLT_EVAL_METHOD == 0, "float arithmetic must not be widened");

namespace {

float blended(float value, float target, float weight) {
    const float weightedTarget = weight * target;
    return static_cast<float>(static_cast<double>(weightedTarget) +
                              (1.0 - static_cast<double>(weight)) * static_cast<double>(value));
}

float limited(float value) {
    return value > 0.0F && value >= 1.0F ? 1.0F : value;
}

} // namespace

void ZQGammaCurveReverse(ZQGammaCurve* curve) {
    for (std::uint32_t i = 0; i < curve->sampleCount / 2; ++i) {
        const std::uint32_t mirror = curve->sampleCount - 1 - i;
        std::swap(curve->redTable[i], curve->redTable[mirror]);
        std::swap(curve->greenTable[i], curve->greenTable[mirror]);
        std::swap(curve->blueTable[i], curve->blueTable[mirror]);
    }
}

void ZQGammaCurveBlend(ZQGammaCurve* curve, const ZQChannelValues& targets,
                       const ZQChannelValues& weights) {
    for (std::uint32_t i = 0; i < curve->sampleCount; ++i) {
        curve->redTable[i] = blended(curve->redTable[i], targets[0], weights[0]);
        curve->greenTable[i] = blended(curve->greenTable[i], targets[1], weights[1]);
        curve->blueTable[i] = blended(curve->blueTable[i], targets[2], weights[2]);
    }
}

void ZQGammaCurveBlendUniform(ZQGammaCurve* curve, float target, float weight) {
    ZQGammaCurveBlend(curve, {target, target, target}, {weight, weight, weight});
}

void ZQGammaCurveBlendWithCurve(ZQGammaCurve* curve, const ZQGammaCurve& targets,
                                const ZQChannelValues& weights) {
    for (std::uint32_t i = 0; i < curve->sampleCount; ++i) {
        curve->redTable[i] = blended(curve->redTable[i], targets.redTable[i], weights[0]);
        curve->greenTable[i] = blended(curve->greenTable[i], targets.greenTable[i], weights[1]);
        curve->blueTable[i] = blended(curve->blueTable[i], targets.blueTable[i], weights[2]);
    }
}

void ZQGammaCurveBlendWithCurveUniform(const ZQGammaCurve& targets, ZQGammaCurve* curve,
                                       float weight) {
    ZQGammaCurveBlendWithCurve(curve, targets, {weight, weight, weight});
}

void ZQGammaCurveMapRange(ZQGammaCurve* curve, const ZQChannelValues& lows,
                          const ZQChannelValues& highs) {
    const float redSpan = highs[0] - lows[0];
    const float greenSpan = highs[1] - lows[1];
    for (std::uint32_t i = 0; i < curve->sampleCount; ++i) {
        curve->redTable[i] = curve->redTable[i] * redSpan + lows[0];
        curve->greenTable[i] = curve->greenTable[i] * greenSpan + lows[1];
        curve->blueTable[i] = curve->blueTable[i] * greenSpan + lows[1];
    }
}

void ZQGammaCurveMapRangeUniform(ZQGammaCurve* curve, float low, float high) {
    ZQGammaCurveMapRange(curve, {low, low, low}, {high, high, high});
}

void ZQGammaCurveClamp(ZQGammaCurve* curve) {
    for (std::uint32_t i = 0; i < curve->sampleCount; ++i) {
        curve->redTable[i] = limited(curve->redTable[i]);
        curve->greenTable[i] = limited(curve->greenTable[i]);
        curve->blueTable[i] = limited(curve->blueTable[i]);
    }
}

} // namespace nocturo
