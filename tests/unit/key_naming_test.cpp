#include "hotkeys/hot_key_text.h"
#include "hotkeys/key_naming.h"
#include "platform/keyboard/keyboard_layout.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace nocturo {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

struct FakeLayout : KeyboardLayout {
    explicit FakeLayout(std::map<int, std::string> newTexts) : texts(std::move(newTexts)) {}

    // No modifier may ever arrive in the low byte, where it would select another character.
    std::string textForKeyDown(std::uint16_t keyCode, std::uint32_t state) override {
        states.push_back(state);
        const auto found = texts.find(keyCode);
        return found == texts.end() ? "" : (state & 0xFF) != 0 ? "wrong" : found->second;
    }

    std::map<int, std::string> texts;
    std::vector<std::uint32_t> states;
};

TEST(KeyNaming, NamesKeysAfterTheirModifiers) {
    FakeLayout layout({{0, "a"}, {12, "é"}, {36, "\r"}, {55, "x"}});
    struct Case {
        std::uint16_t keyCode;
        std::uint64_t flags;
        const char* text;
    };
    for (const auto& [keyCode, flags, text] : {
             Case{0, 0, "a"},
             Case{0, 0x1E0000, "⌃⌥⇧⌘a"},
             Case{0, 0x810000, "a"}, // caps lock and function show nothing
             Case{12, 0x100000, "⌘é"},
             Case{33, 0x120000, "⇧⌘"}, // a dead key
             Case{55, 0x100000, "⌘"},
             Case{55, 0, ""},
             Case{56, 0x20000, "⇧"},
             Case{58, 0, ""},
             Case{59, 0x40000, "⌃"},
             Case{54, 0x100000, "⌘"}, // right command: neither in the table nor in the layout
             Case{57, 0, "⇪"},
             Case{63, 0, "⌘"},
             Case{60, 0x20000, "⇧⇧"},
             Case{96, 0x140000, "⌃⌘F5"},
             Case{96 + 256, 0, ""},
             Case{65535, 0, ""},
         }) {
        EXPECT_EQ(HXStringFromKeyCode(keyCode, flags, &layout), text) << keyCode;
    }
    layout.texts[0] = "q"; // the user switched layouts
    EXPECT_EQ(HXStringFromKeyCode(0, 0, &layout), "q");
    EXPECT_EQ(HXStringFromKeyCode(0, 0x60000, nullptr), "⌃⇧");
    EXPECT_EQ(HXStringFromKeyCode(96, 0x60000, nullptr), "⌃⇧F5");

    layout.states.clear();
    for (const std::uint16_t keyCode : std::initializer_list<std::uint16_t>{96, 58, 0}) {
        HXStringFromKeyCode(keyCode, 0x1F0000, &layout);
    }
    EXPECT_THAT(layout.states, ElementsAre(0x1F00)) << "only the letter needs the layout";
}

TEST(KeyNaming, ConvertsModifierFlags) {
    EXPECT_EQ(HXCarbonModifierFlags(0x100000), 0x100U);
    EXPECT_EQ(HXCarbonModifierFlags(0x20000), 0x200U);
    EXPECT_EQ(HXCarbonModifierFlags(0x80000), 0x800U);
    EXPECT_EQ(HXCarbonModifierFlags(0x40000), 0x1000U);
    EXPECT_EQ(HXCarbonModifierFlags(~0x1E0000ULL), 0U);
    EXPECT_EQ(HXCarbonModifierFlagsWithAlphaLock(~0x1E0000ULL), 0x400U);
    EXPECT_EQ(HXCarbonModifierFlagsWithAlphaLock(~0ULL), 0x1F00U);
}

