// The question "Keep these colors?", whoever made the screens unreadable.

#include "app/keep_colors.h"

#include "controller_fixture.h"
#include "effects/dim_effect.h"

using namespace nocturo;

struct FakeDesktop : BlindDesktop {
    void askToKeepColors(int seconds, std::function<void(bool keep)> answered) override {
        secondsLeft = seconds;
        answer = std::move(answered);
    }
    void withdrawKeepColors() override { secondsLeft = 0; }
    void whenPointerIsReleased(std::function<void()> action) override {
        pointerIsHeld ? whenReleased.push_back(std::move(action)) : action();
    }

    int secondsLeft = 0; // of the question that is shown
    std::function<void(bool keep)> answer;
    bool pointerIsHeld = false;
    std::vector<std::function<void()>> whenReleased;
};

/// The dim effect makes what it is on black.
struct KeepColorsTest : ControllerFixture {
    KeepColorsTest() : ControllerFixture(2) { controller_.setDesktopFace(&desktop_); }

    void launch(const char* effect, float level = -1) {
        store_->setBool(true, kEffectActive);
        store_->setBool(false, kContinuouslyApply);
        chooseEffects({effect});
        NDDimEffect::setLevel(level);
        controller_.applicationDidFinishLaunching();
        settle();
    }
    void settle() { runLoop_.advance(50); }
    bool isAskedAfter(const std::function<void()>& change) {
        change();
        settle();
        EXPECT_EQ(question_.isAsking(), desktop_.secondsLeft > 0);
        return question_.isAsking();
    }
    bool isBlack(std::uint32_t crtc) {
        const Ramp& ramp = hardware_.ramps[crtc];
        return ramp.red.front() == 0 && ramp.red.back() == 0;
    }

    FakeDesktop desktop_;
    KeepColors question_{controller_, *store_, center_, runLoop_};
};

TEST_F(KeepColorsTest, GoesBackUnlessTheUserKeepsThem) {
    launch("NDInvertEffect");
    EXPECT_FALSE(question_.isAsking());
    EXPECT_TRUE(isAskedAfter([&] { chooseEffects({"NDDimEffect"}); }));
    EXPECT_TRUE(isBlack(1));
    desktop_.answer(false);
    EXPECT_EQ(chosenEffects(), PropertyArray{"NDInvertEffect"});
    EXPECT_FALSE(isBlack(1));
    EXPECT_EQ(desktop_.secondsLeft, 0);

    EXPECT_TRUE(isAskedAfter([&] { chooseEffects({"NDDimEffect"}); }));
    desktop_.answer(true);
    EXPECT_FALSE(isAskedAfter([&] { store_->setBool(true, kActivateOnClick); })) << "not a color";
    EXPECT_FALSE(isAskedAfter([&] { controller_.toggleGlobalEffect(); }));
    EXPECT_FALSE(isAskedAfter([&] { controller_.toggleGlobalEffect(); })) << "kept";
    EXPECT_TRUE(isAskedAfter([&] { NDGroupEffect::effect().addEffect("NDInvertEffect"); }))
        << "another choice, as unreadable";
    desktop_.answer(false);
    EXPECT_EQ(chosenEffects(), PropertyArray{"NDDimEffect"});
}

TEST_F(KeepColorsTest, GoesBackAlsoWhereAllDisplaysAreAwayForAMoment) {
    launch("NDInvertEffect");
    EXPECT_TRUE(isAskedAfter([&] { chooseEffects({"NDDimEffect"}); }));
    const std::vector<Head> heads = std::exchange(hardware_.heads, {});
    EXPECT_TRUE(
        isAskedAfter([&] { center_.post(NSApplicationDidChangeScreenParametersNotification); }));
    hardware_.heads = heads;
    runLoop_.advance(KeepColors::kSeconds * 1000);
    EXPECT_EQ(chosenEffects(), PropertyArray{"NDInvertEffect"});
}

TEST_F(KeepColorsTest, AnswersItselfWhenTimeIsUpAndNotOverSomebodyElse) {
    controller_.setDesktopFace(nullptr); // nobody sees it
    launch("NDDimEffect", 0);
    for (const bool somebodyElseChanged : {false, true}) {
        NDDimEffect::setLevel(0);
        settle();
        NDDimEffect::setLevel(-1);
        settle();
        EXPECT_TRUE(question_.isAsking());
        runLoop_.advance(9'999);
        EXPECT_TRUE(isBlack(1));
        if (somebodyElseChanged) {
            NDDimEffect::setLevel(-0.25F);
        }
        runLoop_.advance(1);
        EXPECT_FALSE(question_.isAsking());
        EXPECT_EQ(NDDimEffect::level(), somebodyElseChanged ? -0.25F : 0.0F);
    }
    runLoop_.advance(1000);
    EXPECT_EQ(runLoop_.pendingTimers(), 0U);
}

TEST_F(KeepColorsTest, IsAskedAboutAStartWithNothingReadableAndSwitchesOff) {
    launch("NDDimEffect");
    EXPECT_EQ(desktop_.secondsLeft, 10);
    runLoop_.advance(10'000);
    EXPECT_FALSE(controller_.effectActive());
    EXPECT_FALSE(store_->boolForKey(kEffectActive));
    EXPECT_EQ(NDDimEffect::level(), -1.0F);

    EXPECT_TRUE(isAskedAfter([&] { controller_.setEffectActive(true, true); }));
    desktop_.answer(false);
    EXPECT_FALSE(controller_.effectActive());
    EXPECT_FALSE(isAskedAfter([&] {
        controller_.setEffectActive(true, true);
        question_.keep();
    })) << "as --keep does";
    EXPECT_TRUE(controller_.effectActive());
}

TEST_F(KeepColorsTest, IsAskedAboutScreensThatAreChosenAndGivesThemBack) {
    hardware_.add("C", 3, 0); // cannot be changed, so it is not judged
    const auto affect = [this](CGDirectDisplayID display) {
        store_->setObject(PropertyArray{std::int64_t{display}}, kAffectedScreenSet);
    };
    affect(id("C"));
    launch("NDDimEffect");
    EXPECT_FALSE(question_.isAsking());
    EXPECT_TRUE(isAskedAfter([&] { affect(id("D1")); }));
    EXPECT_TRUE(isBlack(1));
    desktop_.answer(false);
    EXPECT_FALSE(isBlack(1));
    EXPECT_EQ(affectedScreenSet(*store_), std::vector<double>{double(id("C"))});
}

TEST_F(KeepColorsTest, WaitsWhileASliderIsHeld) {
    launch("NDDimEffect", 0);
    desktop_.pointerIsHeld = true;
    EXPECT_FALSE(isAskedAfter([&] { NDDimEffect::setLevel(-1); }));
    EXPECT_FALSE(isAskedAfter([&] { NDDimEffect::setLevel(0); }));
    EXPECT_FALSE(isAskedAfter([&] { NDDimEffect::setLevel(-0.99F); }));
    ASSERT_EQ(desktop_.whenReleased.size(), 1U);
    desktop_.pointerIsHeld = false;
    desktop_.whenReleased[0]();
    EXPECT_TRUE(question_.isAsking());
    EXPECT_FALSE(isAskedAfter([&] { NDDimEffect::setLevel(0); })) << "helped oneself";
}
