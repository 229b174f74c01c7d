// What the application does when the desktop tells it something.

#include "app/disturbance_watch.h"
#include "app/wake_repeater.h"
#include "app_controller_fixture.h"
#include "preferences/affected_screen_set.h"

namespace nocturo {
namespace {

class DesktopEvents : public AppControllerFixture {
  protected:
    /// The displays lose the effect, as after a driver's reset.
    void resetRamps() {
        for (auto& [crtc, ramp] : hardware_.ramps) {
            ramp = identityRamp(256);
        }
    }
    /// What the displays show after a reset and then that notification.
    std::string shownAfter(NotificationCenter& center, const char* name) {
        resetRamps();
        center.post(name);
        return shown();
    }
    std::string afterSaver(const char* what) {
        distributed_.post(std::string("com.apple.screensaver.did") + what);
        return shown();
    }
    bool saved() const { return store_->boolForKey("EffectActive"); }
};

TEST_F(DesktopEvents, TheEffectIsAppliedAgain) {
    const char* profileChanged = "NSScreenColorSpaceDidChangeNotification";
    store_->setBool(false, "ActivateAtLaunch");
    controller_.applicationDidFinishLaunching(); // starts off, which is no switch-off afterwards
    controller_.setEffectActive(true, false);
    EXPECT_EQ(shownAfter(distributed_, profileChanged), "iii");
    for (const char* name :
         {"NSWorkspaceDidWakeNotification", "NSWorkspaceSessionDidBecomeActiveNotification",
          "NSWorkspaceDidTerminateApplicationNotification"}) {
        EXPECT_EQ(shownAfter(workspace_, name), "iii") << name;
        EXPECT_EQ(shownAfter(distributed_, name), "ooo") << name;
    }
    controller_.setEffectActive(false, false);
    controller_.setEffectActive(true, false);
    EXPECT_EQ(shownAfter(workspace_, "NSWorkspaceDidWakeNotification"), "iii");
    EXPECT_EQ(shownAfter(distributed_, profileChanged), "ooo") << "only until a switch-off";
}

TEST_F(DesktopEvents, TheScreenSaverPausesTheEffect) {
    controller_.applicationDidFinishLaunching();
    EXPECT_EQ(afterSaver("stop"), "iii"); // of one that nobody saw start
    for (int round = 0; round < 2; ++round) {
        controller_.setEffectActive(true, false); // a second registration
        EXPECT_EQ(afterSaver("start"), "ooo");
        EXPECT_TRUE(saved());
        EXPECT_EQ(afterSaver("stop"), "iii");
        EXPECT_TRUE(saved());
    }
    store_->setBool(false, "NDDeactivateForScreenSaver");
    EXPECT_EQ(afterSaver("start"), "iii");
    EXPECT_EQ(afterSaver("stop"), "iii");
}

TEST_F(DesktopEvents, TheUserHasTheLastWordWhilePaused) {
    controller_.applicationDidFinishLaunching();
    afterSaver("start");
    controller_.toggleGlobalEffect();
    EXPECT_EQ(shown(), "iii");
    EXPECT_EQ(afterSaver("stop"), "iii");

    afterSaver("start");
    controller_.toggleGlobalEffect();
    controller_.toggleGlobalEffect();
    EXPECT_FALSE(saved());
    EXPECT_EQ(afterSaver("stop"), "ooo");
    afterSaver("start");
    EXPECT_EQ(afterSaver("stop"), "ooo"); // nothing to pause, nothing to resume
}

TEST_F(DesktopEvents, AWakeIsFollowedByAFewLateReapplications) {
    store_->setBool(false, "ContinuouslyApply");
    controller_.applicationDidFinishLaunching();
    const WakeRepeater repeater(controller_, centers_, runLoop_);
    workspace_.post("NSWorkspaceDidWakeNotification");
    std::vector<int> times;
    for (int second = 1; second <= 60; ++second) {
        resetRamps();
        runLoop_.advance(1000);
        if (shown() == "iii") {
            times.push_back(second);
        }
    }
    EXPECT_EQ(times, (std::vector<int>{1, 3, 8, 15, 30}));

    workspace_.post("NSWorkspaceDidWakeNotification");
    runLoop_.advance(1000);
    workspace_.post("NSWorkspaceDidWakeNotification"); // starts anew
    EXPECT_EQ(runLoop_.pendingTimers(), 5U);
    controller_.setEffectActive(false, false);
    EXPECT_EQ(runLoop_.pendingTimers(), 0U);
}

TEST_F(DesktopEvents, OverwrittenRampsAreCounted) {
    std::function<void(const std::string&)> answer;
    DisturbanceWatch watch(controller_, center_, [&](auto reply) { answer = std::move(reply); });
    int changes = 0;
    center_.addObserver(this, kDisturbanceNotification, [&] { ++changes; });
    controller_.applicationDidFinishLaunching();
    runLoop_.advance(12000);
    EXPECT_EQ(watch.count(), 0U);
    EXPECT_FALSE(answer); // nobody is looked for in vain

    hardware_.ramps[2] = identityRamp(256);
    hardware_.ramps[3].green[7] ^= 1;
    runLoop_.advance(6000);
    EXPECT_EQ(shown(), "iii");
    EXPECT_EQ(watch.count(), 2U);
    ASSERT_TRUE(answer);
    answer("redshift");
    answer("redshift");
    EXPECT_EQ(watch.disturber(), "redshift");
    EXPECT_EQ(changes, 2);

    // What is done between the ticks by ourselves, or to a display that is not there or not
    // affected, disturbs nobody.
    store_->setObject(PropertyArray{std::string("NDDimEffect")}, "NDGroupEffect");
    hardware_.remove("D2");
    hardware_.ramps[2] = Ramp(256);
    chooseAffectedScreen(*store_, static_cast<std::int32_t>(id(0)));
    const Ramp another(256);
    hardware_.ramps[3] = another;
    runLoop_.advance(6000);
    EXPECT_EQ(watch.count(), 2U);
    EXPECT_EQ(hardware_.ramps[3], another);
}

TEST_F(DesktopEvents, HardwareThatKeepsFewerBitsIsNoDisturbance) {
    hardware_.keptBits = 10;
    const DisturbanceWatch watch(controller_, center_, [](const auto&) {});
    store_->setObject(PropertyArray{std::string("NDDimEffect")}, "NDGroupEffect");
    controller_.applicationDidFinishLaunching();
    runLoop_.advance(60000);
    EXPECT_EQ(watch.count(), 0U);
}

} // namespace
} // namespace nocturo
