#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace nocturo {

class KeyboardLayout;

struct SpecialKeyGlyph {
    std::uint16_t keyCode;
    std::string_view text; // UTF-8
};

/// The keys that are named alike under every layout, by ascending key code.
extern const std::array<SpecialKeyGlyph, 46> HXSpecialKeyGlyphs;

/// How the user sees a hot key, as UTF-8: the glyphs of control, option, shift and command, in this
/// order, then the key: "⌃⌘F5", "⌘a". Letters are as the key types them alone, whatever modifiers
/// are given. A modifier key is named by the modifier glyphs alone.
///
/// Keys without a glyph of their own are asked of `layout`; where that has no text, or is null,
/// only the modifier glyphs are given, possibly none.
std::string HXStringFromKeyCode(std::uint16_t keyCode, std::uint64_t modifierFlags,
                                KeyboardLayout* layout);

/// The hot key service's modifier mask for a flag word: command, shift, option, control.
std::uint32_t HXCarbonModifierFlags(std::uint64_t flags);

/// The same with caps lock; for keyboard layouts only.
std::uint32_t HXCarbonModifierFlagsWithAlphaLock(std::uint64_t flags);

} // namespace nocturo
