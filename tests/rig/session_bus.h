#pragma once

#include "rig/process.h"
#include "rig/temporary_directory.h"

#include <optional>
#include <string>

namespace nocturo::rig {

/// A session bus of the test's own. It starts no services by itself.
class SessionBus {
  public:
    /// Throws std::runtime_error when the bus does not start.
    SessionBus();

    /// For DBUS_SESSION_BUS_ADDRESS.
    const std::string& address() const { return address_; }

    /// Waits until somebody owns the name; false when `owner` ended before, or nobody did in time.
    bool waitForName(const std::string& name, Process& owner, Milliseconds timeout = kPatience);

    /// Ends the bus as a crash would.
    void kill();

  private:
    TemporaryDirectory directory_;
    std::optional<Process> process_;
    std::string address_;
};

} // namespace nocturo::rig
