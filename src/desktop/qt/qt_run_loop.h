#pragma once

#include "base/run_loop.h"

namespace nocturo {

/// The run loop of the Qt application; timers fire on the thread that scheduled them.
class QtRunLoop : public RunLoop {
  public:
    std::unique_ptr<Timer> scheduleRepeatingTimer(std::chrono::milliseconds interval,
                                                  std::function<void()> action) override;
    std::unique_ptr<Timer> scheduleTimer(std::chrono::milliseconds delay,
                                         std::function<void()> action) override;
    std::unique_ptr<Watch> watch(int descriptor, std::function<void()> action) override;
    void callSoon(std::function<void()> action) override;
};

/// Calls the function from the event loop, before anything else that has arrived for it.
void callFirst(std::function<void()> function);

} // namespace nocturo
