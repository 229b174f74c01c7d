// What the application does at its launch, with its settings and when the desktop tells it
// something.

#include "app/disturbance_watch.h"
#include "app/flux_check.h"
#include "app/look_picker.h"
#include "app/user_interface.h"
#include "app/wake_repeater.h"
#include "controller_fixture.h"
#include "documents/chosen_look.h"
#include "documents/looks.h"
#include "session/installed_applications.h"
#include "temporary_directory.h"

using namespace nocturo;

using testing::ElementsAre;
using testing::IsEmpty;

/// An application controller over three displays, with the invert effect selected.
struct AppController : ControllerFixture {
    AppController() : ControllerFixture(3) { chooseEffects({"NDInvertEffect"}); }

    /// One letter per CRTC: i inverted, o its own ramp.
    std::string shown() const {
        std::string letters;
        for (const auto& [crtc, ramp] : hardware_.ramps) {
            letters += ramp.red.front() > ramp.red.back() ? 'i' : 'o';
        }
        return letters;
    }
    /// The displays lose the effect, as after a driver's reset.
    void resetRamps() {
        for (auto& [crtc, ramp] : hardware_.ramps) {
            ramp = identityRamp(256);
        }
    }
};

/// Everything that the launch has to do with: windows, alerts and what is installed.
struct Surroundings : UserInterface, BlindDesktop, InstalledApplications {
    void showPreferences() override { log.emplace_back("preferences"); }
    void showAboutBox() override { log.emplace_back("about"); }
    void setAboutBoxBackgroundColor(const OpaqueColor& color) override {
        log.emplace_back(color.blue == 0.84 ? "about color" : "another color");
    }
    bool preferencesVisible() const override { return false; }
    std::string whyNoWindows() override { return {}; }
    bool openEffectFile(const std::string& /*path*/) override { return false; }
    bool applyEffectFile(const std::string& /*path*/) override { return false; }
    Result<void> saveEffectFile(const std::string& /*path*/) override { return {}; }
    std::vector<std::uint8_t> previewPicture(CGDirectDisplayID /*display*/) override { return {}; }

    void showAlert(const Alert& alert, std::function<void(AlertAnswer answer)> answered) override {
        alerts.push_back(alert);
        log.push_back(std::string("alert ") + alert.alternateButton);
        whileAsking();
        answered(answer);
    }
    void setActivateItemTitles(bool active) override { log.emplace_back(active ? "on" : "off"); }
    void setStatusItemShown(bool shown) override { log.emplace_back(shown ? "item" : "no item"); }
    void setStatusItemImage(bool active) override {
        log.emplace_back(active ? "image on" : "image off");
    }
    void makeScreenMenus() override { log.emplace_back("screen menus"); }

    std::optional<InstalledApplication>
    applicationWithBundleIdentifier(std::string_view identifier) const override {
        return identifier == "org.herf.Flux"
                   ? std::optional(InstalledApplication{"f.lux applet", "fluxgui"})
                   : std::nullopt;
    }

    AlertAnswer answer = AlertAnswer::alternateButton;
    std::function<void()> whileAsking = [] {};
    std::vector<Alert> alerts;
    std::vector<std::string> log;
};

struct Launch : AppController {
    Launch() {
        controller_.setUserInterface(&around_);
        controller_.setDesktopFace(&around_);
    }

    /// Whether the launch came to its end.
    bool launches() {
        bool came = false;
        controller_.applicationDidFinishLaunching([&](bool launched) { came = launched; });
        return came;
    }

    Surroundings around_;
};

TEST_F(Launch, GoesStepByStep) {
    controller_.setInstalledApplications(&around_);
    around_.answer = AlertAnswer::defaultButton; // continue, and open the preferences
    around_.whileAsking = [&] {
        controller_.updateStatusItem(); // not yet
        controller_.warnIfNoEffects();  // not a second time
    };
    chooseEffects({});
    store_->setInteger(1, "ShowStatusItem");
    center_.addObserver(this, NSUserDefaultsDidChangeNotification, [&] {
        around_.log.emplace_back(store_->boolForKey("EffectActive") ? "saved on" : "saved");
    });
    EXPECT_TRUE(launches());
    // A write while the launch goes on makes no status item yet.
    EXPECT_THAT(around_.log,
                ElementsAre("about color", "alert Quit", "saved", "saved on", "on", "alert Cancel",
                            "preferences", "item", "image on", "screen menus"));
    center_.removeObserver(this);
    around_.log.clear();
    center_.post(NSApplicationDidFinishLaunchingNotification); // heard no more
    EXPECT_THAT(around_.log, IsEmpty());

    for (const std::int64_t value : {1, 0}) {
        store_->setInteger(value, "ShowStatusItem");
        controller_.activateEffect();
    }
    EXPECT_THAT(around_.log, ElementsAre("off", "image off", "no item", "on"));
}

