#include "hotkeys/key_naming.h"

#include "hotkeys/keyboard/keyboard_layout.h"
#include "hotkeys/keyboard/modifier_flags.h"

#include <algorithm>

namespace nocturo {

namespace {

constexpr std::array<SpecialKeyGlyph, 46> kGlyphs = {{
    {36, "↩"},    {48, "⇥"},    {49, "⎵"},    {51, "⌫"},    {53, "⎋"},    {55, "⌘"},
    {56, "⇧"},    {57, "⇪"},    {58, "⌥"},    {59, "⌃"},    {60, "⇧"},    {61, "⌥"},
    {62, "⌃"},    {63, "⌘"},    {64, "F17"},  {72, "🔊"},    {73, "🔈"},    {74, "🔇"},
    {79, "F18"},  {80, "F19"},  {90, "F20"},  {96, "F5"},   {97, "F6"},   {98, "F7"},
    {99, "F3"},   {100, "F8"},  {101, "F9"},  {103, "F11"}, {105, "F13"}, {106, "F16"},
    {107, "F14"}, {109, "F10"}, {111, "F12"}, {113, "F15"}, {115, "↖"},   {116, "⇞"},
    {117, "⌦"},   {118, "F4"},  {119, "↘"},   {120, "F2"},  {121, "⇟"},   {122, "F1"},
    {123, "←"},   {124, "→"},   {125, "↓"},   {126, "↑"},
}};
static_assert(std::ranges::is_sorted(kGlyphs, {}, &SpecialKeyGlyph::keyCode));

constexpr std::string_view glyphOfKey(std::uint16_t keyCode) {
    const auto* found = std::ranges::lower_bound(kGlyphs, keyCode, {}, &SpecialKeyGlyph::keyCode);
    return found != kGlyphs.end() && found->keyCode == keyCode ? found->text : std::string_view();
}

constexpr std::uint16_t kCommandKeyCode = 55;
constexpr std::uint16_t kShiftKeyCode = 56;
constexpr std::uint16_t kOptionKeyCode = 58;
constexpr std::uint16_t kControlKeyCode = 59;

// The left-hand keys only: the right-hand ones and caps lock have a name besides their flag.
constexpr bool isNamedByItsFlag(std::uint16_t keyCode) {
    return keyCode == kCommandKeyCode || keyCode == kShiftKeyCode || keyCode == kOptionKeyCode ||
           keyCode == kControlKeyCode;
}

} // namespace

constinit const std::array<SpecialKeyGlyph, 46> HXSpecialKeyGlyphs = kGlyphs;

std::string HXStringFromKeyCode(std::uint16_t keyCode, std::uint64_t modifierFlags,
                                KeyboardLayout* layout) {
    std::string text;
    const auto appendModifier = [&](std::uint64_t flag, std::uint16_t modifierKeyCode) {
        if ((modifierFlags & flag) != 0) {
            text += glyphOfKey(modifierKeyCode);
        }
    };
    appendModifier(NSControlKeyMask, kControlKeyCode);
    appendModifier(NSAlternateKeyMask, kOptionKeyCode);
    appendModifier(NSShiftKeyMask, kShiftKeyCode);
    appendModifier(NSCommandKeyMask, kCommandKeyCode);

    if (isNamedByItsFlag(keyCode)) {
        return text;
    }
    if (const std::string_view glyph = glyphOfKey(keyCode); !glyph.empty()) {
        text += glyph;
    } else if (layout != nullptr) {
        // The mask is deliberately not shifted into the layout's low byte: what counts is the
        // character on the key, so option-A is named "a" and not by what option makes of it.
        text += layout->textForKeyDown(keyCode, HXCarbonModifierFlagsWithAlphaLock(modifierFlags));
    }
    return text;
}

std::uint32_t HXCarbonModifierFlags(std::uint64_t flags) {
    return static_cast<std::uint32_t>(
        ((flags & NSCommandKeyMask) >> 12) | ((flags & NSShiftKeyMask) >> 8) |
        ((flags & NSAlternateKeyMask) >> 8) | ((flags & NSControlKeyMask) >> 6));
}

std::uint32_t HXCarbonModifierFlagsWithAlphaLock(std::uint64_t flags) {
    return HXCarbonModifierFlags(flags) |
           static_cast<std::uint32_t>((flags & NSAlphaShiftKeyMask) >> 6);
}

} // namespace nocturo
