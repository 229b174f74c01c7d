#include "hotkeys/hot_key_text.h"

#include "platform/keyboard/keyboard_layout.h"
#include "platform/keyboard/modifier_flags.h"
#include "platform/keyboard/virtual_key_codes.h"

#include <array>
#include <cwchar>
#include <locale>
#include <stdexcept>
#include <utility>
#include <vector>

namespace nocturo {

namespace {

constexpr auto kModifierNames = std::to_array<std::pair<std::wstring_view, std::uint64_t>>({
    {L"ctrl", NSControlKeyMask},
    {L"control", NSControlKeyMask},
    {L"alt", NSAlternateKeyMask},
    {L"option", NSAlternateKeyMask},
    {L"shift", NSShiftKeyMask},
    {L"super", NSCommandKeyMask},
    {L"command", NSCommandKeyMask},
    {L"cmd", NSCommandKeyMask},
    {L"meta", NSCommandKeyMask},
});

// Hot keys are shown in capitals, so that "Ö" must find the key that types "ö", whatever locale the
// user's terminal has.
const std::locale& unicodeLocale() {
    static const std::locale locale = [] {
        try {
            return std::locale("C.UTF-8");
        } catch (const std::runtime_error&) {
            return std::locale::classic();
        }
    }();
    return locale;
}

// Empty when the text is not valid UTF-8.
std::wstring inLowerCase(std::string_view text) {
    const std::locale& locale = unicodeLocale();
    std::wstring wide(text.size(), L'\0');
    std::mbstate_t state = {};
    const char* read = nullptr;
    wchar_t* written = nullptr;
    const auto& codecvt = std::use_facet<std::codecvt<wchar_t, char, std::mbstate_t>>(locale);
    if (codecvt.in(state, text.data(), text.data() + text.size(), read, wide.data(),
                   wide.data() + wide.size(), written) != std::codecvt_base::ok) {
        return {};
    }
    wide.resize(static_cast<std::size_t>(written - wide.data()));
    std::use_facet<std::ctype<wchar_t>>(locale).tolower(wide.data(), wide.data() + wide.size());
    return wide;
}

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view kSpaces = " \t\r\n";
    const auto first = text.find_first_not_of(kSpaces);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(kSpaces) - first + 1);
}

// A plus sign at the very end, after another one or alone, is the key that types it.
std::vector<std::string_view> partsOf(std::string_view text) {
    std::vector<std::string_view> parts;
    std::string_view rest = trimmed(text);
    while (rest != "+") {
        const auto plus = rest.find('+');
        parts.push_back(trimmed(rest.substr(0, plus)));
        if (plus == std::string_view::npos) {
            return parts;
        }
        rest = trimmed(rest.substr(plus + 1));
    }
    parts.push_back(rest);
    return parts;
}

std::uint64_t modifierNamed(std::string_view name) {
    const std::wstring lowerCase = inLowerCase(name);
    for (const auto& [modifier, flag] : kModifierNames) {
        if (lowerCase == modifier) {
            return flag;
        }
    }
    return 0;
}

std::optional<std::uint16_t> keyCodeTyping(std::string_view text, KeyboardLayout& layout) {
    const std::wstring wanted = inLowerCase(text);
    for (const VirtualKey& key : virtualKeys()) {
        if (!key.name.empty()) {
            continue; // so that a digit is never taken for the one on the keypad
        }
        const std::string typed = layout.textForKeyDown(key.keyCode, 0);
        if (typed == text || (!wanted.empty() && inLowerCase(typed) == wanted)) {
            return key.keyCode;
        }
    }
    return std::nullopt;
}

std::string quoted(std::string_view text) {
    return '"' + std::string(text) + '"';
}

HotKeyTextResult failure(std::string sentence) {
    return {std::nullopt, std::move(sentence)};
}

} // namespace

HotKeyTextResult parseHotKeyText(std::string_view text, KeyboardLayout* layout) {
    if (trimmed(text).empty()) {
        return failure("No hot key was given.");
    }
    HotKeyCombination combination;
    std::string_view key;
    for (const std::string_view part : partsOf(text)) {
        if (part.empty()) {
            return failure(quoted(text) + " has a plus sign with nothing before or after it.");
        }
        if (const std::uint64_t flag = modifierNamed(part); flag != 0) {
            combination.modifierFlags |= flag;
        } else if (key.empty()) {
            key = part;
        } else {
            return failure(quoted(key) + " and " + quoted(part) +
                           " are both keys, but a hot key has only one.");
        }
    }
    if (key.empty()) {
        return failure(quoted(text) + " has no key besides its modifiers.");
    }

    auto keyCode = virtualKeyCodeNamed(key);
    if (!keyCode && layout != nullptr) {
        keyCode = keyCodeTyping(key, *layout);
    }
    if (!keyCode) {
        return failure(quoted(key) + (layout != nullptr
                                          ? " is not a key's name, and no key of the current "
                                            "keyboard layout types it."
                                          : " is not a key's name, and the keyboard layout that "
                                            "could tell which key types it cannot be read."));
    }
    if (combination.modifierFlags == 0 && !isFunctionKeyCode(*keyCode)) {
        return failure(quoted(key) + " needs a modifier: only function, arrow and navigation keys "
                                     "can be hot keys alone.");
    }
    combination.keyCode = *keyCode;
    return {combination, {}};
}

} // namespace nocturo
