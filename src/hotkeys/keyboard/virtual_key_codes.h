#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace nocturo {

/// A virtual key code numbers a position on the keyboard, whatever the layout engraves there: 0 is
/// the A of a US board, 36 Return, 53 Escape. The kernel numbers the same positions by evdev code.
struct VirtualKey {
    std::uint16_t keyCode;
    std::uint16_t evdevCode;
    /// Plain ASCII, lower case; empty for modifier keys and for the keys that are known by what
    /// they type.
    std::string_view name;
};

/// X servers add this to an evdev code to make their key code.
inline constexpr std::uint16_t kEvdevToX11Offset = 8;

/// Every key of US, ISO and JIS boards, one row a key code and one an evdev code. The keys that
/// type come in the order in which a character is best looked for: main block before the extra
/// keys.
std::span<const VirtualKey> virtualKeys();

std::optional<std::uint16_t> virtualKeyCodeFromEvdev(std::uint32_t evdevCode);
std::optional<std::uint16_t> evdevFromVirtualKeyCode(std::uint16_t keyCode);

/// The name in the table ("f5", "return", "keypad5"), empty when the key has none.
std::string_view nameOfVirtualKey(std::uint16_t keyCode);

/// The key of that name in any letter case; a few usual short forms ("esc", "pgup") are known too.
std::optional<std::uint16_t> virtualKeyCodeNamed(std::string_view name);

/// Whether events of the key carry NSFunctionKeyMask: F1 to F20, the arrows, Home, End, Page up,
/// Page down and Delete. These keys make a hot key without any modifier.
bool isFunctionKeyCode(std::uint16_t keyCode);

} // namespace nocturo
