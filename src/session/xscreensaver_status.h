#pragma once

namespace nocturo {

class ScreenSaverState;
class XEvents;

/// XScreenSaver, which tells nothing but a property of the root window. Reports its present state
/// at once if it runs, and changes, its end among them, from the event loop. Both must outlive the
/// use of `events`.
void followXScreenSaverStatus(XEvents& events, ScreenSaverState& state);

} // namespace nocturo
