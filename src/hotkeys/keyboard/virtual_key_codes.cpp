#include "hotkeys/keyboard/virtual_key_codes.h"

#include <algorithm>
#include <array>
#include <linux/input-event-codes.h>
#include <utility>

namespace nocturo {

namespace {

// Help stands where PC boards have Insert, and Clear where they have Num Lock. The two keys of a
// JIS board beside the space bar that choose the script are Muhenkan and Katakana/Hiragana there.
constexpr auto kVirtualKeys = std::to_array<VirtualKey>({
    {0, KEY_A, ""},
    {1, KEY_S, ""},
    {2, KEY_D, ""},
    {3, KEY_F, ""},
    {4, KEY_H, ""},
    {5, KEY_G, ""},
    {6, KEY_Z, ""},
    {7, KEY_X, ""},
    {8, KEY_C, ""},
    {9, KEY_V, ""},
    {11, KEY_B, ""},
    {12, KEY_Q, ""},
    {13, KEY_W, ""},
    {14, KEY_E, ""},
    {15, KEY_R, ""},
    {16, KEY_Y, ""},
    {17, KEY_T, ""},
    {18, KEY_1, ""},
    {19, KEY_2, ""},
    {20, KEY_3, ""},
    {21, KEY_4, ""},
    {22, KEY_6, ""},
    {23, KEY_5, ""},
    {24, KEY_EQUAL, ""},
    {25, KEY_9, ""},
    {26, KEY_7, ""},
    {27, KEY_MINUS, ""},
    {28, KEY_8, ""},
    {29, KEY_0, ""},
    {30, KEY_RIGHTBRACE, ""},
    {31, KEY_O, ""},
    {32, KEY_U, ""},
    {33, KEY_LEFTBRACE, ""},
    {34, KEY_I, ""},
    {35, KEY_P, ""},
    {37, KEY_L, ""},
    {38, KEY_J, ""},
    {39, KEY_APOSTROPHE, ""},
    {40, KEY_K, ""},
    {41, KEY_SEMICOLON, ""},
    {42, KEY_BACKSLASH, ""},
    {43, KEY_COMMA, ""},
    {44, KEY_SLASH, ""},
    {45, KEY_N, ""},
    {46, KEY_M, ""},
    {47, KEY_DOT, ""},
    {50, KEY_GRAVE, ""},
    {10, KEY_102ND, ""},
    {93, KEY_YEN, ""},
    {94, KEY_RO, ""},
    {54, KEY_RIGHTMETA, ""},
    {55, KEY_LEFTMETA, ""},
    {56, KEY_LEFTSHIFT, ""},
    {57, KEY_CAPSLOCK, ""},
    {58, KEY_LEFTALT, ""},
    {59, KEY_LEFTCTRL, ""},
    {60, KEY_RIGHTSHIFT, ""},
    {61, KEY_RIGHTALT, ""},
    {62, KEY_RIGHTCTRL, ""},
    {63, KEY_FN, ""},
    {36, KEY_ENTER, "return"},
    {48, KEY_TAB, "tab"},
    {49, KEY_SPACE, "space"},
    {51, KEY_BACKSPACE, "backspace"},
    {53, KEY_ESC, "escape"},
    {72, KEY_VOLUMEUP, "volumeup"},
    {73, KEY_VOLUMEDOWN, "volumedown"},
    {74, KEY_MUTE, "mute"},
    {110, KEY_COMPOSE, "menu"},
    {114, KEY_INSERT, "insert"},
    {117, KEY_DELETE, "delete"},
    {115, KEY_HOME, "home"},
    {119, KEY_END, "end"},
    {116, KEY_PAGEUP, "pageup"},
    {121, KEY_PAGEDOWN, "pagedown"},
    {123, KEY_LEFT, "left"},
    {124, KEY_RIGHT, "right"},
    {125, KEY_DOWN, "down"},
    {126, KEY_UP, "up"},
    {102, KEY_MUHENKAN, "eisu"},
    {104, KEY_KATAKANAHIRAGANA, "kana"},
    {122, KEY_F1, "f1"},
    {120, KEY_F2, "f2"},
    {99, KEY_F3, "f3"},
    {118, KEY_F4, "f4"},
    {96, KEY_F5, "f5"},
    {97, KEY_F6, "f6"},
    {98, KEY_F7, "f7"},
    {100, KEY_F8, "f8"},
    {101, KEY_F9, "f9"},
    {109, KEY_F10, "f10"},
    {103, KEY_F11, "f11"},
    {111, KEY_F12, "f12"},
    {105, KEY_F13, "f13"},
    {107, KEY_F14, "f14"},
    {113, KEY_F15, "f15"},
    {106, KEY_F16, "f16"},
    {64, KEY_F17, "f17"},
    {79, KEY_F18, "f18"},
    {80, KEY_F19, "f19"},
    {90, KEY_F20, "f20"},
    {82, KEY_KP0, "keypad0"},
    {83, KEY_KP1, "keypad1"},
    {84, KEY_KP2, "keypad2"},
    {85, KEY_KP3, "keypad3"},
    {86, KEY_KP4, "keypad4"},
    {87, KEY_KP5, "keypad5"},
    {88, KEY_KP6, "keypad6"},
    {89, KEY_KP7, "keypad7"},
    {91, KEY_KP8, "keypad8"},
    {92, KEY_KP9, "keypad9"},
    {65, KEY_KPDOT, "keypaddecimal"},
    {67, KEY_KPASTERISK, "keypadmultiply"},
    {69, KEY_KPPLUS, "keypadplus"},
    {71, KEY_NUMLOCK, "keypadclear"},
    {75, KEY_KPSLASH, "keypaddivide"},
    {76, KEY_KPENTER, "keypadenter"},
    {78, KEY_KPMINUS, "keypadminus"},
    {81, KEY_KPEQUAL, "keypadequals"},
    {95, KEY_KPJPCOMMA, "keypadcomma"},
});

constexpr auto kShortForms = std::to_array<std::pair<std::string_view, std::string_view>>({
    {"enter", "return"},
    {"esc", "escape"},
    {"del", "delete"},
    {"ins", "insert"},
    {"help", "insert"},
    {"pgup", "pageup"},
    {"pgdn", "pagedown"},
    {"numlock", "keypadclear"},
});

const VirtualKey* keyOfCode(std::uint16_t keyCode) {
    const auto* found = std::ranges::find(kVirtualKeys, keyCode, &VirtualKey::keyCode);
    return found != kVirtualKeys.end() ? found : nullptr;
}

bool equalInAnyCase(std::string_view lowerCase, std::string_view text) {
    return std::ranges::equal(lowerCase, text, [](char expected, char given) {
        const bool isUpper = given >= 'A' && given <= 'Z';
        return expected == (isUpper ? static_cast<char>(given - 'A' + 'a') : given);
    });
}

} // namespace

std::span<const VirtualKey> virtualKeys() {
    return kVirtualKeys;
}

std::optional<std::uint16_t> virtualKeyCodeFromEvdev(std::uint32_t evdevCode) {
    const auto* found = std::ranges::find(kVirtualKeys, evdevCode, &VirtualKey::evdevCode);
    return found != kVirtualKeys.end() ? std::optional(found->keyCode) : std::nullopt;
}

std::optional<std::uint16_t> evdevFromVirtualKeyCode(std::uint16_t keyCode) {
    const VirtualKey* key = keyOfCode(keyCode);
    return key != nullptr ? std::optional(key->evdevCode) : std::nullopt;
}

std::string_view nameOfVirtualKey(std::uint16_t keyCode) {
    const VirtualKey* key = keyOfCode(keyCode);
    return key != nullptr ? key->name : std::string_view();
}

std::optional<std::uint16_t> virtualKeyCodeNamed(std::string_view name) {
    if (name.empty()) {
        return std::nullopt;
    }
    for (const auto& [shortForm, fullName] : kShortForms) {
        if (equalInAnyCase(shortForm, name)) {
            name = fullName;
            break;
        }
    }
    for (const VirtualKey& key : kVirtualKeys) {
        if (equalInAnyCase(key.name, name)) {
            return key.keyCode;
        }
    }
    return std::nullopt;
}

bool isFunctionKeyCode(std::uint16_t keyCode) {
    const VirtualKey* key = keyOfCode(keyCode);
    if (key == nullptr) {
        return false;
    }
    const std::uint16_t evdev = key->evdevCode;
    return (evdev >= KEY_F1 && evdev <= KEY_F10) || evdev == KEY_F11 || evdev == KEY_F12 ||
           (evdev >= KEY_F13 && evdev <= KEY_F20) || (evdev >= KEY_HOME && evdev <= KEY_PAGEDOWN) ||
           evdev == KEY_DELETE;
}

} // namespace nocturo
