// Rules, looks of displays, and what displays show by them.

#include "app/effect_state.h"
#include "app/keep_colors.h"
#include "automation/display_looks_setting.h"
#include "automation/filled_displays.h"
#include "automation_fixture.h"
#include "settings/longest_words.h"

using namespace nocturo;

TEST(RuleWords, AreReadAndWritten) {
    for (const char* words : {"fullscreen off", "game Warm evening", "program mpv Night reading",
                              "program \"Two words\" off", "program off off"}) {
        const auto rule = ruleFromWords(words);
        ASSERT_TRUE(rule) << words;
        EXPECT_EQ(textOf(*rule), words);
    }
    EXPECT_EQ(textOf(*ruleFromWords("fullscreen Off")), "fullscreen off");
    const std::string endless = "program " + std::string(5000, 'x') + " off";
    EXPECT_FALSE(ruleFromWords(endless));
    EXPECT_LT(noRuleSentence(endless).size(), 200U);
    for (const char* wrong : {"", "fullscreen", "fullscreen ", "game", "program", "program mpv",
                              "program mpv ", "program a\nb off", "program \"mpv off",
                              "program \"\" off", "program \"a\"b off", "window off", " off"}) {
        EXPECT_FALSE(ruleFromWords(wrong)) << wrong;
    }
    EXPECT_FALSE(ruleFromWords("game " + std::string(kLongestWords, 'l')));
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
    EXPECT_EQ(nocturo::told(controller_.ruling(id("D1"))), "rule off");
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
    EXPECT_TRUE(setLookOfDisplay(*store_, looks_, id("D1"), "Turned"));
    EXPECT_EQ(stateSentence(controller_, *store_), "On: Turned on D1. D2: Dark, its own look");
    EXPECT_TRUE(setLookOfDisplay(*store_, looks_, id("D1"), ""));
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
    EXPECT_EQ(nocturo::told(controller_.ruling(id("D1"))), "hand on");
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
