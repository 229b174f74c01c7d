#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace nocturo {

/// A running timer; destroying it stops it.
class Timer {
  public:
    virtual ~Timer() = default;
};

/// The event loop of the main thread, as far as the logic needs it.
class RunLoop {
  public:
    virtual ~RunLoop() = default;

    /// Calls `action` every `interval` until the returned timer is destroyed.
    [[nodiscard]] virtual std::unique_ptr<Timer>
    scheduleRepeatingTimer(std::chrono::milliseconds interval, std::function<void()> action) = 0;

    /// Calls `action` once after `delay`, unless the returned timer is destroyed before.
    [[nodiscard]] virtual std::unique_ptr<Timer> scheduleTimer(std::chrono::milliseconds delay,
                                                               std::function<void()> action) = 0;
};

} // namespace nocturo
