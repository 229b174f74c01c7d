#include "effects/color_filter_effect.h"
#include "effects/color_temperature.h"
#include "effects/dim_effect.h"
#include "effects/effect_choices.h"
#include "effects/hdtv_luminance_effect.h"
#include "effects/hide_stripes_effect.h"
#include "effects/invert_effect.h"
#include "expected/expected_curves.h"
#include "settings_fixture.h"

#include <algorithm>
#include <bit>
#include <cmath>

using namespace nocturo;

struct Effects : SettingsFixture {
    NDGroupEffect group_;
};

ZQGammaCurve curveFrom(const expected::Curve& bits) {
    ZQGammaCurve curve;
    curve.sampleCount = 256;
    const std::array tables{&curve.redTable, &curve.greenTable, &curve.blueTable};
    for (std::size_t channel = 0; channel < 3; ++channel) {
        std::transform(bits.singles[channel].begin(), bits.singles[channel].end(),
                       tables[channel]->begin(),
                       [](std::uint32_t single) { return std::bit_cast<float>(single); });
    }
    return curve;
}

// Equal as numbers: the calculation in rationals knows no negative zero.
void expectBits(const ZQGammaCurve& curve, const expected::Curve& bits) {
    const ZQGammaCurve wanted = curveFrom(bits);
    for (std::size_t i = 0; i < 256; ++i) {
        ASSERT_EQ(curve.redTable[i], wanted.redTable[i]) << "entry " << i;
        ASSERT_EQ(curve.greenTable[i], wanted.greenTable[i]) << "entry " << i;
        ASSERT_EQ(curve.blueTable[i], wanted.blueTable[i]) << "entry " << i;
    }
}

TEST(GammaCurve, EachChannelHasItsTargetAndWeightButBlueTheRangeOfGreen) {
    ZQGammaCurve curve;
    curve.sampleCount = 1;
    curve.redTable[0] = curve.greenTable[0] = curve.blueTable[0] = 0.25F;
    ZQGammaCurveBlend(&curve, {0.9F, 0.5F, 0.7F}, {0.0F, 1.0F, 0.5F});
    EXPECT_EQ(curve.redTable[0], 0.25F);
    EXPECT_EQ(curve.greenTable[0], 0.5F);
    EXPECT_FLOAT_EQ(curve.blueTable[0], 0.475F);
    ZQGammaCurveMapRange(&curve, {0.5F, 0.5F, 0.0F}, {1.5F, 2.5F, 9.0F});
    EXPECT_FLOAT_EQ(curve.redTable[0], 0.75F);
    EXPECT_FLOAT_EQ(curve.greenTable[0], 1.5F);
    EXPECT_FLOAT_EQ(curve.blueTable[0], 1.45F);
}

void check(NDEffect&& effect, const expected::Curve& before, const expected::Curve& after) {
    SCOPED_TRACE(std::string(effect.name()));
    ZQGammaCurve curve = curveFrom(before);
    effect.applyEffectOnGammaCurve(&curve, -1.0);
    expectBits(curve, after);
}

TEST_F(Effects, EveryEffectIsExactToTheLastBit) {
    using namespace expected;
    check(NDInvertEffect::effect(), plain, inverted);
    check(NDHideStripesEffect::effect(), plain, overexposed);
    check(NDHideStripesEffect::effect(), inverted, invertedAndOverexposed);
    check(NDDimEffect::effect(), plain, dimmedByDefault);
    check(NDColorFilterEffect::effect(), plain, redFilter);
    check(NDHDTVLuminanceEffect::effect(), plain, videoRange);
    NDDimEffect::setLevel(0.3F);
    check(NDDimEffect::effect(), plain, lightened);
    NDDimEffect::setLevel(0.0F); // stored, so not the fallback
    check(NDDimEffect::effect(), plain, plain);
}

TEST_F(Effects, AGroupAppliesItsEffectsByPriorityWhateverTheirOrder) {
    NDDimEffect::setLevel(-0.3F);
    NDColorFilterEffect::setHue(200.5F);
    NDColorFilterEffect::setVividness(0.7F);
    // Names without an effect and the group itself are passed over.
    chooseEffects({"NDHDTVLuminanceEffect", "NDColorFilterEffect", "NDNoSuchEffect", "NDDimEffect",
                   "NDGroupEffect", "NDHideStripesEffect", "NDInvertEffect"});
    check(NDGroupEffect(), expected::plain, expected::allFive);
    ZQGammaCurve curve = curveFrom(expected::plain);
    group_.applyEffectOnGammaCurve(&curve); // the form without a time does nothing
    expectBits(curve, expected::plain);
}

