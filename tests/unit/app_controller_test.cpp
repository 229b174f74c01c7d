#include "app/app_controller.h"

#include "app/settings_table.h"
#include "app_controller_fixture.h"
#include "platform/notification_names.h"
#include "preferences/affected_screen_set.h"

#include <gtest/gtest.h>

#include <limits>

namespace nocturo {

namespace {

class AppController : public AppControllerFixture {};

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
        EXPECT_EQ(store_->boolForKey("EffectActive"), each.savedAfter);
        fresh.applicationWillTerminate();
        EXPECT_EQ(shown(), "ooo");
        EXPECT_EQ(store_->boolForKey("EffectActive"), each.savedAfter);
    }
}

TEST_F(AppController, AFreshUserSeesTheDefaults) {
    store_->removeObjectForKey("NDGroupEffect");
    controller_.initDefaults();
    for (const char* key : {"ActivateAtLaunch", "ActivateOnClick", "ContinuouslyApply",
                            "NDDeactivateForScreenSaver"}) {
        EXPECT_TRUE(store_->boolForKey(key)) << key;
    }
    EXPECT_FALSE(store_->boolForKey("UseHotKey"));
    ASSERT_NE(store_->arrayForKey("NDGroupEffect"), nullptr);
    EXPECT_EQ(store_->objectForKey("NDDimEffectLevel"), nullptr);
    EXPECT_EQ(effectiveValue(*store_, *settingNamed("NDDimEffectLevel")), PropertyValue(-0.5));
    EXPECT_TRUE(store_->userDomain().empty());
    EXPECT_EQ(registeredDefaults().size(), 7U);
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
    EXPECT_EQ(controller_.screenControllers()->size(), 3U);

    // Without any display listed, and after a failed query, all stay as they are.
    hardware_.lists = false;
    ++hardware_.generation;
    controller_.adjustScreenControllers();
    EXPECT_EQ(controller_.screenControllers()->size(), 3U);
}

TEST_F(AppController, AnUnpluggedDisplayKeepsItsControllerUntilOff) {
    controller_.applicationDidFinishLaunching();
    hardware_.remove("D2");
    center_.post(NSApplicationDidChangeScreenParametersNotification);
    EXPECT_EQ(controller_.screenControllers()->size(), 3U);
    hardware_.ramps[2] = identityRamp(256); // the driver resets it
    hardware_.add("D2", 2);
    center_.post(NSApplicationDidChangeScreenParametersNotification);
    EXPECT_EQ(shown(), "iii");
    controller_.toggleGlobalEffect();
    EXPECT_EQ(shown(), "ooo");
    controller_.updateEffect();
    controller_.adjustScreenControllers();
    controller_.setScreenControllerActive(true, id(0));
    EXPECT_EQ(shown(), "ooo");
}

