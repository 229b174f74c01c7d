// What happens by itself, and who wins.

#include "automation/automation.h"

#include "app/keep_colors.h"
#include "app/look_picker.h"
#include "app/looks_menu.h"
#include "app/state_sentence.h"
#include "automation/display_looks_setting.h"
#include "automation/filled_displays.h"
#include "automation/rules_setting.h"
#include "automation/schedule_day.h"
#include "automation/schedule_setting.h"
#include "automation/time_zone_place.h"
#include "base/local_time.h"
#include "controller_fixture.h"
#include "documents/chosen_look.h"
#include "documents/looks.h"
#include "fake_wall_clock.h"
#include "temporary_directory.h"

#include <ctime>

using namespace nocturo;
using namespace std::chrono;

/// The time zone of this process while it lives.
struct TimeZone {
    explicit TimeZone(const char* name) {
        setenv("TZ", name, 1);
        tzset();
    }
    ~TimeZone() { unsetenv("TZ"); }
};

constexpr Moment at(year_month_day day, seconds time) {
    return sys_days(day) + time;
}

/// "hand on Evening 7" and the like: who, whether on, the look, until when.
std::string told(const Ruling& ruling) {
    return std::string(nameOf(ruling.by)) + (ruling.isOn ? " on" : " off") +
           (ruling.look.empty() ? "" : " " + ruling.look) +
           (ruling.until ? " " + std::to_string(ruling.until->time_since_epoch().count()) : "");
}

TEST(WhoWins, IsOneAnswerForEveryCombination) {
    const Claim off{false, {}, Moment(7s)};
    const Claim evening{true, "Evening", Moment(7s)};
    const Claim pause{false, {}, Moment(3s)};
    const Claim rule{true, "Reading", {}};
    EXPECT_EQ(told(whoWins({})), "settings off");
    EXPECT_EQ(told(whoWins({.hand = {true, true}, .isSwitchedOn = true})), "settings on");
    EXPECT_EQ(told(whoWins({.schedule = evening})), "schedule on Evening 7");
    EXPECT_EQ(told(whoWins({.schedule = off, .isSwitchedOn = true})), "schedule off 7");
    EXPECT_EQ(told(whoWins({.rule = rule, .schedule = evening})), "rule on Reading");
    EXPECT_EQ(told(whoWins({.pause = pause, .rule = rule, .schedule = evening})), "pause off 3");
    EXPECT_EQ(told(whoWins({.hand = {false, false}, .schedule = evening})), "hand off 7");
    EXPECT_EQ(told(whoWins({.hand = {true, false}, .schedule = off})), "hand on 7");
    EXPECT_EQ(told(whoWins({.hand = {true, false}, .schedule = evening})), "schedule on Evening 7");
    EXPECT_EQ(told(whoWins({.hand = {{}, true}, .schedule = evening})), "hand on 7");
    EXPECT_EQ(told(whoWins({.hand = {{}, true}, .schedule = off})), "schedule off 7");
    EXPECT_EQ(told(whoWins({.hand = {{}, true}, .rule = rule, .schedule = evening})), "hand on 7");
    EXPECT_EQ(told(whoWins({.hand = {false, false, true}, .rule = rule, .schedule = evening})),
              "hand off");
    EXPECT_EQ(told(whoWins({.look = "Own", .isSwitchedOn = true})), "settings on Own");
    EXPECT_EQ(told(whoWins({.look = "Own"})), "settings off");
    EXPECT_EQ(told(whoWins({.schedule = evening, .look = "Own"})), "schedule on Evening 7");
    EXPECT_EQ(told(whoWins({.hand = {{}, true}, .schedule = evening, .look = "Own"})),
              "hand on Own 7");
}

