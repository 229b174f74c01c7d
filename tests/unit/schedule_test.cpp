// The schedule: its points, when they come, and what they do.

#include "app/look_picker.h"
#include "app/looks_menu.h"
#include "automation/schedule_day.h"
#include "automation/schedule_setting.h"
#include "automation/time_zone_place.h"
#include "automation_fixture.h"
#include "documents/chosen_look.h"

using namespace nocturo;
using namespace std::chrono;

TEST(SchedulePoints, AreReadAndWrittenInWords) {
    for (const char* words : {"07:00 off", "sunset-00:30 Warm evening", "dawn off",
                              "dusk+12:00 Night reading", "sunrise off off"}) {
        const auto point = schedulePoint(words);
        ASSERT_TRUE(point) << words;
        EXPECT_EQ(textOf(*point), words);
    }
    EXPECT_EQ(textOf(*schedulePoint("sunset -00:30 Off")), "sunset-00:30 off");
    EXPECT_EQ(textOf(*schedulePoint("sunset -a b")), "sunset -a b");
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
        return nocturo::told(ruling);
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
