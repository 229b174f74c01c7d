#pragma once

#include <cstdint>
#include <string>

namespace nocturo {

/// The keyboard layout in force, its current group included, at the moment of each call. Main
/// thread only.
class KeyboardLayout {
  public:
    virtual ~KeyboardLayout() = default;

    /// What pressing the key types, as UTF-8: keys of the keypad type as if Num Lock were on, and
    /// its Enter a glyph of its own. Empty for a dead key, for a key that types nothing or
    /// only a control character, for an unknown key code, and while no layout can be read. Keeps no
    /// dead-key state between calls.
    ///
    /// The low byte of `modifierKeyState` holds the modifiers held down: 1 command, 2 shift, 4 caps
    /// lock, 8 option, 16 control. Bits above it select nothing.
    virtual std::string textForKeyDown(std::uint16_t keyCode, std::uint32_t modifierKeyState) = 0;

    /// What XKB calls the symbol that the key types alone ("F5", "a", "KP_5"); empty where
    /// that cannot be told.
    virtual std::string keySymName(std::uint16_t /*keyCode*/) { return {}; }

    /// Whether the display server itself acts on the key with these modifiers, as to switch to
    /// another console, so that no program ever hears of it. `modifierKeyState` as above.
    virtual bool isServers(std::uint16_t /*keyCode*/, std::uint32_t /*modifierKeyState*/) {
        return false;
    }
};

} // namespace nocturo
