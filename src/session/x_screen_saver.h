#pragma once

#include "x11/x_connection.h"

namespace nocturo {

class ScreenSaverState;

/// The X server's own screen saver, which desktops and lockers drive through the MIT-SCREEN-SAVER
/// extension. Reports its present state at once and changes from the event loop; nothing ever where
/// the server lacks the extension. Both must outlive the listener.
[[nodiscard]] XListener followXScreenSaver(XConnection& server, ScreenSaverState& state);

} // namespace nocturo