TEST_F(Effects, TheSelectionLivesInTheStore) {
    NDGroupEffect::initialize();
    EXPECT_EQ(group_.effectCount(), 0U);
    group_.setContains(true, "NDDimEffect");
    group_.addEffect("NDDimEffect");
    EXPECT_EQ(NDGroupEffect().effectCount(), 1U);
    group_.removeEffect("NDInvertEffect"); // not in it
    group_.setContains(false, "NDDimEffect");
    EXPECT_EQ(group_.effectCount(), 0U);

    // A duplicate can only come from an edited file; the entry behind a removed one is skipped.
    chooseEffects({"NDDimEffect", "NDDimEffect", "NDInvertEffect"});
    group_.removeEffect("NDDimEffect");
    EXPECT_EQ(group_.effectCount(), 2U);
    EXPECT_TRUE(group_.containsEffect("NDDimEffect"));
    store_->setBool(true, "NDGroupEffect"); // not an array: nothing to add to
    group_.addEffect("NDDimEffect");
    EXPECT_EQ(group_.effectCount(), 0U);
    EXPECT_NE(store_->arrayForKey("NDGroupEffect"), nullptr);
}

// Through the settings, which are singles, and the effect to a 16-bit ramp.
TEST_F(Effects, EveryTemperatureIsAColorOfTheFilterToTheLastStep) {
    EXPECT_DOUBLE_EQ(whiteAtTemperature(1000)[1], 0.18172716);
    EXPECT_DOUBLE_EQ(whiteAtTemperature(3450)[1], (0.76888303 + 0.77987699) / 2);
    EXPECT_DOUBLE_EQ(whiteAtTemperature(25100)[0], 0.62740336);
    for (double kelvin = 1000; kelvin <= 25000; kelvin += 50) {
        SCOPED_TRACE(kelvin);
        const FilterColor filter = filterAtTemperature(kelvin);
        NDColorFilterEffect::setHue(static_cast<float>(filter.hue));
        NDColorFilterEffect::setVividness(static_cast<float>(filter.vividness));
        ZQGammaCurve curve;
        curve.sampleCount = 1;
        curve.redTable[0] = curve.greenTable[0] = curve.blueTable[0] = 1.0F;
        NDColorFilterEffect::effect().applyEffectOnGammaCurve(&curve);
        const auto white = whiteAtTemperature(kelvin);
        const std::array made{curve.redTable[0], curve.greenTable[0], curve.blueTable[0]};
        for (std::size_t channel = 0; channel < 3; ++channel) {
            EXPECT_NEAR(std::round(made[channel] * 65535), white[channel] * 65535, 1);
        }
        EXPECT_NEAR(temperatureOfFilter(filter).value_or(0), kelvin, 0.5);
    }
    EXPECT_EQ(temperatureOfFilter({200.0, 0.0}), kNeutralTemperature); // any hue of no vividness
    EXPECT_FALSE(temperatureOfFilter({0.0, 1.0}));                     // pure red
    EXPECT_FALSE(temperatureOfFilter({180.0, 1.0}));                   // no red at all
    EXPECT_FALSE(temperatureOfFilter({300.0, 0.3}));
}

TEST_F(Effects, ATemperatureIsOneChangeOfTheFilterAndStepsGoFromWhatIsInForce) {
    chooseEffects({});
    int changes = 0;
    center_.addObserver(this, NSUserDefaultsDidChangeNotification, [&] { ++changes; });
    EXPECT_FALSE(filterTemperature()); // pure red
    EXPECT_TRUE(stepFilterTemperature(-250));
    EXPECT_NEAR(*filterTemperature(), 6250, 0.5); // neutral before, as the filter was not chosen
    EXPECT_TRUE(group_.containsEffect("NDColorFilterEffect"));
    EXPECT_EQ(changes, 1);
    for (int step = 0; step < 30; ++step) {
        EXPECT_TRUE(stepFilterTemperature(-250));
    }
    EXPECT_NEAR(*filterTemperature(), 1000, 0.5);
    EXPECT_TRUE(stepFilterTemperature(40));
    EXPECT_NEAR(*filterTemperature(), 1040, 0.5);
    NDColorFilterEffect::setHue(300);
    EXPECT_FALSE(stepFilterTemperature(250));
    EXPECT_EQ(NDColorFilterEffect::hue(), 300);
}

TEST_F(Effects, AFilterThatWasNeverSetIsOfferedAGentleTint) {
    offerGentleTint();
    EXPECT_NEAR(filterTemperature().value_or(0), 3500, 0.5);
    for (const char* key : {"NDColorFilterEffectHue", "NDColorFilterEffectVividness"}) {
        store_->removeObjectForKey("NDColorFilterEffectHue");
        store_->removeObjectForKey("NDColorFilterEffectVividness");
        store_->setFloat(0.5F, key);
        offerGentleTint();
        EXPECT_FALSE(filterTemperature()) << key;
    }
}
