// Changes that take their time, as displays show them and as everybody else sees them.

#include "app/keep_colors.h"
#include "automation_fixture.h"
#include "displays/display_gamma.h"
#include "displays/fading_hardware.h"
#include "effects/dim_effect.h"
#include "settings/settings_keys.h"

#include <cmath>

using namespace nocturo;

/// Two displays, the second one smaller, whose changes fade for a second once that is set.
struct FadesTest : DisplayServicesFixture {
    FadesTest() {
        add("D1", 1, colors(1, 1024));
        add("D2", 2, identityRamp(256));
        services_ = std::make_unique<RampDisplayServices>(
            std::make_unique<FadingHardware>(
                std::move(ownedHardware_), fades_, runLoop_,
                [this] { return std::chrono::steady_clock::time_point(runLoop_.now()); }),
            nullptr, &runLoop_);
        setDisplayServices(services_.get());
        chooseEffects({"NDInvertEffect"});
        store_->setBool(false, kActivateAtLaunch);
        controller_.setFades(&fades_);
        controller_.applicationDidFinishLaunching();
        own_ = hardware_.ramps;
        controller_.setEffectActive(true, true);
        inverted_ = hardware_.ramps;
        controller_.setEffectActive(false, true);
        store_->setFloat(1, kFadeSeconds.key);
        hardware_.writes.clear();
    }
    ~FadesTest() override { services_.reset(); } // before what it refers to

    /// Of an entry of the second display, from 0 black to 1: the L* of sRGB's light.
    double lightness(std::size_t entry) const {
        const double signal = hardware_.ramps.at(2).red.at(entry) / 65535.0;
        const double light =
            signal <= 0.04045 ? signal / 12.92 : std::pow((signal + 0.055) / 1.055, 2.4);
        return light > 216.0 / 24389 ? 1.16 * std::cbrt(light) - 0.16 : light * 243.89 / 27;
    }
    Fades fades_;
    FakeRunLoop runLoop_;
    NotificationCenter workspace_;
    NotificationCenter distributed_;
    NotificationCenters centers_{center_, workspace_, distributed_};
    NDAppController controller_{*store_, centers_, runLoop_};
    std::map<std::uint32_t, Ramp> own_;
    std::map<std::uint32_t, Ramp> inverted_; // as it is at once
    const std::map<std::uint32_t, Ramp> black_{{1, Ramp(1024)}, {2, Ramp(256)}};
};

TEST_F(FadesTest, GoesInEvenStepsOfLightnessToTheVeryRamp) {
    const std::size_t timers = runLoop_.pendingTimers();
    const double step = (lightness(200) - lightness(55)) * 0.016;
    double before = lightness(200);
    controller_.setEffectActive(true, true); // its first step waits for nothing
    for (int frame = 1; frame <= 62; ++frame) {
        EXPECT_NEAR(before - lightness(200), step, 0.0001) << frame;
        EXPECT_EQ(hardware_.writes.size(), 2U * static_cast<unsigned>(frame));
        before = lightness(200);
        runLoop_.advance(frame < 62 ? 16 : 0);
    }
    EXPECT_FALSE(hardware_.ramps == inverted_);
    runLoop_.advance(16);
    EXPECT_TRUE(hardware_.ramps == inverted_);
    EXPECT_EQ(runLoop_.pendingTimers(), timers + 1) << "that of the re-application";

    hardware_.writes.clear();
    controller_.setEffectActive(false, true);
    runLoop_.advance(1000);
    EXPECT_TRUE(hardware_.ramps == own_);
    EXPECT_EQ(hardware_.writes.size(), 2U * 63);
    EXPECT_EQ(runLoop_.pendingTimers(), timers);
}

TEST_F(FadesTest, AnotherChangeStartsFromWhatIsShown) {
    controller_.setEffectActive(true, true);
    runLoop_.advance(500);
    const double halfWay = lightness(200);
    controller_.setEffectActive(false, true);
    NDDimEffect::setLevel(-1);
    controller_.setEffectActive(true, true);
    chooseEffects({"NDDimEffect"});
    EXPECT_EQ(lightness(200), halfWay) << "a frame has one write";
    const std::size_t writes = hardware_.writes.size();
    runLoop_.advance(16);
    EXPECT_EQ(hardware_.writes.size(), writes + 2);
    EXPECT_LT(lightness(200), halfWay);
    EXPECT_GT(lightness(200), halfWay * 0.9);
    runLoop_.advance(1000);
    EXPECT_TRUE(hardware_.ramps == black_);
    controller_.setEffectActive(false, true);
    runLoop_.advance(1000);
    EXPECT_TRUE(hardware_.ramps == own_);
}

