#pragma once

#include "base/directory_watch.h"
#include "base/run_loop.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace nocturo {

/// Tells when it is worth trying to join a bus that has gone: after pauses that grow, from a
/// hundredth of a second to minutes, and soon after something happens where its socket lies.
class AwaitedBus {
  public:
    /// Calls `tryToJoin` from the run loop, which must outlive this, until this is destroyed. It
    /// must not destroy this itself.
    AwaitedBus(const std::string& address, RunLoop& runLoop, std::function<void()> tryToJoin);

  private:
    void tryLater();

    RunLoop& runLoop_;
    std::function<void()> tryToJoin_;
    std::optional<DirectoryWatch> socket_; // where the address names a file
    std::chrono::milliseconds pause_;
    std::unique_ptr<Timer> nextTry_;
};

} // namespace nocturo
