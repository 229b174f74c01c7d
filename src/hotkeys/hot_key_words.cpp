#include "hotkeys/hot_key_words.h"

#include "base/texts/translated.h"
#include "hotkeys/hot_key_text.h"
#include "hotkeys/keyboard/keyboard_layout.h"
#include "hotkeys/keyboard/modifier_flags.h"
#include "hotkeys/keyboard/virtual_key_codes.h"

#include <algorithm>
#include <array>

namespace nocturo {

namespace {

struct Modifier {
    std::uint64_t flag;
    ListedText word;
};

// In the order in which they are written.
constexpr auto kModifiers = std::to_array<Modifier>({
    {NSControlKeyMask, ListedText("Ctrl")},
    {NSAlternateKeyMask, ListedText("Alt")},
    {NSShiftKeyMask, ListedText("Shift")},
    {NSCommandKeyMask, ListedText("Super")},
});

struct Key {
    std::uint16_t keyCode;
    ListedText words;
};

constexpr auto kKeys = std::to_array<Key>({
    {36, ListedText("Return")},      {48, ListedText("Tab")},    {49, ListedText("Space")},
    {51, ListedText("Backspace")},   {53, ListedText("Esc")},    {72, ListedText("Volume Up")},
    {73, ListedText("Volume Down")}, {74, ListedText("Mute")},   {110, ListedText("Menu")},
    {114, ListedText("Ins")},        {115, ListedText("Home")},  {116, ListedText("Page Up")},
    {117, ListedText("Del")},        {119, ListedText("End")},   {121, ListedText("Page Down")},
    {123, ListedText("Left")},       {124, ListedText("Right")}, {125, ListedText("Down")},
    {126, ListedText("Up")},
});

/// Capitals without spaces, for comparing.
std::string folded(std::string_view words) {
    std::string text(words);
    std::erase(text, ' ');
    return inCapitals(text);
}

/// "Keypad 5" and "F5": a name of the table as it is written.
std::string writtenName(std::string_view name) {
    constexpr std::string_view kKeypad = "keypad";
    if (name.starts_with(kKeypad) && name.size() > kKeypad.size()) {
        return "Keypad " + writtenName(name.substr(kKeypad.size()));
    }
    return inCapitals(name.substr(0, 1)) +
           std::string(name.substr(std::min<std::size_t>(1, name.size())));
}

std::string keyWords(std::uint16_t keyCode, const std::string& typed) {
    const auto* named = std::ranges::find(kKeys, keyCode, &Key::keyCode);
    if (named != kKeys.end()) {
        return named->words.translated();
    }
    const std::string_view name = nameOfVirtualKey(keyCode);
    return name.empty() ? inCapitals(typed) : writtenName(name);
}

} // namespace

std::string hotKeyWords(std::uint16_t keyCode, std::uint64_t modifierFlags,
                        const std::string& typed) {
    std::string words;
    for (const Modifier& modifier : kModifiers) {
        if ((modifierFlags & modifier.flag) != 0) {
            words += modifier.word.translated() + '+';
        }
    }
    words += keyWords(keyCode, typed);
    return words;
}

std::string hotKeyWords(std::uint16_t keyCode, std::uint64_t modifierFlags,
                        KeyboardLayout* layout) {
    const bool isTyped = nameOfVirtualKey(keyCode).empty() && layout != nullptr;
    return hotKeyWords(keyCode, modifierFlags,
                       isTyped ? layout->textForKeyDown(keyCode, 0) : std::string());
}

std::optional<std::uint64_t> modifierOfWord(std::string_view word) {
    const std::string wanted = folded(word);
    for (const Modifier& modifier : kModifiers) {
        if (folded(modifier.word.translated()) == wanted) {
            return modifier.flag;
        }
    }
    return std::nullopt;
}

std::optional<std::uint16_t> keyOfWords(std::string_view words) {
    const std::string wanted = folded(words);
    for (const Key& key : kKeys) {
        if (folded(key.words.translated()) == wanted) {
            return key.keyCode;
        }
    }
    std::string name(words);
    std::erase(name, ' ');
    return virtualKeyCodeNamed(name);
}

} // namespace nocturo