TEST_F(Launch, AsksNobodyAtALoginAndLeavesAWayToTheWindow) {
    chooseEffects({});
    controller_.startWithSession();
    EXPECT_TRUE(launches());
    EXPECT_THAT(around_.alerts, IsEmpty());
    const auto shownByAStart = [&] {
        around_.log.clear();
        controller_.applicationShouldHandleReopen(false);
        return around_.log;
    };
    EXPECT_THAT(shownByAStart(), ElementsAre("off", "preferences"))
        << "nothing to be seen switches";
    chooseEffects({"NDInvertEffect"});
    EXPECT_THAT(shownByAStart(), ElementsAre("on"));
    store_->setBool(false, "ActivateOnClick");
    EXPECT_THAT(shownByAStart(), ElementsAre("preferences"));
}

TEST_F(Launch, TouchesNothingBeforeTheUserContinuesWithFlux) {
    controller_.setInstalledApplications(&around_);
    const PropertyDictionary before = store_->userDomain();
    around_.whileAsking = [&] { // too early
        controller_.toggleGlobalEffect();
        controller_.setEffectActive(false, true);
    };
    EXPECT_FALSE(launches());
    EXPECT_EQ(store_->userDomain(), before);
    EXPECT_THAT(hardware_.writes, IsEmpty());

    for (const AlertAnswer answer :
         {AlertAnswer::unseen, AlertAnswer::defaultButton, AlertAnswer::defaultButton}) {
        around_.answer = answer;
        bool goesOn = false;
        NDCheckForFlux(*store_, around_, around_, [&](bool goOn) { goesOn = goOn; });
        EXPECT_TRUE(goesOn);
    }
    EXPECT_EQ(around_.alerts.size(),
              3U); // a warning that nobody saw comes again, one seen does not
}

TEST_F(AppController, WritesADisplayOnlyWhenAndAsOftenAsItLooksDifferent) {
    using Times = std::map<std::uint32_t, int>; // by CRTC
    const auto writes = [&](const std::function<void()>& act) {
        hardware_.writes.clear();
        act();
        Times each;
        for (const auto& [crtc, ramp] : hardware_.writes) {
            ++each[crtc];
        }
        return each;
    };
    const Times none;
    const Times once{{1, 1}, {2, 1}, {3, 1}};
    NDAppController savedOff(*store_, centers_, runLoop_);
    store_->setBool(false, "ActivateAtLaunch");
    EXPECT_EQ(writes([&] { savedOff.applicationDidFinishLaunching(); }), none);
    hardware_.ramps[2] = colors(1); // by somebody else, while nothing is on
    EXPECT_EQ(writes([&] { savedOff.setEffectActive(false, true); }), (Times{{2, 1}}));

    store_->setBool(true, "ActivateAtLaunch");
    EXPECT_EQ(writes([&] { controller_.applicationDidFinishLaunching(); }), once);
    EXPECT_EQ(writes([&] { store_->setFloat(0.25F, "NDDimEffectLevel"); }), once);
    EXPECT_EQ(writes([&] {
                  const DefaultsStore::Batch document(*store_);
                  chooseEffects({"NDDimEffect"});
                  store_->setFloat(0.5F, "NDDimEffectLevel");
                  store_->setFloat(90, "NDColorFilterEffectHue");
              }),
              once);
    EXPECT_EQ(writes([&] {
                  store_->setBool(false, "ActivateOnClick");
                  store_->setInteger(0, "ShowStatusItem");
                  store_->setObject(std::string("/home"), "NothingOfOurs");
              }),
              none);
    EXPECT_EQ(writes([&] { controller_.toggleGlobalEffect(); }), once);
    EXPECT_EQ(shown(), "ooo");
}

TEST_F(AppController, ThePickOfADisplayReplacesTheOlderChoiceInOneStep) {
    controller_.applicationDidFinishLaunching();
    store_->setInteger(static_cast<std::int32_t>(id(0)), "AffectedScreens");
    EXPECT_EQ(shown(), "ioo");
    hardware_.writes.clear();
    chooseAffectedScreen(*store_, static_cast<std::int32_t>(id(1)));
    EXPECT_EQ(shown(), "iio");
    for (const auto& [crtc, ramp] : hardware_.writes) {
        EXPECT_NE(ramp, identityRamp(256)) << crtc;
    }
}

TEST_F(AppController, AppliesAgainEverySixSecondsWhileAskedTo) {
    controller_.applicationDidFinishLaunching();
    hardware_.ramps[1] = identityRamp(256);
    runLoop_.advance(5999);
    EXPECT_EQ(shown(), "oii");
    store_->setFloat(0, "NDDimEffectLevel"); // a change applies at once, in the timer's own phase
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
    EXPECT_EQ(read(PropertyArray{1LL, "x"}, 5), Set{5});
    EXPECT_EQ(read(PropertyArray{1LL, true}, 5), Set{5});
    EXPECT_EQ(read(noArray, std::int64_t{1} << 32), Set{});
    EXPECT_EQ(read(noArray, 0xFFFFFFFF), Set{-1}); // signed storage: never equals a display
}