TEST_F(AppController, AModeChangeAppliesAtOnceAndOnceMore) {
    controller_.applicationDidFinishLaunching();
    store_->setBool(false, "ContinuouslyApply");
    const auto reset = [&] { hardware_.ramps[1] = identityRamp(256); };
    reset();
    NDDisplayReconfigurationCallback(id(0), 0xFFFFFFF7, &controller_);
    EXPECT_EQ(shown(), "oii");
    callReconfigurationCallbacks({{id(0), id(1)}, false, {}});
    EXPECT_EQ(shown(), "iii");
    reset();
    runLoop_.advance(49);
    EXPECT_EQ(shown(), "oii");
    runLoop_.advance(1);
    EXPECT_EQ(shown(), "iii");
    reset();
    runLoop_.advance(10000);
    EXPECT_EQ(shown(), "oii");
    callReconfigurationCallbacks({{}, true, {id(0)}});
    EXPECT_EQ(shown(), "oii");

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

TEST_F(AppController, ReopeningTogglesIfTheUserWantsThat) {
    controller_.applicationDidFinishLaunching();
    EXPECT_FALSE(controller_.applicationShouldHandleReopen(true));
    EXPECT_FALSE(controller_.effectActive());
    EXPECT_FALSE(store_->boolForKey("EffectActive"));
    store_->setBool(false, "ActivateOnClick");
    controller_.applicationShouldHandleReopen(false);
    EXPECT_FALSE(controller_.effectActive());
}

TEST_F(AppController, TheOlderSingleDisplayIsResetUnlessOnline) {
    store_->setInteger((std::int64_t{1} << 32) + id(1), "AffectedScreens");
    EXPECT_EQ(controller_.validatedDisplayID(), id(1));
    store_->setInteger(77, "AffectedScreens");
    EXPECT_EQ(controller_.validatedDisplayID(), 0U);
    EXPECT_EQ(store_->integerForKey("AffectedScreens"), 0);
}

TEST_F(AppController, AffectedScreenSetReadsEitherKey) {
    const auto ints = [](std::initializer_list<std::int64_t> numbers) {
        PropertyArray array;
        array.assign(numbers.begin(), numbers.end());
        return array;
    };
    const auto read = [&] { return affectedScreenSet(*store_); };
    using Set = std::vector<double>;
    EXPECT_EQ(read(), Set{});
    store_->setInteger(5, "AffectedScreens");
    EXPECT_EQ(read(), Set{5});
    store_->setObject(ints({3, 1, 3}), "AffectedScreenSet");
    EXPECT_EQ(read(), (Set{1, 3, 3}));
    store_->setObject(ints({}), "AffectedScreenSet");
    EXPECT_EQ(read(), Set{});
    for (const PropertyValue& bad : {PropertyValue(std::string("x")), PropertyValue(true)}) {
        store_->setObject(PropertyArray{std::int64_t{1}, bad}, "AffectedScreenSet");
        EXPECT_EQ(read(), Set{5});
    }
    store_->setInteger(std::int64_t{1} << 32, "AffectedScreens");
    EXPECT_EQ(read(), Set{});
    store_->setInteger(0xFFFFFFFF, "AffectedScreens");
    EXPECT_EQ(read(), Set{-1}); // signed storage: never equals a display

    // A first choice carries the older key's display over into the set.
    store_->removeObjectForKey("AffectedScreenSet");
    store_->setInteger(5, "AffectedScreens");
    chooseAffectedScreen(*store_, 4);
    EXPECT_EQ(*store_->arrayForKey("AffectedScreenSet"), ints({4, 5}));
    EXPECT_EQ(store_->integerForKey("AffectedScreens"), 4);
    chooseAffectedScreen(*store_, 5);
    EXPECT_EQ(*store_->arrayForKey("AffectedScreenSet"), ints({4}));
    EXPECT_EQ(store_->integerForKey("AffectedScreens"), 5);
}

TEST_F(AppController, SettingsRefuseWhatTheyCannotHold) {
    const auto accepts = [](const char* key, const PropertyValue& value) {
        return !problemWith(*settingNamed(key), value);
    };
    const std::int64_t one = 1;
    EXPECT_TRUE(accepts("UseHotKey", true));
    EXPECT_FALSE(accepts("UseHotKey", one));
    EXPECT_TRUE(accepts("HotKeyCode", one));
    EXPECT_FALSE(accepts("HotKeyCode", 1.0));
    EXPECT_TRUE(accepts("NDDimEffectLevel", -3.5));
    EXPECT_FALSE(accepts("NDDimEffectLevel", one));
    EXPECT_FALSE(accepts("NDDimEffectLevel", std::numeric_limits<double>::quiet_NaN()));
    EXPECT_FALSE(accepts("NDDimEffectLevel", 1e300)); // no finite single
    EXPECT_TRUE(accepts("NDGroupEffect", PropertyArray{std::string("NDDimEffect")}));
    EXPECT_FALSE(accepts("NDGroupEffect", PropertyArray{std::string("NDGroupEffect")}));
    EXPECT_TRUE(accepts("AffectedScreenSet", PropertyArray{one}));
    EXPECT_FALSE(accepts("AffectedScreenSet", PropertyArray{std::int64_t{1} << 31}));
    EXPECT_EQ(settingNamed("NoSuchKey"), nullptr);
}

} // namespace

} // namespace nocturo
