#pragma once

#include "x11/x_connection.h"

#include <vector>

namespace nocturo {

class ScreenSaverState;

/// XScreenSaver, which tells nothing but a property of the root window. Reports its present state
/// at once if it runs, and changes, its end among them, from the event loop. Both must outlive the
/// listeners.
[[nodiscard]] std::vector<XListener> followXScreenSaverStatus(XConnection& server,
                                                              ScreenSaverState& state);

} // namespace nocturo
