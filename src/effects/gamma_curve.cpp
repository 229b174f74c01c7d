#include "effects/gamma_curve.h"

#include <algorithm>
#include <cfloat>

namespace nocturo {

// Results are the same to the last bit everywhere only where float expressions are evaluated as
// floats; processors that widen them (x87) need -msse2 -mfpmath=sse.
static_assert(FLT_EVAL_METHOD == 0, "float arithmetic must not be widened");

namespace {

// The operations run on every display every few seconds and at every step of a dragged slider. They
// work through one table at a time in loops that the compiler turns into vector instructions;
// NOCTURO_PER_PROCESSOR, from the build, has it do so for wider vectors too where the processor has
// them. Wider ones change the speed and not a bit of the results.

float blended(float value, double weightedTarget, double rest) {
    return static_cast<float>(weightedTarget + rest * static_cast<double>(value));
}

void blend(ZQGammaTable& table, std::uint32_t count, float target, float weight) {
    const float weightedTarget = weight * target;
    const double rest = 1.0 - static_cast<double>(weight);
    for (std::uint32_t i = 0; i < count; ++i) {
        table[i] = blended(table[i], static_cast<double>(weightedTarget), rest);
    }
}

void blend(ZQGammaTable& table, std::uint32_t count, const ZQGammaTable& targets, float weight) {
    const double rest = 1.0 - static_cast<double>(weight);
    for (std::uint32_t i = 0; i < count; ++i) {
        const float weightedTarget = weight * targets[i];
        table[i] = blended(table[i], static_cast<double>(weightedTarget), rest);
    }
}

void mapRange(ZQGammaTable& table, std::uint32_t count, float low, float high) {
    const float span = high - low;
    for (std::uint32_t i = 0; i < count; ++i) {
        table[i] = table[i] * span + low;
    }
}

void clamp(ZQGammaTable& table, std::uint32_t count) {
    for (std::uint32_t i = 0; i < count; ++i) {
        table[i] = table[i] >= 1.0F ? 1.0F : table[i];
    }
}

} // namespace

void ZQGammaCurveReverse(ZQGammaCurve* curve) {
    for (ZQGammaTable* table : {&curve->redTable, &curve->greenTable, &curve->blueTable}) {
        std::reverse(table->begin(), table->begin() + curve->sampleCount);
    }
}

NOCTURO_PER_PROCESSOR void ZQGammaCurveBlend(ZQGammaCurve* curve, const ZQChannelValues& targets,
                                             const ZQChannelValues& weights) {
    blend(curve->redTable, curve->sampleCount, targets[0], weights[0]);
    blend(curve->greenTable, curve->sampleCount, targets[1], weights[1]);
    blend(curve->blueTable, curve->sampleCount, targets[2], weights[2]);
}

void ZQGammaCurveBlendUniform(ZQGammaCurve* curve, float target, float weight) {
    ZQGammaCurveBlend(curve, {target, target, target}, {weight, weight, weight});
}

NOCTURO_PER_PROCESSOR void ZQGammaCurveBlendWithCurve(ZQGammaCurve* curve,
                                                      const ZQGammaCurve& targets,
                                                      const ZQChannelValues& weights) {
    blend(curve->redTable, curve->sampleCount, targets.redTable, weights[0]);
    blend(curve->greenTable, curve->sampleCount, targets.greenTable, weights[1]);
    blend(curve->blueTable, curve->sampleCount, targets.blueTable, weights[2]);
}

void ZQGammaCurveBlendWithCurveUniform(const ZQGammaCurve& targets, ZQGammaCurve* curve,
                                       float weight) {
    ZQGammaCurveBlendWithCurve(curve, targets, {weight, weight, weight});
}

NOCTURO_PER_PROCESSOR void ZQGammaCurveMapRange(ZQGammaCurve* curve, const ZQChannelValues& lows,
                                                const ZQChannelValues& highs) {
    mapRange(curve->redTable, curve->sampleCount, lows[0], highs[0]);
    mapRange(curve->greenTable, curve->sampleCount, lows[1], highs[1]);
    mapRange(curve->blueTable, curve->sampleCount, lows[1], highs[1]);
}

void ZQGammaCurveMapRangeUniform(ZQGammaCurve* curve, float low, float high) {
    ZQGammaCurveMapRange(curve, {low, low, low}, {high, high, high});
}

NOCTURO_PER_PROCESSOR void ZQGammaCurveClamp(ZQGammaCurve* curve) {
    clamp(curve->redTable, curve->sampleCount);
    clamp(curve->greenTable, curve->sampleCount);
    clamp(curve->blueTable, curve->sampleCount);
}

} // namespace nocturo