TEST(LocalTime, FindsEveryClockTimeOnceADay) {
    const TimeZone zone("Europe/Berlin");
    constexpr auto kSpring = 2026y / March / 29; // 2:00 becomes 3:00
    constexpr auto kAutumn = 2026y / October / 25;
    EXPECT_EQ(momentOf(kSpring, 90min), at(kSpring, 30min));
    EXPECT_EQ(momentOf(kSpring, 150min), at(kSpring, 90min)) << "3:30";
    EXPECT_EQ(momentOf(kAutumn, 150min), at(kAutumn, 30min)) << "the first of two";
    EXPECT_EQ(momentOf(kAutumn, 180min), at(kAutumn, 2h));
    EXPECT_EQ(nextMomentOf(at(kSpring, 23h), 0min), at(kSpring, 46h)) << "it is 1:00 there";
    EXPECT_EQ(localDay(at(kSpring, 23h)), sys_days(kSpring) + days(1));
    EXPECT_EQ(clockText(at(kSpring, 90min), at(kSpring, 0s)), "03:30");
    EXPECT_EQ(clockText(at(kSpring, 24h), at(kSpring, 0s)), "2026-03-30 02:00");
    for (const char* wrong :
         {"", "24:00", "25:61", "7", "7:0", "7:000", "-1:00", "1:+1", "07:60"}) {
        EXPECT_FALSE(minutesFromClock(wrong)) << wrong;
    }
    EXPECT_EQ(minutesFromClock("7:05"), 425min);
}

/// A launched controller over one display, with the invert effect on.
struct AutomationTest : ControllerFixture {
    static constexpr auto kNoon = at(2026y / June / 1, 12h);

