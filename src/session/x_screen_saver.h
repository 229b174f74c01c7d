#pragma once

namespace nocturo {

class ScreenSaverState;
class XEvents;

/// The X server's own screen saver, which desktops and lockers drive through the MIT-SCREEN-SAVER
/// extension. Reports its present state at once and changes from the event loop; nothing ever where
/// the server lacks the extension. Both must outlive the use of `events`.
void followXScreenSaver(XEvents& events, ScreenSaverState& state);

} // namespace nocturo
