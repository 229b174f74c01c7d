#pragma once

#include "base/bus.h"
#include "x11/x_connection.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace nocturo {

class RunLoop;
class Timer;

/// Notices that applications quit: by windows leaving the window manager's list of an X server, or,
/// where there is no such list, by names leaving the session bus. Connections without a name are
/// not looked at: nearly every program has some, and drops them while it runs.
class ApplicationWatch {
  public:
    /// `server` and `bus` may be null; both must outlive the watch. Calls `quit` from the run loop,
    /// once for all that quit within a moment.
    ApplicationWatch(XConnection* server, const Bus* bus, RunLoop& runLoop,
                     std::function<void()> quit);
    ~ApplicationWatch();
    ApplicationWatch(const ApplicationWatch&) = delete;
    ApplicationWatch& operator=(const ApplicationWatch&) = delete;

  private:
    void readWindowList();
    void listenToBus(bool listen);
    void announceSoon();

    XConnection* server_;
    XListener windowList_;
    const Bus* bus_;
    RunLoop& runLoop_;
    std::function<void()> quit_;
    std::uint32_t windowListAtom_ = 0;
    std::optional<std::vector<std::uint32_t>> windows_; // sorted; none without a window manager
    std::unique_ptr<BusSlot> namesThatVanish_;          // while the bus is listened to
    std::unique_ptr<Timer> announcement_;
};

} // namespace nocturo
