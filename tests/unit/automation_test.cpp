// Who wins, pauses, and the times that people say.

#include "automation_fixture.h"
#include "base/local_time.h"
#include "settings/settings_keys.h"

using namespace nocturo;
using namespace std::chrono;

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
    automation_.holdPause("");
    automation_.resume();
    EXPECT_TRUE(isInverted());
    automation_.holdPause("");
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
        return nocturo::told(next.ruling(true));
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
    store_->setObject("52.5 13.4", kPlace);
    EXPECT_TRUE(automation_.pause("until sunset-00:30"));
    EXPECT_EQ(floor<hours>(controller_.ruling().until.value()), kNoon + 6h) << "18:50";
    EXPECT_TRUE(automation_.pause("1d2h3m4s"));
    EXPECT_EQ(controller_.ruling().until, kNoon + 26h + 3min + 4s);
}
