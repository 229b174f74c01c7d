#include "effects/gamma_curve.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace nocturo {

namespace {

// Entries 0, 1, 2, ... in red, from 1000 in green and from 2000 in blue, in all 256 places.
ZQGammaCurve numberedCurve(std::uint32_t sampleCount) {
    ZQGammaCurve curve;
    curve.sampleCount = sampleCount;
    for (std::size_t i = 0; i < kGammaCurveCapacity; ++i) {
        curve.redTable[i] = static_cast<float>(i);
        curve.greenTable[i] = static_cast<float>(1000 + i);
        curve.blueTable[i] = static_cast<float>(2000 + i);
    }
    return curve;
}

ZQGammaCurve curveOf(float value) {
    ZQGammaCurve curve;
    curve.sampleCount = 1;
    curve.redTable[0] = curve.greenTable[0] = curve.blueTable[0] = value;
    return curve;
}

bool sameTables(const ZQGammaCurve& a, const ZQGammaCurve& b) {
    return a.redTable == b.redTable && a.greenTable == b.greenTable && a.blueTable == b.blueTable;
}

TEST(GammaCurve, ReverseExchangesOnlyValidEntries) {
    for (const std::uint32_t count : {2U, 3U, 17U, 256U}) {
        ZQGammaCurve curve = numberedCurve(count);
        ZQGammaCurveReverse(&curve);
        for (std::uint32_t i = 0; i < kGammaCurveCapacity; ++i) {
            const auto expected = static_cast<float>(i < count ? count - 1 - i : i);
            ASSERT_EQ(curve.redTable[i], expected) << count << " " << i;
            ASSERT_EQ(curve.greenTable[i], 1000 + expected);
            ASSERT_EQ(curve.blueTable[i], 2000 + expected);
        }
    }
}

TEST(GammaCurve, EveryOperationLeavesAnEmptyCurveAndInvalidEntriesAlone) {
    const ZQChannelValues some = {0.25F, 0.5F, 0.75F};
    for (const std::uint32_t count : {0U, 3U}) {
        const ZQGammaCurve before = numberedCurve(count);
        ZQGammaCurve curve = before;
        ZQGammaCurveReverse(&curve);
        ZQGammaCurveBlend(&curve, some, some);
        ZQGammaCurveBlendWithCurveUniform(before, &curve, 0.5F);
        ZQGammaCurveMapRange(&curve, some, {9, 9, 9});
        ZQGammaCurveClamp(&curve);
        EXPECT_EQ(sameTables(curve, before), count == 0);
        EXPECT_EQ(curve.redTable[count], before.redTable[count]);
        EXPECT_EQ(curve.blueTable[255], before.blueTable[255]);
    }
}

TEST(GammaCurve, BlendRoundsTheWeightedTargetAloneToSinglePrecision) {
    // Chosen so that rounding everything to single, or only the result, gives a neighbour. Worked
    // out in exact rationals.
    ZQGammaCurve curve = curveOf(0x1.df7524p-1F);
    ZQGammaCurveBlend(&curve, {0.7F, 0.7F, 1.0F}, {0.1F, -0.1F, 1.5F});
    EXPECT_EQ(curve.redTable[0], 0x1.d35a12p-1F);
    EXPECT_EQ(curve.greenTable[0], 0x1.eb9036p-1F);
    EXPECT_EQ(curve.blueTable[0], 0x1.0822b8p+0F);
}

TEST(GammaCurve, BlendWeightsOfNothingAndAllAreExact) {
    ZQGammaCurve curve = curveOf(0.3F);
    ZQGammaCurveBlend(&curve, {0.9F, 0.9F, 0.9F}, {0.0F, 1.0F, 0.0F});
    EXPECT_EQ(curve.redTable[0], 0.3F);
    EXPECT_EQ(curve.greenTable[0], 0.9F);
    ZQGammaCurve targets = curveOf(0.5F);
    targets.sampleCount = 0; // not consulted
    ZQGammaCurveBlendWithCurve(&curve, targets, {1.0F, 0.0F, 1.0F});
    EXPECT_EQ(curve.redTable[0], 0.5F);
    EXPECT_EQ(curve.greenTable[0], 0.9F);
    EXPECT_EQ(curve.blueTable[0], 0.5F);
}

TEST(GammaCurve, MapRangeTakesTheGreenPairForBlue) {
    ZQGammaCurve curve = curveOf(1.0F);
    ZQGammaCurveMapRange(&curve, {0.1F, 0.2F, 0.3F}, {0.9F, 0.8F, 0.7F});
    EXPECT_FLOAT_EQ(curve.redTable[0], 0.9F);
    EXPECT_FLOAT_EQ(curve.greenTable[0], 0.8F);
    EXPECT_FLOAT_EQ(curve.blueTable[0], 0.8F);
}

TEST(GammaCurve, ClampLimitsOnlyFromAbove) {
    const float infinity = std::numeric_limits<float>::infinity();
    const std::pair<float, float> pairs[] = {
        {1.5F, 1.0F},   {1.0F, 1.0F},     {0.5F, 0.5F},          {0.0F, 0.0F},
        {-0.2F, -0.2F}, {infinity, 1.0F}, {-infinity, -infinity}};
    for (const auto& [before, after] : pairs) {
        ZQGammaCurve curve = curveOf(before);
        ZQGammaCurveClamp(&curve);
        EXPECT_EQ(curve.greenTable[0], after);
    }
    ZQGammaCurve curve = curveOf(std::nanf(""));
    ZQGammaCurveClamp(&curve);
    EXPECT_TRUE(std::isnan(curve.blueTable[0]));
}

} // namespace

} // namespace nocturo
