#pragma once

#include "base/result.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace nocturo {

class KeyboardLayout;

struct HotKeyCombination {
    std::uint16_t keyCode = 0;
    std::uint64_t modifierFlags = 0; // NS...KeyMask bits of the modifiers named, no others
    bool operator==(const HotKeyCombination&) const = default;
};

/// A hot key's text as it is shown. What is not valid UTF-8 stays as it is.
std::string inCapitals(std::string_view text);

/// What is left of a hot key's text without the glyphs of its modifiers, which is its key.
std::string withoutModifierGlyphs(std::string_view text);

/// What the user may write, for help texts.
std::string hotKeyTextSyntax();

/// Reads a hot key as a user writes it: parts in any order and any letter case, joined by "+", with
/// spaces around them if wanted. The one part that names no modifier is the key: a key name, or
/// what the key types alone under `layout`, which may be null. hotKeyWords() and
/// HXStringFromKeyCode() are read as well. Only function, arrow and navigation keys are accepted
/// without a modifier; with any other key the user could not type it any more. The problem is a
/// sentence for the user.
Result<HotKeyCombination> parseHotKeyText(std::string_view text, KeyboardLayout* layout);

} // namespace nocturo
