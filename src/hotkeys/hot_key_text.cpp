#include "hotkeys/hot_key_text.h"

#include "base/texts/translated.h"
#include "hotkeys/hot_key_words.h"
#include "hotkeys/key_naming.h"
#include "hotkeys/keyboard/keyboard_layout.h"
#include "hotkeys/keyboard/modifier_flags.h"
#include "hotkeys/keyboard/virtual_key_codes.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cstdlib>
#include <cwctype>
#include <locale.h>
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

/// Has the C library's functions of text take it for UTF-8, whatever locale the user's terminal
/// has.
class UnicodeScope {
  public:
    UnicodeScope() {
        static const locale_t unicode = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
        before_ = uselocale(unicode);
    }
    ~UnicodeScope() { uselocale(before_); }
    UnicodeScope(const UnicodeScope&) = delete;
    UnicodeScope& operator=(const UnicodeScope&) = delete;

  private:
    locale_t before_;
};

// Empty when the text is not valid UTF-8. To be called in a UnicodeScope.
std::wstring wideText(std::string_view text) {
    std::wstring wide(text.size(), L'\0');
    const std::size_t length = std::mbstowcs(wide.data(), std::string(text).c_str(), wide.size());
    wide.resize(length != static_cast<std::size_t>(-1) ? length : 0);
    return wide;
}

// Virtual key codes whose glyphs stand for these.
constexpr auto kGlyphModifiers =
    std::to_array<std::pair<std::uint16_t, std::uint64_t>>({{59, NSControlKeyMask},
                                                            {58, NSAlternateKeyMask},
                                                            {56, NSShiftKeyMask},
                                                            {55, NSCommandKeyMask}});

// Hot keys are shown in capitals, so that "Ö" must find the key that types "ö". Empty when the text
// is not valid UTF-8.
std::wstring inLowerCase(std::string_view text) {
    const UnicodeScope scope;
    std::wstring wide = wideText(text);
    for (wchar_t& character : wide) {
        character = static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(character)));
    }
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
    return modifierOfWord(name).value_or(0);
}

/// Takes a modifier's glyph from the beginning of a part, as hot keys are shown; 0 where there is
/// none, or nothing behind it.
std::uint64_t takeModifierGlyph(std::string_view& part) {
    for (const auto& [keyCode, flag] : kGlyphModifiers) {
        const auto* glyph =
            std::ranges::find(HXSpecialKeyGlyphs, keyCode, &SpecialKeyGlyph::keyCode);
        if (part.size() > glyph->text.size() && part.starts_with(glyph->text)) {
            part.remove_prefix(glyph->text.size());
            return flag;
        }
    }
    return 0;
}

std::optional<std::uint16_t> keyCodeOfGlyph(std::string_view text) {
    const auto* glyph = std::ranges::find(HXSpecialKeyGlyphs, text, &SpecialKeyGlyph::text);
    return glyph != HXSpecialKeyGlyphs.end() ? std::optional(glyph->keyCode) : std::nullopt;
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

} // namespace

std::string inCapitals(std::string_view text) {
    const UnicodeScope scope;
    const std::wstring wide = wideText(text);
    if (wide.empty()) {
        return std::string(text);
    }
    std::string capitals;
    for (const wchar_t character : wide) {
        if (character == L'ß') {
            capitals += "SS"; // the only letter on a key whose capital is two
            continue;
        }
        const auto capital = std::towupper(static_cast<std::wint_t>(character));
        std::array<char, MB_LEN_MAX> bytes{};
        const int length = std::wctomb(bytes.data(), static_cast<wchar_t>(capital));
        capitals.append(bytes.data(), static_cast<std::size_t>(std::max(length, 0)));
    }
    return capitals;
}

std::string withoutModifierGlyphs(std::string_view text) {
    while (takeModifierGlyph(text) != 0) {
    }
    return std::string(text);
}

std::string hotKeyTextSyntax() {
    return translated(
        "A hot key is one key and any of ctrl, alt, shift and super, joined by +, such as "
        "ctrl+super+F5; nocturoctl hotkey --help lists the keys.");
}

Result<HotKeyCombination> parseHotKeyText(std::string_view text, KeyboardLayout* layout) {
    if (trimmed(text).empty()) {
        return failed(translated("No hot key was given."));
    }
    HotKeyCombination combination;
    std::string_view key;
    for (std::string_view part : partsOf(text)) {
        while (const std::uint64_t flag = takeModifierGlyph(part)) {
            combination.modifierFlags |= flag;
        }
        if (part.empty()) {
            return failed(translated("\"%@\" has a plus sign with nothing before or after it.",
                                     {std::string(text)}));
        }
        if (const std::uint64_t flag = modifierNamed(part); flag != 0) {
            combination.modifierFlags |= flag;
        } else if (key.empty()) {
            key = part;
        } else {
            return failed(translated("\"%@\" and \"%@\" are both keys, but a hot key has only one.",
                                     {std::string(key), std::string(part)}));
        }
    }
    if (key.empty()) {
        return failed(translated("\"%@\" has no key besides its modifiers.", {std::string(text)}));
    }

    auto keyCode = keyOfWords(key);
    if (!keyCode) {
        keyCode = keyCodeOfGlyph(key);
    }
    if (!keyCode && layout != nullptr) {
        keyCode = keyCodeTyping(key, *layout);
    }
    if (!keyCode && layout != nullptr) {
        return failed(translated("\"%@\" is not a key's name, and no key of the current keyboard "
                                 "layout types it.",
                                 {std::string(key)}));
    }
    if (!keyCode) {
        return failed(translated("\"%@\" is not a key's name, and the keyboard layout that could "
                                 "tell which key types it cannot be read.",
                                 {std::string(key)}));
    }
    if (combination.modifierFlags == 0 && !isFunctionKeyCode(*keyCode)) {
        return failed(translated("\"%@\" needs a modifier: only function, arrow and navigation "
                                 "keys can be hot keys alone.",
                                 {std::string(key)}));
    }
    combination.keyCode = *keyCode;
    return combination;
}

} // namespace nocturo
