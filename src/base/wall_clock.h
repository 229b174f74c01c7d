#pragma once

#include "base/run_loop.h"

#include <chrono>
#include <functional>
#include <memory>

namespace nocturo {

/// A moment of the wall clock, to the second.
using Moment = std::chrono::sys_seconds;

/// The clock on the wall, which goes on while the machine sleeps and which users set.
class WallClock {
  public:
    virtual ~WallClock() = default;

    virtual Moment now() const = 0;

    /// Calls `action` once, unless the returned timer is destroyed before: at that moment, or as
    /// soon as the machine has woken up, the clock was set or another time zone chosen, whatever
    /// comes first.
    [[nodiscard]] virtual std::unique_ptr<Timer> wakeAt(Moment moment,
                                                        std::function<void()> action) = 0;
};

/// The system's.
class SystemWallClock final : public WallClock {
  public:
    /// `runLoop` must outlive the clock and its timers.
    explicit SystemWallClock(RunLoop& runLoop) : runLoop_(runLoop) {}

    Moment now() const override;
    std::unique_ptr<Timer> wakeAt(Moment moment, std::function<void()> action) override;

  private:
    RunLoop& runLoop_;
};

} // namespace nocturo
