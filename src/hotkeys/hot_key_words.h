#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace nocturo {

class KeyboardLayout;

// Hot keys as people find them on their keyboards, in the user's language.

/// "Ctrl+Alt+Super+I", "Super+Page Up". `typed` is what the key types alone, for keys that have no
/// name; parseHotKeyText() reads the whole.
std::string hotKeyWords(std::uint16_t keyCode, std::uint64_t modifierFlags,
                        const std::string& typed);

/// The same, by a layout, which may be null.
std::string hotKeyWords(std::uint16_t keyCode, std::uint64_t modifierFlags, KeyboardLayout* layout);

/// The modifier's flag, or the key's code, that has this name, in any letter case and with or
/// without spaces in it; nothing where none has.
std::optional<std::uint64_t> modifierOfWord(std::string_view word);
std::optional<std::uint16_t> keyOfWords(std::string_view words);

} // namespace nocturo