    AutomationTest() : ControllerFixture(1) {
        chooseEffects({"NDInvertEffect"});
        controller_.setAutomation(&automation_);
        automation_.start();
        controller_.applicationDidFinishLaunching();
    }
    std::string told() const { return ::told(controller_.ruling()); }
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

TEST_F(AutomationTest, APauseEndsByTheClockOrByHand) {
    EXPECT_TRUE(automation_.pause("30m"));
    EXPECT_FALSE(isInverted());
    EXPECT_EQ(controller_.ruling().until, kNoon + 30min);
    EXPECT_TRUE(store_->boolForKey(kEffectActive)) << "the user's";
    clock_.passTo(kNoon + 30min - 1s);
    EXPECT_FALSE(isInverted());
    clock_.passTo(kNoon + 30min);
    EXPECT_TRUE(isInverted());
    EXPECT_FALSE(clock_.awaited());

    EXPECT_TRUE(automation_.pause("until 12:00"));
    clock_.jumpTo(kNoon + 23h); // the machine slept
    EXPECT_EQ(told(), "pause off " + std::to_string((kNoon + 24h).time_since_epoch().count()));
    clock_.jumpTo(kNoon + 25h);
    EXPECT_TRUE(isInverted());

    EXPECT_TRUE(automation_.pause(""));
    automation_.holdPause(true);
    automation_.resume();
    EXPECT_TRUE(isInverted());
    automation_.holdPause(true);
    controller_.toggleGlobalEffect();
    EXPECT_TRUE(isInverted()) << "who switches has the last word";
    EXPECT_TRUE(automation_.pause("1h"));
    controller_.setEffectActive(false, true);
    clock_.passTo(kNoon + 30h);
    EXPECT_EQ(told(), "settings off");
}

TEST_F(AutomationTest, APauseAndTheScreenSaverDoNotWakeEachOther) {
    distributed_.post(kScreenSaverDidStartNotification);
    EXPECT_TRUE(automation_.pause("1h"));
    distributed_.post(kScreenSaverDidStopNotification);
    EXPECT_FALSE(isInverted());
    automation_.resume();
    distributed_.post(kScreenSaverDidStartNotification);
    EXPECT_TRUE(automation_.pause("1s"));
    clock_.passTo(kNoon + 1h);
    EXPECT_FALSE(isInverted());
    distributed_.post(kScreenSaverDidStopNotification);
    EXPECT_TRUE(isInverted());
    EXPECT_TRUE(automation_.pause("1s"));
    distributed_.post(kScreenSaverDidStartNotification);
    clock_.passTo(kNoon + 2h);
    EXPECT_FALSE(isInverted()) << "the saver came while the effect was off";
    distributed_.post(kScreenSaverDidStopNotification);
    EXPECT_TRUE(isInverted());
}

TEST_F(AutomationTest, APauseOutlivesTheProgram) {
    const auto restarted = [&](Moment now) {
        FakeWallClock clock(now);
        Automation next(*store_, center_, clock, runLoop_, looks_, state_.path());
        next.start();
        return ::told(next.ruling(true));
    };
    EXPECT_TRUE(automation_.pause(""));
    EXPECT_EQ(restarted(kNoon + 24h), "pause off");
    EXPECT_TRUE(automation_.pause("2h"));
    EXPECT_EQ(restarted(kNoon + 2h - 1s).substr(0, 9), "pause off");
    EXPECT_EQ(restarted(kNoon + 2h), "settings on");
    for (const char* damaged :
         {"", "<plist><dict><key>until</key><integer>-1</integer></dict></plist>",
          "<plist><dict><key>until</key><integer>9223372036854775807"
          "</integer></dict></plist>"}) {
        writeText(state_ / "pause.plist", damaged);
        EXPECT_EQ(restarted(kNoon), "settings on") << damaged;
    }
}

TEST_F(AutomationTest, WordsThatAreNoTimeArePausesOfNoLength) {
    for (const char* wrong : {"30", "m", "0m", "-5m", "5 m", "until", "until 25:61", "1h30", "367d",
                              "99999999999999999999h", "next week"}) {
        const auto answer = automation_.pause(wrong);
        ASSERT_FALSE(answer) << wrong;
        EXPECT_THAT(answer.error().text, testing::HasSubstr(wrong));
    }
    EXPECT_EQ(told(), "settings on");
    EXPECT_TRUE(automation_.pause("1d2h3m4s"));
    EXPECT_EQ(controller_.ruling().until, kNoon + 26h + 3min + 4s);
}

TEST(SchedulePoints, AreReadAndWrittenInWords) {
    for (const char* words : {"07:00 off", "sunset-00:30 Warm evening", "dawn off",
                              "dusk+12:00 Night reading", "sunrise off off"}) {
        const auto point = schedulePoint(words);
        ASSERT_TRUE(point) << words;
        EXPECT_EQ(textOf(*point), words);
    }
    for (const char* wrong : {"", "07:00", "07:00 ", "25:61 off", "noon off", "sunset-13:00 off",
                              "sunset*00:30 off", "sunset- off", " off"}) {
        EXPECT_FALSE(schedulePoint(wrong)) << wrong;
    }
    EXPECT_EQ(placeFromText("33.9S, 151.2E"), (Place{-33.9, 151.2}));
    for (const char* wrong : {"", "52", "91N 0E", "0 181", "-5S 0", "x y", "1 2 3", "nan 0"}) {
        EXPECT_FALSE(placeFromText(wrong)) << wrong;
    }
}

TEST(TimeZonePlace, IsThatOfTheZonesCity) {
    TemporaryDirectory tables;
    writeText(tables / "zone.tab", "# codes\nDE\t+5230+01322\tEurope/Berlin\n"
                                   "AQ\t-690022+0393524\tAntarctica/Syowa\n");
    writeText(tables / "tzdata.zi", "# version\nL Europe/Berlin Old/Town\nL Etc/UTC Zulu\n");
    EXPECT_EQ(placeOfTimeZone("Europe/Berlin", tables.path()), (Place{52.5, 13 + 22 / 60.0}));
    EXPECT_EQ(placeOfTimeZone("Old/Town", tables.path()), (Place{52.5, 13 + 22 / 60.0}));
    EXPECT_NEAR(placeOfTimeZone("Antarctica/Syowa", tables.path())->latitude, -69.00611, 1e-5);
    for (const char* none : {"Zulu", "UTC", "", "No/Where"}) {
        EXPECT_FALSE(placeOfTimeZone(none, tables.path())) << none;
    }
}

/// Two years of points as a clock would meet them; each point's number, by when it came.
std::vector<Schedule::Occurrence> met(Schedule& schedule, Moment from, Moment to) {
    std::vector<Schedule::Occurrence> all;
    for (auto next = schedule.around(from).next; next && next->moment < to;
         next = schedule.around(next->moment).next) {
        EXPECT_EQ(schedule.around(next->moment).current, next);
        EXPECT_TRUE(all.empty() || all.back().moment < next->moment);
        all.push_back(*next);
    }
    return all;
}

TEST(Schedule, MissesNoPointAndMeetsNoneTwice) {
    const TimeZone zone("Europe/Berlin");
    const auto points = {*schedulePoint("00:00 off"), *schedulePoint("02:30 A"),
                         *schedulePoint("sunset-00:30 B")};
    Schedule schedule(points, Place{52.5, 13.4});
    constexpr auto kFrom = at(2026y / January / 1, 12h);
    const auto all = met(schedule, kFrom, kFrom + days(731));
    EXPECT_EQ(all.size(), 3U * 731);
    for (std::size_t i = 0; i < all.size(); ++i) {
        EXPECT_EQ(all[i].point, (i + 2) % 3) << i;
    }
}

TEST(ScheduleDay, MovesPointsFromWhatTheyAreCountedFrom) {
    const SunOfDay sun{.sunrise = 5h, .sunset = 20h};
    const auto at = [&](const char* words) { return timeOfPoint(*schedulePoint(words), sun); };
    EXPECT_EQ(at("sunset-00:30 A"), 19h + 30min);
    EXPECT_EQ(at("sunset+05:00 A"), 1h) << "of the next day";
    EXPECT_EQ(at("dusk A"), std::nullopt);
    const auto moved = [&](const char* words, std::chrono::minutes to) {
        return textOf(movedTo(*schedulePoint(words), to, sun));
    };
    EXPECT_EQ(moved("07:00 off", 8h), "08:00 off");
    EXPECT_EQ(moved("sunset A", 19h), "sunset-01:00 A");
    EXPECT_EQ(moved("sunrise A", 23h), "sunrise-06:00 A");
    EXPECT_EQ(moved("dawn A", 23h), "dawn A");
}

TEST(Schedule, FollowsThePolarSun) {
    const TimeZone zone("UTC");
    Schedule schedule({*schedulePoint("sunrise off"), *schedulePoint("sunset A")},
                      Place{78.2, 15.6});
    EXPECT_EQ(schedule.around(at(2026y / June / 21, 0h)).current->point, 0U) << "bright for weeks";
    const auto winter = schedule.around(at(2026y / December / 21, 0h));
    EXPECT_EQ(winter.current->point, 1U) << "dark for weeks";
    EXPECT_EQ(winter.next->point, 0U);
    EXPECT_GT(winter.next->moment - winter.current->moment, days(80));
    Schedule nowhere({*schedulePoint("sunset A")}, {});
    EXPECT_EQ(nowhere.around(at(2026y / June / 1, 0h)), Schedule::Around());
}

/// With two looks of its own and a schedule in use.
struct ScheduledTest : AutomationTest {
    ScheduledTest() {
        EXPECT_TRUE(looks_.save("Dark", {.dim = true, .dimLevel = -1}));
        EXPECT_TRUE(looks_.save("Turned", {.invertScreen = true}));
        store_->setObject(PropertyArray{"08:00 off", "18:00 Dark", "20:00 Turned", "21:00 Gone"},
                          kSchedule);
        store_->setBool(true, kUseSchedule);
    }
    bool isBlack() const { return hardware_.ramps.at(1).red.back() == 0; }
    std::string toldWithoutEnd() const {
        auto ruling = controller_.ruling();
        ruling.until.reset();
        return ::told(ruling);
    }
    static constexpr Moment hour(int hours) { return at(2026y / June / 1, 1h * hours); }
};

TEST_F(ScheduledTest, SwitchesAndChoosesLooksWithoutTouchingTheSettings) {
    ChosenLook chosen(looks_);
    LookPicker picker(controller_, chosen);
    Menu menu;
    const LooksMenu list(picker, center_, menu, Menu::kNone);
    const auto isTicked = [&menu](std::size_t place) {
        return menu.entries().at(place).item.isChecked;
    };
    EXPECT_EQ(toldWithoutEnd(), "schedule off") << "in the middle of a period";
    EXPECT_EQ(controller_.ruling().until, hour(18));
    EXPECT_FALSE(isInverted());
    clock_.passTo(hour(18));
    EXPECT_TRUE(isBlack());
    EXPECT_TRUE(isTicked(1)) << "Dark, though the settings invert as Turned does";
    clock_.passTo(hour(20));
    EXPECT_TRUE(isInverted());
    EXPECT_TRUE(isTicked(2));
    clock_.passTo(hour(30));
    EXPECT_EQ(toldWithoutEnd(), "schedule on Turned") << "a look that is gone changes nothing";
    clock_.jumpTo(hour(18 + 72)); // the machine slept through ten points
    EXPECT_TRUE(isBlack());
    clock_.jumpTo(hour(12));
    EXPECT_FALSE(isBlack()) << "somebody set the clock back";
    EXPECT_EQ(chosenEffects(), PropertyArray{"NDInvertEffect"});
    EXPECT_TRUE(store_->boolForKey(kEffectActive));
    store_->setBool(false, kUseSchedule);
    EXPECT_EQ(told(), "settings on");
    EXPECT_TRUE(isInverted());
    EXPECT_FALSE(clock_.awaited());
}

TEST_F(ScheduledTest, WhatTheHandDoesHoldsUntilTheNextPoint) {
    clock_.passTo(hour(18));
    controller_.toggleGlobalEffect();
    EXPECT_EQ(toldWithoutEnd(), "hand off");
    controller_.toggleGlobalEffect();
    EXPECT_EQ(toldWithoutEnd(), "schedule on Dark");
    EXPECT_TRUE(isBlack());
    chooseEffects({"NDInvertEffect"});
    EXPECT_EQ(toldWithoutEnd(), "hand on");
    EXPECT_TRUE(isInverted());
    EXPECT_TRUE(automation_.pause("until next"));
    EXPECT_EQ(controller_.ruling().until, hour(20));
    clock_.passTo(hour(20));
    EXPECT_EQ(toldWithoutEnd(), "schedule on Turned");
    controller_.setEffectActive(false, true);
    clock_.passTo(hour(24 + 18));
    EXPECT_TRUE(isBlack());
    EXPECT_TRUE(looks_.remove("Dark"));
    EXPECT_EQ(toldWithoutEnd(), "schedule off");
}

TEST_F(ScheduledTest, BadPointsAreToldAndLoseNothing) {
    PropertyArray points(10000, "12:00 Dark");
    points[0] = "25:61 Dark";
    points[1] = "sunset Dark";
    points[2] = "21:00 Gone";
    points[3] = std::int64_t{7};
    store_->setObject("91 N", kPlace);
    store_->setObject(points, kSchedule);
    const auto& listed = automation_.listedPoints();
    ASSERT_EQ(listed.size(), kMostSchedulePoints);
    for (std::size_t i = 0; i < listed.size(); ++i) {
        EXPECT_EQ(listed[i].problem.empty(), i > 3) << i;
        EXPECT_EQ(listed[i].next.has_value(), i > 3) << i;
    }
    EXPECT_EQ(toldWithoutEnd(), "schedule on Dark");
    EXPECT_EQ(store_->arrayForKey(kSchedule)->size(), 10000U);
    EXPECT_FALSE(addSchedulePoint(*store_, looks_, "13:00 off")) << "full";
    EXPECT_TRUE(removeSchedulePoint(*store_, 0));
    EXPECT_FALSE(removeSchedulePoint(*store_, 9999));
}

TEST(RuleWords, AreReadAndWritten) {
    for (const char* words : {"fullscreen off", "game Warm evening", "program mpv Night reading",
                              "program \"Two words\" off", "program off off"}) {
        const auto rule = ruleFromWords(words);
        ASSERT_TRUE(rule) << words;
        EXPECT_EQ(textOf(*rule), words);
    }
    for (const char* wrong :
         {"", "fullscreen", "fullscreen ", "game", "program", "program mpv", "program mpv ",
          "program \"mpv off", "program \"\" off", "program \"a\"b off", "window off", " off"}) {
        EXPECT_FALSE(ruleFromWords(wrong)) << wrong;
    }
}

TEST(FilledDisplays, AreThoseOfTheTopmostWindowThatMatters) {
    const std::vector<DisplayInfo> displays = {{1, "", {0, 0, 100, 100}},
                                               {2, "", {100, 0, 100, 100}}};
    using Ids = std::set<CGDirectDisplayID>;
    constexpr DisplayRect kFirst = {0, 0, 100, 100};
    const StackedWindow film{kFirst, true, true, true};
    const StackedWindow game{kFirst, true, true}; // without a frame
    const auto filled = [&](const std::vector<StackedWindow>& stack) {
        return filledDisplays(stack, displays);
    };
    const auto above = [&](const StackedWindow& window) { return filled({window, film}); };
    EXPECT_EQ(filled({film}), Ids{1});
    EXPECT_EQ(filled({game}), Ids{1});
    EXPECT_EQ(filled({{kFirst, true, false, true}}), Ids{1}) << "whatever its type";
    EXPECT_EQ(filled({{{-10, -10, 65535, 65535}, true, true, true}}), (Ids{1, 2}));
    EXPECT_EQ(filled({{kFirst, false, true, true}}), Ids());
    EXPECT_EQ(filled({{kFirst, true, false}}), Ids()) << "the desktop's background";
    EXPECT_EQ(filled({{kFirst, true, true, false, true}}), Ids()) << "maximized";
    EXPECT_EQ(filled({{{0, 0, 100, 99}, true, true, true}}), Ids());
    EXPECT_EQ(filled({{{0, 0, 0, 0}, true, true, true}}), Ids());
    EXPECT_EQ(above({{0, 0, 20, 20}, true, true}), Ids{1}) << "a picture in the picture";
    EXPECT_EQ(above({{0, 0, 100, 50}, true, true}), Ids());
    EXPECT_EQ(above({{0, 0, 20, 20}, true, true, false, false, true}), Ids()) << "worked in";
    EXPECT_EQ(above({{0, 0, 20, 20}, true, false, false, false, true}), Ids{1}) << "a dialog";
    EXPECT_EQ(above({{120, 0, 20, 20}, true, true, false, false, true}), Ids{1}) << "elsewhere";
}

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

TEST_F(RulesTest, LeaveNobodyInTheDarkWhateverTheSettingsSay) {
    KeepColors question(controller_, *store_, center_, runLoop_);
    add("game Dark");
    const auto passes = [this] { runLoop_.advance((KeepColors::kSeconds + 1) * 1000); };
    question.keep();
    now({}, true);
    EXPECT_EQ(shown(), "bb");
    passes();
    EXPECT_EQ(shown(), "oo") << "what was kept was not the look";

    now({}, false);
    passes();
    controller_.setEffectActive(true, true);
    passes();
    EXPECT_EQ(shown(), "ii");
    for (const char* display : {"D1", "D2"}) {
        EXPECT_TRUE(setLookOfDisplay(*store_, looks_, id(display), "Dark"));
    }
    chooseEffects({"NDInvertEffect", "NDHideStripesEffect"});
    passes();
    EXPECT_EQ(shown(), "oo") << "other colors are of no use";
}

TEST_F(RulesTest, AreNotEndedByTheQuestionAboutTheirLook) {
    struct InFrontWhileItAsks : BlindDesktop {
        explicit InFrontWhileItAsks(RulesTest& test) : test_(test) {}
        void askToKeepColors(int /*seconds*/, std::function<void(bool)> /*answered*/) override {
            test_.now({{"nocturo", "Nocturo"}});
        }
        void withdrawKeepColors() override { test_.now({{"film"}}); }
        RulesTest& test_;
    } desktop(*this);
    add("program film Dark");
    controller_.setDesktopFace(&desktop);
    KeepColors question(controller_, *store_, center_, runLoop_);
    now({{"film"}});
    runLoop_.advance(KeepColors::kSeconds * 1000);
    EXPECT_EQ(shown(), "bb");
    runLoop_.advance(1000);
    EXPECT_EQ(shown(), "oo");
    EXPECT_EQ(told(), "rule off");
    EXPECT_THAT(automation_.rules().listed().at(0).problem, testing::HasSubstr("Dark"));
    now({});
    runLoop_.advance(1000);
    EXPECT_EQ(shown(), "ii") << "what the user had";
    now({{"film"}});
    EXPECT_EQ(shown(), "oo") << "it was refused";
    EXPECT_TRUE(looks_.save("Dark", {.invertScreen = true}));
    EXPECT_EQ(shown(), "ii");
    EXPECT_EQ(told(), "rule on Dark");
}

TEST_F(RulesTest, HoldForTheDisplayThatIsFilledOrForAll) {
    EXPECT_EQ(listening_, 0);
    add("fullscreen off");
    add("program MPV dark");
    add("game off");
    EXPECT_EQ(listening_, 2);
    EXPECT_EQ(shown(), "ii");
    now({{}, {id("D1")}});
    EXPECT_EQ(shown(), "oi");
    EXPECT_EQ(controller_.ruling().by, Ruler::settings) << "of the others";
    EXPECT_EQ(::told(controller_.ruling(id("D1"))), "rule off");
    now({{"gl", "mpv"}, {id("D1")}});
    EXPECT_EQ(shown(), "ob") << "the first rule counts";
    now({{"gl", "mpv"}, {id("D1"), id("D2")}});
    EXPECT_EQ(shown(), "oo");
    EXPECT_FALSE(controller_.effectActive());
    EXPECT_EQ(controller_.ruling().rule, "fullscreen off");
    now({}, true);
    runLoop_.advance(1000);
    EXPECT_EQ(controller_.ruling().rule, "game off");
    EXPECT_TRUE(store_->boolForKey(kEffectActive)) << "the user's";
    store_->setBool(false, kUseRules);
    EXPECT_EQ(shown(), "ii");
    EXPECT_EQ(listening_, 0);
    EXPECT_TRUE(removeRule(*store_, 2));
    EXPECT_FALSE(removeRule(*store_, 2));
}

TEST_F(RulesTest, LeaveADisplayTheLookOfItsOwn) {
    const CGDirectDisplayID second = id("D2");
    EXPECT_FALSE(setLookOfDisplay(*store_, looks_, second, "No such look"));
    EXPECT_TRUE(setLookOfDisplay(*store_, looks_, second, "dark"));
    EXPECT_EQ(store_->arrayForKey(kDisplayLooks)->front(),
              PropertyValue(std::to_string(second) + " Dark"));
    EXPECT_EQ(shown(), "ib");
    EXPECT_THAT(stateSentence(controller_, *store_),
                testing::HasSubstr(". D2: Dark, its own look"));
    chooseEffects({"NDHDTVLuminanceEffect"});
    EXPECT_EQ(shown(), "ob") << "the settings are those of the others";
    chooseEffects({"NDInvertEffect"});
    add("game off");
    now({}, true);
    EXPECT_EQ(shown(), "oo");
    now({}, false);
    runLoop_.advance(1000);
    EXPECT_EQ(shown(), "ib");

    hardware_.remove("D2");
    center_.post(NSApplicationDidChangeScreenParametersNotification);
    hardware_.ramps[3] = identityRamp(256);
    hardware_.add("D2", 3);
    center_.post(NSApplicationDidChangeScreenParametersNotification);
    controller_.setEffectActive(false, true);
    controller_.setEffectActive(true, true);
    EXPECT_EQ(hardware_.ramps.at(3), Ramp(256)) << "by its identifier, wherever it is";
    EXPECT_TRUE(looks_.remove("Dark"));
    EXPECT_EQ(hardware_.ramps.at(3), hardware_.ramps.at(1)) << "as all";
    EXPECT_TRUE(setLookOfDisplay(*store_, looks_, second, ""));
    EXPECT_TRUE(store_->arrayForKey(kDisplayLooks)->empty());
}

TEST_F(RulesTest, ComeAtOnceAndGoOnceNothingChangesForASecond) {
    add("fullscreen off");
    for (int flaps = 0; flaps < 5; ++flaps) {
        now({{}, {id("D1")}});
        EXPECT_EQ(shown(), "oi");
        runLoop_.advance(3000);
        now({});
        runLoop_.advance(999);
    }
    EXPECT_EQ(shown(), "oi");
    runLoop_.advance(1);
    EXPECT_EQ(shown(), "ii");
    EXPECT_EQ(runLoop_.pendingTimers(), 1U) << "that applies the effect again";
}

TEST_F(RulesTest, YieldToTheHandUntilOthersHold) {
    add("fullscreen off");
    now({{}, {id("D1")}});
    controller_.toggleGlobalEffect();
    EXPECT_EQ(shown(), "oo");
    controller_.toggleGlobalEffect();
    EXPECT_EQ(shown(), "ii");
    EXPECT_EQ(::told(controller_.ruling(id("D1"))), "hand on");
    now({});
    runLoop_.advance(1000);
    EXPECT_EQ(told(), "settings on");
    now({{}, {id("D1")}});
    EXPECT_EQ(shown(), "oi") << "the next film";
    EXPECT_TRUE(automation_.pause(""));
    EXPECT_EQ(shown(), "oo");
    automation_.resume();
    store_->setObject(PropertyArray{static_cast<std::int64_t>(id("D1"))}, kAffectedScreenSet);
    EXPECT_FALSE(controller_.effectActive());
    store_->setObject(PropertyArray{static_cast<std::int64_t>(id("D2"))}, kAffectedScreenSet);
    EXPECT_EQ(shown(), "oi");
}

TEST_F(RulesTest, ThatAreBadAreToldAndLoseNothing) {
    PropertyArray rules(10000, "program mpv dark");
    rules[0] = "window off";
    rules[1] = std::int64_t{7};
    rules[2] = "fullscreen Gone";
    store_->setObject(rules, kRules);
    now({{"mpv"}, {id("D1")}});
    EXPECT_EQ(shown(), "bb");
    const auto listed = automation_.rules().listed();
    ASSERT_EQ(listed.size(), kMostRules);
    for (std::size_t i = 0; i < listed.size(); ++i) {
        EXPECT_EQ(listed[i].problem.empty(), i > 2) << i;
        EXPECT_EQ(listed[i].holds, i > 2) << i;
    }
    EXPECT_EQ(store_->arrayForKey(kRules)->size(), 10000U);
    EXPECT_FALSE(addRule(*store_, looks_, "game off")) << "full";
    EXPECT_TRUE(looks_.remove("Dark"));
    EXPECT_EQ(shown(), "ii");
    automation_.rules().setSources({[](bool, auto) { return nullptr; }, {}});
    store_->setObject(PropertyArray{"program mpv off"}, kRules);
    EXPECT_FALSE(automation_.rules().canSeeWindows());
    EXPECT_THAT(automation_.rules().listed().at(0).problem, testing::HasSubstr("does not tell"));
}
