#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace nocturo {

class KeyboardLayout;

/// A hot key as the portal of global shortcuts writes it: "CTRL+LOGO+F5". `modifiers` are those of
/// the hot key service. Empty where the key's symbol cannot be told.
std::string portalTrigger(std::uint16_t keyCode, std::uint32_t modifiers, KeyboardLayout* layout);

/// What gives a desktop that key by its own means: a line for its configuration where Nocturo knows
/// how that is written, or else the command for a shortcut. `desktop` is $XDG_CURRENT_DESKTOP.
std::string desktopConfiguration(std::string_view desktop, std::uint16_t keyCode,
                                 std::uint32_t modifiers, KeyboardLayout* layout);

} // namespace nocturo
