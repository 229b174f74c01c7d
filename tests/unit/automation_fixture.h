#pragma once

#include "automation/automation.h"
#include "automation/rules_setting.h"
#include "controller_fixture.h"
#include "documents/looks.h"
#include "fake_wall_clock.h"
#include "temporary_directory.h"

#include <ctime>

namespace nocturo {

/// The time zone of this process while it lives.
struct TimeZone {
    explicit TimeZone(const char* name) {
        setenv("TZ", name, 1);
        tzset();
    }
    ~TimeZone() { unsetenv("TZ"); }
};

constexpr Moment at(std::chrono::year_month_day day, std::chrono::seconds time) {
    return std::chrono::sys_days(day) + time;
}

/// "hand on Evening 7" and the like: who, whether on, the look, until when.
inline std::string told(const Ruling& ruling) {
    return std::string(nameOf(ruling.by)) + (ruling.isOn ? " on" : " off") +
           (ruling.look.empty() ? "" : " " + ruling.look) +
           (ruling.until ? " " + std::to_string(ruling.until->time_since_epoch().count()) : "");
}

/// A launched controller over one display, with the invert effect on.
struct AutomationTest : ControllerFixture {
    static constexpr auto kNoon = at(std::chrono::year(2026) / 6 / 1, std::chrono::hours(12));

    AutomationTest() : ControllerFixture(1) {
        chooseEffects({"NDInvertEffect"});
        controller_.setAutomation(&automation_);
        automation_.start();
        controller_.applicationDidFinishLaunching();
    }
    std::string told() const { return nocturo::told(controller_.ruling()); }
    bool isInverted() const {
        const Ramp& ramp = hardware_.ramps.at(1);
        return ramp.red.front() > ramp.red.back();
    }

    const TimeZone zone_{"UTC"};
    TemporaryDirectory state_;
    FakeWallClock clock_{kNoon};
    Looks looks_{"/nowhere", state_ / "looks", center_};
    Automation automation_{*store_, center_, clock_, runLoop_, looks_, state_.path()};
};

/// With two displays and a desktop whose windows are what the test says.
struct RulesTest : AutomationTest {
    struct Told : Foreground, Games {
        explicit Told(RulesTest& test) : test_(test) { ++test_.listening_; }
        ~Told() override { --test_.listening_; }
        bool isTold() const override { return true; }
        const InFront& inFront() const override { return test_.inFront_; }
        void displaysDidChange() override {}
        bool areRunning() const override { return test_.isGaming_; }
        RulesTest& test_;
    };
    RulesTest() {
        hardware_.addUpTo(2);
        center_.post(NSApplicationDidChangeScreenParametersNotification);
        EXPECT_TRUE(looks_.save("Dark", {.dim = true, .dimLevel = -1}));
        EXPECT_TRUE(looks_.save("Turned", {.invertScreen = true}));
        automation_.rules().setSources({[this](bool, auto changed) {
                                            changed_ = changed;
                                            return std::make_unique<Told>(*this);
                                        },
                                        [this](auto changed) {
                                            changed_ = changed;
                                            return std::make_unique<Told>(*this);
                                        }});
    }
    ~RulesTest() override { automation_.rules().stopListening(); }
    void add(const char* words) { EXPECT_TRUE(addRule(*store_, looks_, words)) << words; }
    void now(InFront inFront, bool isGaming = false) {
        inFront_ = std::move(inFront);
        isGaming_ = isGaming;
        changed_();
    }
    /// One letter a display: i inverted, b black, o its own ramp.
    std::string shown() {
        std::string letters;
        for (const std::uint32_t crtc : {1, 2}) {
            const Ramp& ramp = hardware_.ramps.at(crtc);
            letters += ramp.red.back() != 0 ? 'o' : ramp.red.front() != 0 ? 'i' : 'b';
        }
        return letters;
    }
    int listening_ = 0;
    InFront inFront_;
    bool isGaming_ = false;
    std::function<void()> changed_;
};

} // namespace nocturo
