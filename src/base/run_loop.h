#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace nocturo {

/// A running timer; destroying it stops it. Its own action may destroy it.
class Timer {
  public:
    virtual ~Timer() = default;
};

/// A descriptor that is being watched; destroying it ends that. Its own action may destroy it.
class Watch {
  public:
    virtual ~Watch() = default;
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

    /// Calls `action` whenever the descriptor is readable or at its end, until the returned watch
    /// is destroyed. Null for a negative descriptor. The descriptor must stay open as long.
    [[nodiscard]] virtual std::unique_ptr<Watch> watch(int descriptor,
                                                       std::function<void()> action) = 0;

    /// The same for what reads ahead, as connections do while they wait for an answer: `action` is
    /// also called when `hasRead`, which is asked each time before the loop waits, says so.
    [[nodiscard]] virtual std::unique_ptr<Watch> watch(int descriptor, std::function<void()> action,
                                                       std::function<bool()> hasRead) = 0;

    /// Calls `action` once from the loop, after everything that runs now has returned. Actions are
    /// called in the order in which they were handed over.
    virtual void callSoon(std::function<void()> action) = 0;
};

} // namespace nocturo