TEST(KeyNaming, GlyphTableIsComplete) {
    std::map<int, std::string> expected = {
        {36, "\u21A9"},     {48, "\u21E5"},  {49, "\u23B5"},     {51, "\u232B"},
        {53, "\u238B"},     {55, "\u2318"},  {56, "\u21E7"},     {57, "\u21EA"},
        {58, "\u2325"},     {59, "\u2303"},  {60, "\u21E7"},     {61, "\u2325"},
        {62, "\u2303"},     {63, "\u2318"},  {72, "\U0001F50A"}, {73, "\U0001F508"},
        {74, "\U0001F507"}, {117, "\u2326"}, {115, "\u2196"},    {119, "\u2198"},
        {116, "\u21DE"},    {121, "\u21DF"}, {123, "\u2190"},    {124, "\u2192"},
        {125, "\u2193"},    {126, "\u2191"},
    };
    int number = 0;
    for (const int code : {122, 120, 99,  118, 96,  97,  98, 100, 101, 109,
                           103, 111, 105, 107, 113, 106, 64, 79,  80,  90}) {
        expected[code] = 'F' + std::to_string(++number);
    }
    std::map<int, std::string> actual;
    for (const auto& [keyCode, text] : HXSpecialKeyGlyphs) {
        actual.emplace(keyCode, text);
    }
    EXPECT_EQ(actual, expected);
}

// A few keys of a French and of a Russian board; the keypad types digits as well.
class HotKeyText : public testing::Test {
  protected:
    FakeLayout french{{{12, "a"},
                       {0, "q"},
                       {40, "k"},
                       {19, "é"},
                       {24, "+"},
                       {87, "5"},
                       {69, "+"},
                       {10, "<"},
                       {36, "\r"}}};
    FakeLayout russian{{{40, "л"}, {41, "ж"}}};
};

TEST_F(HotKeyText, ReadsNamesAndCharactersInAnyOrderAndCase) {
    struct Case {
        const char* text;
        std::uint16_t keyCode;
        std::uint64_t flags;
    };
    for (const auto& [text, keyCode, flags] : {
             Case{"ctrl+super+F5", 96, 0x140000},
             Case{"F5 + Super + CTRL", 96, 0x140000},
             Case{"control+option+shift+command+space", 49, 0x1E0000},
             Case{"alt+esc", 53, 0x80000},
             Case{"cmd+meta+Return", 36, 0x100000},
             Case{"PgUp", 116, 0},
             Case{"left", 123, 0},
             Case{"super+a", 12, 0x100000},
             Case{"super+É", 19, 0x100000},
             Case{"ctrl++", 24, 0x40000},
             Case{"ctrl+<", 10, 0x40000},
             Case{"shift+keypad5", 87, 0x20000},
         }) {
        const auto result = parseHotKeyText(text, &french);
        EXPECT_EQ(result.error, "") << text;
        EXPECT_EQ(result.combination, (HotKeyCombination{keyCode, flags})) << text;
    }
    EXPECT_EQ(parseHotKeyText("super+Л", &russian).combination, (HotKeyCombination{40, 0x100000}));
    EXPECT_EQ(parseHotKeyText("super+f20", nullptr).combination, (HotKeyCombination{90, 0x100000}));
}

TEST_F(HotKeyText, SaysWhatIsWrong) {
    const std::vector<std::pair<const char*, const char*>> cases = {
        {"", "No hot key"},
        {"ctrl+", "plus sign"},
        {"+f5", "plus sign"},
        {"ctrl++f5", "plus sign"},
        {"ctrl+shift", "no key besides its modifiers"},
        {"ctrl+k+f5", "\"k\" and \"f5\" are both keys"},
        {"ctrl+ctl+f5", "\"ctl\" and \"f5\" are both keys"},
        {"ctrl+F21", "\"F21\" is not a key's name"},
        {"ctrl+5", "no key of the current keyboard layout types it"}, // only the keypad does
        {"ctrl+\xFF", "is not a key's name"},
        {"k", "needs a modifier"},
    };
    for (const auto& [text, error] : cases) {
        const auto result = parseHotKeyText(text, &french);
        EXPECT_EQ(result.combination, std::nullopt) << text;
        EXPECT_THAT(result.error, HasSubstr(error)) << text;
    }
    EXPECT_THAT(parseHotKeyText("ctrl+k", nullptr).error, HasSubstr("cannot be read"));
}

} // namespace
} // namespace nocturo
