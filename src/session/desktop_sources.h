#pragma once

#include "base/notification_center.h"

#include <memory>
#include <string>

namespace nocturo {

class Bus;
class RunLoop;
class XConnection;

/// What the desktop around the application tells: posts on the workspace center when the computer
/// wakes up, the session becomes active and applications quit, and on the distributed center when
/// the screen saver starts and stops. A source that is missing is absent; the others go on.
class DesktopSources {
  public:
    struct Surroundings {
        XConnection* server;   // the X server that the displays are of; null for none
        std::string sessionId; // $XDG_SESSION_ID; empty when not set
        const Bus* sessionBus; // null where there is none
        const Bus* systemBus;
    };

    /// All that is posted comes from the event loop, but for the start of a screen saver of the X
    /// server that runs already: it is posted at once. Make it after the launch. `centers`,
    /// `runLoop` and the surroundings must outlive it.
    DesktopSources(const NotificationCenters& centers, RunLoop& runLoop,
                   const Surroundings& surroundings);
    ~DesktopSources();
    DesktopSources(const DesktopSources&) = delete;
    DesktopSources& operator=(const DesktopSources&) = delete;

  private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace nocturo
