#include "app/app_controller.h"

#include "app/settings_table.h"
#include "app_controller_fixture.h"
#include "preferences/affected_screen_set.h"

#include <limits>

namespace nocturo {
namespace {

using AppController = AppControllerFixture;

TEST_F(AppController, LaunchSwitchesAsTheSettingsSay) {
    struct Case {
        bool atLaunch;
        bool saved;
        bool on;
        bool savedAfter;
    };
    for (const Case& each : {Case{true, false, true, true}, Case{true, true, true, true},
                             Case{false, true, true, true}, Case{false, false, false, false}}) {
        store_->setBool(each.atLaunch, "ActivateAtLaunch");
        store_->setBool(each.saved, "EffectActive");
        NDAppController fresh(*store_, centers_, runLoop_);
        fresh.applicationDidFinishLaunching();
        EXPECT_EQ(fresh.effectActive(), each.on);
        EXPECT_EQ(shown(), each.on ? "iii" : "ooo");
        fresh.applicationWillTerminate();
        EXPECT_EQ(shown(), "ooo");
        EXPECT_EQ(store_->boolForKey("EffectActive"), each.savedAfter);
    }
}

TEST_F(AppController, DisplaysEnterAndLeaveTheAffectedSetWhileOn) {
    controller_.applicationDidFinishLaunching();
    chooseAffectedScreen(*store_, static_cast<std::int32_t>(id(1)));
    EXPECT_EQ(shown(), "oio");
    hardware_.writes.clear();
    chooseAffectedScreen(*store_, static_cast<std::int32_t>(id(2)));
    EXPECT_EQ(shown(), "oii");
    for (const auto& [crtc, ramp] : hardware_.writes) {
        EXPECT_NE(crtc, 1U);
    }
    chooseAffectedScreen(*store_, 0);
    EXPECT_EQ(shown(), "iii");

    // Without any display listed, and after a failed query, all stay as they are.
    hardware_.lists = false;
    ++hardware_.generation;
    controller_.adjustScreenControllers();
    EXPECT_EQ(controller_.screenControllers()->size(), 3U);
}

TEST_F(AppController, AModeChangeAppliesAtOnceAndOnceMore) {
    controller_.applicationDidFinishLaunching();
    store_->setBool(false, "ContinuouslyApply");
    const auto shownAfter = [&](const std::function<void()>& event) {
        hardware_.ramps[1] = identityRamp(256);
        event();
        return shown();
    };
    EXPECT_EQ(shownAfter([&] { callReconfigurationCallbacks({{}, true, {id(0)}}); }), "oii");
    EXPECT_EQ(shownAfter([&] { callReconfigurationCallbacks({{id(0)}, false, {}}); }), "iii");
    EXPECT_EQ(shownAfter([&] { runLoop_.advance(49); }), "oii");
    runLoop_.advance(1);
    EXPECT_EQ(shown(), "iii");
    EXPECT_EQ(shownAfter([&] { runLoop_.advance(10000); }), "oii");

    callReconfigurationCallbacks({{id(0)}, false, {}});
    controller_.setEffectActive(false, false);
    hardware_.writes.clear();
    runLoop_.advance(50);
    EXPECT_TRUE(hardware_.writes.empty());
}

TEST_F(AppController, AppliesAgainEverySixSecondsWhileAskedTo) {
    controller_.applicationDidFinishLaunching();
    hardware_.ramps[1] = identityRamp(256);
    runLoop_.advance(5999);
    EXPECT_EQ(shown(), "oii");
    store_->setBool(true, "UseHotKey"); // any change applies at once and keeps the timer's phase
    EXPECT_EQ(shown(), "iii");
    hardware_.ramps[1] = identityRamp(256);
    runLoop_.advance(1);
    EXPECT_EQ(shown(), "iii");

    store_->setBool(false, "ContinuouslyApply");
    EXPECT_EQ(runLoop_.pendingTimers(), 0U);
    store_->setBool(true, "ContinuouslyApply");
    EXPECT_EQ(runLoop_.pendingTimers(), 1U);
    controller_.setEffectActive(false, false);
    EXPECT_EQ(runLoop_.pendingTimers(), 0U);
}

TEST_F(AppController, AffectedScreenSetReadsEitherKey) {
    using Set = std::vector<double>;
    const auto read = [&](const PropertyValue& set, std::int64_t older) {
        store_->setObject(set, "AffectedScreenSet");
        store_->setInteger(older, "AffectedScreens");
        return affectedScreenSet(*store_);
    };
    const PropertyValue noArray = false;
    EXPECT_EQ(read(noArray, 0), Set{});
    EXPECT_EQ(read(noArray, 5), Set{5});
    EXPECT_EQ(read(PropertyArray{3LL, 1LL, 3LL}, 5), (Set{1, 3, 3}));
    EXPECT_EQ(read(PropertyArray{}, 5), Set{});
    EXPECT_EQ(read(PropertyArray{1LL, std::string("x")}, 5), Set{5});
    EXPECT_EQ(read(PropertyArray{1LL, true}, 5), Set{5});
    EXPECT_EQ(read(noArray, std::int64_t{1} << 32), Set{});
    EXPECT_EQ(read(noArray, 0xFFFFFFFF), Set{-1}); // signed storage: never equals a display

    // A first choice carries the older key's display over into the set.
    EXPECT_EQ(read(noArray, 5), Set{5});
    chooseAffectedScreen(*store_, 4);
    EXPECT_EQ(*store_->arrayForKey("AffectedScreenSet"), (PropertyArray{4LL, 5LL}));
    EXPECT_EQ(store_->integerForKey("AffectedScreens"), 4);
    chooseAffectedScreen(*store_, 5);
    EXPECT_EQ(*store_->arrayForKey("AffectedScreenSet"), (PropertyArray{4LL}));
}

TEST_F(AppController, SettingsHaveDefaultsAndRefuseWhatTheyCannotHold) {
    controller_.initDefaults();
    EXPECT_TRUE(store_->boolForKey("ContinuouslyApply"));
    EXPECT_FALSE(store_->boolForKey("UseHotKey"));
    EXPECT_EQ(store_->objectForKey("NDDimEffectLevel"), nullptr);
    EXPECT_EQ(effectiveValue(*store_, *settingNamed("NDDimEffectLevel")), PropertyValue(-0.5));

    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const auto& [key, value, accepted] :
         std::vector<std::tuple<const char*, PropertyValue, bool>>{
             {"UseHotKey", true, true},
             {"UseHotKey", 1LL, false},
             {"HotKeyCode", 1LL, true},
             {"HotKeyCode", 1.0, false},
             {"NDDimEffectLevel", -3.5, true},
             {"NDDimEffectLevel", 1LL, false},
             {"NDDimEffectLevel", nan, false},
             {"NDDimEffectLevel", 1e300, false}, // no finite single
             {"NDGroupEffect", PropertyArray{std::string("NDDimEffect")}, true},
             {"NDGroupEffect", PropertyArray{std::string("NDGroupEffect")}, false},
             {"AffectedScreenSet", PropertyArray{1LL}, true},
             {"AffectedScreenSet", PropertyArray{std::int64_t{1} << 31}, false},
         }) {
        EXPECT_EQ(!problemWith(*settingNamed(key), value), accepted) << key << value.index();
    }
}

} // namespace
} // namespace nocturo