TEST_F(AppController, TheUserHasTheLastWordOverTheScreenSaver) {
    const auto afterSaver = [&](const char* what) {
        distributed_.post(std::string("com.apple.screensaver.did") + what);
        return shown();
    };
    controller_.applicationDidFinishLaunching();
    EXPECT_EQ(afterSaver("stop"), "iii");     // of one that nobody saw start
    controller_.setEffectActive(true, false); // a second registration
    EXPECT_EQ(afterSaver("start"), "ooo");
    controller_.toggleGlobalEffect();
    controller_.toggleGlobalEffect();
    EXPECT_FALSE(store_->boolForKey("EffectActive"));
    EXPECT_EQ(afterSaver("stop"), "ooo");
    EXPECT_EQ(afterSaver("start") + afterSaver("stop"), "oooooo"); // nothing to resume
}

TEST_F(AppController, AModeChangeIsAnsweredAtOnceAndOnceMore) {
    controller_.applicationDidFinishLaunching();
    resetRamps();
    callReconfigurationCallbacks({{id(0)}, false, {}});
    EXPECT_EQ(shown(), "iii");
    resetRamps(); // as drivers do late
    runLoop_.advance(49);
    EXPECT_EQ(shown(), "ooo");
    runLoop_.advance(1);
    EXPECT_EQ(shown(), "iii");
}

TEST_F(AppController, ColorProfilesAreFollowedUntilTheFirstSwitchOff) {
    controller_.applicationDidFinishLaunching();
    resetRamps();
    distributed_.post("NSScreenColorSpaceDidChangeNotification");
    EXPECT_EQ(shown(), "iii");
    controller_.setEffectActive(false, false);
    controller_.setEffectActive(true, false);
    resetRamps();
    distributed_.post("NSScreenColorSpaceDidChangeNotification");
    EXPECT_EQ(shown(), "ooo");
}

TEST_F(AppController, AWakeIsFollowedByAFewLateReapplications) {
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
    EXPECT_THAT(times, ElementsAre(1, 3, 8, 15, 30));
    workspace_.post("NSWorkspaceDidWakeNotification");
    controller_.setEffectActive(false, false);
    EXPECT_EQ(runLoop_.pendingTimers(), 0U);
}

TEST_F(AppController, OverwrittenRampsAreCounted) {
    std::function<void(const std::string&)> answer;
    DisturbanceWatch watch(controller_, center_, [&](auto reply) { answer = std::move(reply); });
    controller_.applicationDidFinishLaunching();
    runLoop_.advance(12000);
    EXPECT_EQ(watch.count(), 0U);
    EXPECT_FALSE(answer); // nobody is looked for in vain

    hardware_.ramps[3].green[7] ^= 1;
    runLoop_.advance(6000);
    EXPECT_EQ(watch.count(), 1U);

    // What is done between the ticks by ourselves, or to a display that is not there or not
    // affected, disturbs nobody.
    chooseEffects({"NDDimEffect"});
    hardware_.remove("D2");
    hardware_.ramps[2] = Ramp(256);
    chooseAffectedScreen(*store_, static_cast<std::int32_t>(id(0)));
    hardware_.ramps[3] = colors(5);
    runLoop_.advance(6000);
    EXPECT_EQ(watch.count(), 1U);
    EXPECT_EQ(hardware_.ramps[3], colors(5));

    hardware_.keptBits = 0xFFC0; // by hardware that keeps fewer
    store_->setFloat(-0.25F, "NDDimEffectLevel");
    runLoop_.advance(60000);
    EXPECT_EQ(watch.count(), 1U);
}

TEST_F(AppController, ALookIsPutOnWithOneClickAndTakenOffWithTheNext) {
    store_->setBool(false, "ActivateAtLaunch");
    controller_.applicationDidFinishLaunching();
    const TemporaryDirectory home;
    Looks looks(home / "shipped", home / "own", center_);
    ASSERT_TRUE(looks.save("Plain", {}));
    ASSERT_TRUE(looks.save("Negative", {.invertScreen = true}));
    ChosenLook chosen(looks);
    LookPicker picker(controller_, chosen);
    const auto after = [&](const char* name) {
        picker.pick(name);
        return (controller_.effectActive() ? "on " : "off ") + shown();
    };
    EXPECT_EQ(after("Negative"), "on iii") << "it was chosen, but could not be seen";
    EXPECT_EQ(after("Negative"), "off ooo") << "nothing was there before";
    EXPECT_EQ(after("Plain"), "on ooo");
    EXPECT_EQ(after("Negative"), "on iii");
    EXPECT_EQ(after("Negative"), "off ooo") << "it was the first that switched on";
    controller_.setEffectActive(true, true);
    EXPECT_EQ(after("Negative"), "on iii");
    EXPECT_EQ(after("Negative"), "on ooo");
}
