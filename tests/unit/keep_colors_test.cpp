// The question "Keep these colors?", whoever made the screens unreadable.

#include "app/keep_colors.h"

#include "app/app_controller.h"
#include "app/desktop_face.h"
#include "base/notification_names.h"
#include "display_services_fixture.h"
#include "displays/affected_screen_set.h"
#include "effects/dim_effect.h"
#include "effects/group_effect.h"
#include "fake_run_loop.h"
#include "settings/defaults_store.h"
#include "settings/settings_keys.h"

#include <gmock/gmock.h>

namespace nocturo {
namespace {

using testing::ElementsAre;

struct FakeDesktop : DesktopFace {
    void askToKeepColors(int seconds, std::function<void(bool keep)> answered) override {
        secondsLeft = seconds;
        answer = std::move(answered);
    }
    void withdrawKeepColors() override { secondsLeft = 0; }
    void whenPointerIsReleased(std::function<void()> action) override {
        pointerIsHeld ? whenReleased.push_back(std::move(action)) : action();
    }
    void showAlert(const Alert& /*alert*/,
                   std::function<void(AlertAnswer answer)> /*answered*/) override {}
    void showRefusedDocuments(const std::vector<std::string>& /*paths*/) override {}
    void setActivateItemTitles(bool /*active*/) override {}
    void setStatusItemShown(bool /*shown*/) override {}
    void setStatusItemImage(bool /*active*/) override {}
    void makeScreenMenus() override {}

    int secondsLeft = 0; // of the question that is shown
    std::function<void(bool keep)> answer;
    bool pointerIsHeld = false;
    std::vector<std::function<void()>> whenReleased;
};

/// Two displays in memory. The dim effect makes what it is on black.
class KeepColorsTest : public DisplayServicesFixture {
  protected:
    void SetUp() override {
        hardware_.add("A", 1);
        hardware_.add("B", 2);
        start();
        NDEffect::setUserDefaults(store_);
        controller_.setDesktopFace(&desktop_);
    }
    void TearDown() override { NDEffect::setUserDefaults(nullptr); }

    void launch(bool active, const char* effect, float level = -1) {
        store_->setBool(active, kEffectActive);
        store_->setBool(false, kContinuouslyApply);
        chooseEffect(effect);
        NDDimEffect::setLevel(level);
        controller_.applicationDidFinishLaunching([](bool /*launched*/) {});
        settle();
    }
    void chooseEffect(const char* effect) {
        store_->setObject(PropertyArray{std::string(effect)}, NDGroupEffect::kName);
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
    PropertyArray effects() const { return *store_->arrayForKey(NDGroupEffect::kName); }
    static PropertyValue named(const char* effect) { return std::string(effect); }

    NotificationCenter center_;
    NotificationCenter workspace_;
    NotificationCenter distributed_;
    std::shared_ptr<DefaultsStore> store_ = std::make_shared<DefaultsStore>(center_);
    FakeRunLoop runLoop_;
    FakeDesktop desktop_;
    NDAppController controller_{*store_, {center_, workspace_, distributed_}, runLoop_};
    KeepColors question_{controller_, *store_, center_, runLoop_};
};

TEST_F(KeepColorsTest, GoesBackUnlessTheUserKeepsThem) {
    launch(true, "NDInvertEffect");
    EXPECT_FALSE(question_.isAsking());
    EXPECT_TRUE(isAskedAfter([&] { chooseEffect("NDDimEffect"); }));
    EXPECT_TRUE(isBlack(1));
    desktop_.answer(false);
    EXPECT_THAT(effects(), ElementsAre(named("NDInvertEffect")));
    EXPECT_FALSE(isBlack(1));
    EXPECT_EQ(desktop_.secondsLeft, 0);

    EXPECT_TRUE(isAskedAfter([&] { chooseEffect("NDDimEffect"); }));
    desktop_.answer(true);
    EXPECT_FALSE(isAskedAfter([&] { store_->setBool(true, kActivateOnClick); })) << "not a color";
    EXPECT_FALSE(isAskedAfter([&] { controller_.toggleGlobalEffect(); }));
    EXPECT_FALSE(isAskedAfter([&] { controller_.toggleGlobalEffect(); })) << "kept";
    EXPECT_TRUE(isAskedAfter([&] { NDGroupEffect::effect().addEffect("NDInvertEffect"); }))
        << "another choice, as unreadable";
    desktop_.answer(false);
    EXPECT_THAT(effects(), ElementsAre(named("NDDimEffect")));
}

TEST_F(KeepColorsTest, GoesBackAlsoWhereAllDisplaysAreAwayForAMoment) {
    launch(true, "NDInvertEffect");
    EXPECT_TRUE(isAskedAfter([&] { chooseEffect("NDDimEffect"); }));
    const std::vector<Head> heads = std::exchange(hardware_.heads, {});
    EXPECT_TRUE(
        isAskedAfter([&] { center_.post(NSApplicationDidChangeScreenParametersNotification); }));
    hardware_.heads = heads;
    runLoop_.advance(KeepColors::kSeconds * 1000);
    EXPECT_THAT(effects(), ElementsAre(named("NDInvertEffect")));
}

TEST_F(KeepColorsTest, AnswersItselfWhenTimeIsUpAndNotOverSomebodyElse) {
    controller_.setDesktopFace(nullptr); // nobody sees it
    launch(true, "NDDimEffect", 0);
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
    launch(true, "NDDimEffect");
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
    launch(true, "NDDimEffect");
    EXPECT_FALSE(question_.isAsking());
    EXPECT_TRUE(isAskedAfter([&] { affect(id("A")); }));
    EXPECT_TRUE(isBlack(1));
    desktop_.answer(false);
    EXPECT_FALSE(isBlack(1));
    EXPECT_THAT(affectedScreenSet(*store_), ElementsAre(id("C")));
}

TEST_F(KeepColorsTest, WaitsWhileASliderIsHeld) {
    launch(true, "NDDimEffect", 0);
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

} // namespace
} // namespace nocturo