TEST_F(FadesTest, APointOfTheScheduleComesOverMinutes) {
    using namespace std::chrono_literals;
    const TimeZone zone("UTC");
    const TemporaryDirectory home;
    FakeWallClock clock(AutomationTest::kNoon);
    Looks looks("/nowhere", home / "looks", center_);
    Automation automation(*store_, center_, clock, runLoop_, looks, home.path());
    controller_.setAutomation(&automation);
    automation.start();
    const double light = lightness(200);
    store_->setFloat(30, kScheduleFadeMinutes.key);
    store_->setObject(PropertyArray{"13:00 off", "14:00 Gone"}, kSchedule);
    store_->setBool(true, kUseSchedule);
    controller_.setEffectActive(true, true);
    runLoop_.advance(1000);
    EXPECT_TRUE(hardware_.ramps == inverted_) << "by hand";
    const double dark = lightness(200);
    hardware_.writes.clear();
    clock.passTo(AutomationTest::kNoon + 1h);
    runLoop_.advance(15 * 60'000);
    EXPECT_NEAR(lightness(200), (light + dark) / 2, 0.002);
    EXPECT_NEAR(static_cast<double>(hardware_.writes.size()), 600, 4);
    runLoop_.advance(15 * 60'000);
    EXPECT_TRUE(hardware_.ramps == own_);
    controller_.setAutomation(nullptr);
}

TEST_F(FadesTest, NobodySeesAStepOnTheWay) {
    hardware_.keptBits = 0xFF00; // what is shown is never what was written
    store_->setFloat(5, kFadeSeconds.key);
    controller_.setEffectActive(true, true);
    ZQGammaCurve curve = ZQDisplayGammaCurve(id("D2"));
    EXPECT_EQ(curve.redTable[0], 1.0F);
    runLoop_.advance(2000);
    const std::size_t writes = hardware_.writes.size();
    const std::vector<CGDirectDisplayID> displays{id("D1"), id("D2")};
    EXPECT_EQ(services_->takeBackDisturbedDisplays(displays), 0U);
    controller_.updateEffect();
    EXPECT_EQ(hardware_.writes.size(), writes) << "applied again, it goes on as it was";
    controller_.setEffectActive(false, true);
    runLoop_.advance(1000);
    controller_.setEffectActive(true, true); // captures
    runLoop_.advance(4900);
    hardware_.keptBits = 0xFFFF;
    runLoop_.advance(100);
    EXPECT_TRUE(hardware_.ramps == inverted_);
}

TEST_F(FadesTest, GivesTheDisplaysBackAtOnce) {
    controller_.setEffectActive(true, true);
    distributed_.post(kScreenSaverDidStartNotification);
    EXPECT_TRUE(hardware_.ramps == own_);
    distributed_.post(kScreenSaverDidStopNotification);
    EXPECT_TRUE(hardware_.ramps == inverted_);
    controller_.setEffectActive(false, true);
    runLoop_.advance(100);
    controller_.giveDisplaysBack(); // where the way leads already
    EXPECT_TRUE(hardware_.ramps == own_);
    controller_.setEffectActive(true, true);
    runLoop_.advance(100);
    controller_.setEffectActive(false, true);
    controller_.applicationWillTerminate();
    EXPECT_TRUE(hardware_.ramps == own_);
}

TEST_F(FadesTest, GoesBackFromUnreadableColorsAtOnce) {
    const KeepColors question(controller_, *store_, center_, runLoop_);
    controller_.setEffectActive(true, true);
    runLoop_.advance(1000);
    NDDimEffect::setLevel(-1);
    chooseEffects({"NDDimEffect"});
    runLoop_.advance(10049);
    EXPECT_TRUE(hardware_.ramps == black_);
    runLoop_.advance(1);
    EXPECT_TRUE(hardware_.ramps == inverted_);
}

TEST_F(FadesTest, ADisplayThatComesOrLosesItsSizeIsWrittenAtOnce) {
    controller_.setEffectActive(true, true);
    hardware_.add("D3", 3);
    center_.post(NSApplicationDidChangeScreenParametersNotification);
    EXPECT_EQ(hardware_.ramps.at(3), inverted_.at(2));
    hardware_.heads[1].rampSize = 512;
    hardware_.ramps[2] = identityRamp(512);
    hardware_.setMode("D2");
    controller_.updateEffect();
    runLoop_.advance(1000);
    EXPECT_EQ(hardware_.ramps.at(2).size(), 512U);
    EXPECT_EQ(hardware_.ramps.at(1), inverted_.at(1));
}
