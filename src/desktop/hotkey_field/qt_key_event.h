#pragma once

#include "hotkeys/key_event.h"

#include <optional>

class QKeyEvent;

namespace nocturo {

/// A press or release in a window, in terms of key positions: command is Super, option is Alt, the
/// function flag is set on function, arrow and navigation keys, and caps lock where Qt passes the X
/// modifier state on (X11 and Wayland). A modifier or lock key is NSFlagsChanged, whichever way it
/// goes. `characters` are given as `charactersIgnoringModifiers` too: they are of use for keys
/// pressed alone. Nothing for a key without a virtual key code.
std::optional<KeyEvent> keyEventFromQt(const QKeyEvent& event);

} // namespace nocturo
