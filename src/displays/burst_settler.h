#pragma once

#include <functional>
#include <memory>

namespace nocturo {

class RunLoop;
class Timer;

/// Turns a burst of events into one call, made from the event loop: after 50 ms without another
/// event, but at most 250 ms after the first.
class BurstSettler {
  public:
    BurstSettler(RunLoop& runLoop, std::function<void()> settled);
    ~BurstSettler();

    /// An event came.
    void note();

  private:
    void settle();

    RunLoop& runLoop_;
    std::function<void()> settled_;
    std::unique_ptr<Timer> quiet_;
    std::unique_ptr<Timer> limit_;
};

} // namespace nocturo
