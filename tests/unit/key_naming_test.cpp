#include "hotkeys/hot_key_text.h"
#include "hotkeys/key_naming.h"
#include "platform/keyboard/keyboard_layout.h"
#include "platform/keyboard/virtual_key_codes.h"

#include <gmock/gmock.h>

#include <map>
#include <set>

namespace nocturo {
namespace {

struct FakeLayout : KeyboardLayout {
    explicit FakeLayout(std::map<int, std::string> newTexts) : texts(std::move(newTexts)) {}

    // No modifier may ever arrive in the low byte, where it would select another character.
    std::string textForKeyDown(std::uint16_t keyCode, std::uint32_t state) override {
        const auto found = texts.find(keyCode);
        return found == texts.end() ? "" : (state & 0xFF) != 0 ? "wrong" : found->second;
    }

    std::map<int, std::string> texts;
};

TEST(KeyNaming, NamesKeysAfterTheirModifiers) {
    FakeLayout layout({{0, "a"}, {12, "é"}, {36, "\r"}, {55, "x"}});
    struct Case {
        std::uint16_t keyCode;
        std::uint64_t flags;
        const char* text;
    };
    for (const auto& [keyCode, flags, text] : {
             Case{0, 0x1E0000, "⌃⌥⇧⌘a"},
             Case{0, 0x810000, "a"}, // caps lock and function show nothing
             Case{12, 0x100000, "⌘é"},
             Case{33, 0x120000, "⇧⌘"}, // a dead key
             Case{36, 0, "↩"},
             Case{55, 0x100000, "⌘"},
             Case{56, 0x20000, "⇧"},
             Case{58, 0, ""},
             Case{59, 0x40000, "⌃"},
             Case{54, 0x100000, "⌘"}, // right command: neither in the table nor in the layout
             Case{57, 0, "⇪"},
             Case{60, 0x20000, "⇧⇧"},
             Case{96 + 256, 0, ""},
         }) {
        EXPECT_EQ(HXStringFromKeyCode(keyCode, flags, &layout), text) << keyCode;
    }
    EXPECT_EQ(HXStringFromKeyCode(0, 0x60000, nullptr), "⌃⇧");
    EXPECT_EQ(HXStringFromKeyCode(96, 0x60000, nullptr), "⌃⇧F5");
}

TEST(KeyNaming, ConvertsModifierFlags) {
    EXPECT_EQ(HXCarbonModifierFlags(0x120000), 0x300U);
    EXPECT_EQ(HXCarbonModifierFlags(0x80000), 0x800U);
    EXPECT_EQ(HXCarbonModifierFlags(0x40000), 0x1000U);
    EXPECT_EQ(HXCarbonModifierFlagsWithAlphaLock(~0x1E0000ULL), 0x400U);
    EXPECT_EQ(HXCarbonModifierFlagsWithAlphaLock(~0ULL), 0x1F00U);
}

TEST(KeyNaming, EverySpecialKeyHasItsGlyph) {
    std::string glyphs;
    for (const auto& [keyCode, text] : HXSpecialKeyGlyphs) {
        if (text.starts_with('F')) {
            EXPECT_EQ(virtualKeyCodeNamed(text), keyCode);
        } else {
            glyphs.append(std::to_string(keyCode)).append(text).append(" ");
        }
    }
    EXPECT_EQ(glyphs, "36↩ 48⇥ 49⎵ 51⌫ 53⎋ 55⌘ 56⇧ 57⇪ 58⌥ 59⌃ 60⇧ 61⌥ 62⌃ 63⌘ 72🔊 73🔈 74🔇 "
                      "115↖ 116⇞ 117⌦ 119↘ 121⇟ 123← 124→ 125↓ 126↑ ");
}

// A few keys of a French and of a Russian board; the keypad types digits as well.
class HotKeyText : public testing::Test {
  protected:
    FakeLayout french{{{12, "a"}, {40, "k"}, {19, "é"}, {24, "+"}, {87, "5"}, {69, "+"}}};
    FakeLayout russian{{{40, "л"}, {41, "ж"}}};
};

TEST_F(HotKeyText, ReadsNamesAndCharactersInAnyOrderAndCase) {
    struct Case {
        const char* text;
        std::uint16_t keyCode;
        std::uint64_t flags;
    };
    for (const auto& [text, keyCode, flags] : {
             Case{"F5 + Super + CTRL", 96, 0x140000},
             Case{"control+option+shift+command+space", 49, 0x1E0000},
             Case{"alt+esc", 53, 0x80000},
             Case{"cmd+meta+Return", 36, 0x100000},
             Case{"PgUp", 116, 0},
             Case{"super+a", 12, 0x100000},
             Case{"super+É", 19, 0x100000},
             Case{"ctrl++", 24, 0x40000},
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
    const std::pair<const char*, const char*> cases[] = {
        {"", "No hot key"},
        {"ctrl+", "plus sign"},
        {"ctrl++f5", "plus sign"},
        {"ctrl+shift", "no key besides its modifiers"},
        {"ctrl+ctl+f5", "\"ctl\" and \"f5\" are both keys"},
        {"ctrl+F21", "\"F21\" is not a key's name"},
        {"ctrl+5", "no key of the current keyboard layout types it"}, // only the keypad does
        {"ctrl+\xFF", "is not a key's name"},
        {"k", "needs a modifier"},
    };
    for (const auto& [text, error] : cases) {
        const auto result = parseHotKeyText(text, &french);
        EXPECT_EQ(result.combination, std::nullopt) << text;
        EXPECT_THAT(result.error, testing::HasSubstr(error)) << text;
    }
    EXPECT_THAT(parseHotKeyText("ctrl+k", nullptr).error, testing::HasSubstr("cannot be read"));
}

TEST(VirtualKeyCodes, FollowTheBoardsOrder) {
    constexpr int none = -1;
    // Runs of consecutive evdev codes, as the kernel numbers a board row by row.
    const std::vector<std::pair<std::uint32_t, std::vector<int>>> runs = {
        {0, {none, 53}},
        {2, {18, 19, 20, 21, 23, 22, 26, 28, 25, 29, 27, 24, 51}},        // 1 to backspace
        {15, {48, 12, 13, 14, 15, 17, 16, 32, 34, 31, 35, 33, 30, 36}},   // tab to return
        {29, {59, 0, 1, 2, 3, 5, 4, 38, 40, 37, 41, 39, 50}},             // control to grave
        {42, {56, 42, 6, 7, 8, 9, 11, 45, 46, 43, 47, 44, 60}},           // shift to shift
        {55, {67, 58, 49, 57}},                                           // keypad *, alt, space
        {59, {122, 120, 99, 118, 96, 97, 98, 100, 101, 109, 71, none}},   // F1 to F10, num lock
        {71, {89, 91, 92, 78, 86, 87, 88, 69, 83, 84, 85, 82, 65, none}}, // keypad
        {85, {none, 10, 103, 111, 94, none, none, none, 104, 102, 95}},
        {96, {76, 62, 75, none, 61, none}}, // keypad enter, right control, keypad /, right alt
        {102, {115, 126, 116, 123, 124, 119, 125, 121, 114, 117}}, // home to delete
        {113, {74, 73, 72, none, 81}},                             // mute, volume, keypad =
        {124, {93, 55, 54, 110}},                                  // yen, both supers, menu
        {183, {105, 107, 113, 106, 64, 79, 80, 90, none}},         // F13 to F20
        {464, {63, none}},
        {65536 + 30, {none}},
    };
    std::size_t known = 0;
    for (const auto& [first, keyCodes] : runs) {
        for (std::uint32_t i = 0; i < keyCodes.size(); ++i) {
            const auto keyCode = virtualKeyCodeFromEvdev(first + i);
            EXPECT_EQ(keyCode ? *keyCode : none, keyCodes[i]) << "evdev " << first + i;
            known += keyCodes[i] != none ? 1 : 0;
        }
    }
    EXPECT_EQ(virtualKeys().size(), known);
}

TEST(VirtualKeyCodes, GoBothWaysWithoutLoss) {
    std::set<std::string_view> standAlone = {"left", "right",  "up",     "down",    "home",
                                             "end",  "pageup", "delete", "pagedown"};
    for (const VirtualKey& key : virtualKeys()) {
        EXPECT_EQ(evdevFromVirtualKeyCode(key.keyCode), key.evdevCode);
        const bool isFKey = key.name.starts_with('f');
        EXPECT_EQ(isFunctionKeyCode(key.keyCode), isFKey || standAlone.contains(key.name));
        if (!key.name.empty()) {
            EXPECT_EQ(virtualKeyCodeNamed(key.name), key.keyCode);
            EXPECT_EQ(nameOfVirtualKey(key.keyCode), key.name);
        }
    }
    EXPECT_EQ(virtualKeyCodeNamed("INS"), 114);
    EXPECT_EQ(virtualKeyCodeNamed("spac"), std::nullopt);
    EXPECT_EQ(virtualKeyCodeNamed(""), std::nullopt);
    EXPECT_EQ(evdevFromVirtualKeyCode(52), std::nullopt);
    EXPECT_EQ(nameOfVirtualKey(1000), "");
}

} // namespace
} // namespace nocturo
