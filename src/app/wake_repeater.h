#pragma once

#include "base/notification_center.h"

#include <memory>
#include <vector>

namespace nocturo {

class NDAppController;
class RunLoop;
class Timer;

/// Applies the effect a few more times within the 30 s after the computer woke up, because some
/// drivers reset the ramps only once a monitor has come back. Ends with a switch-off; another wake
/// starts anew.
class WakeRepeater {
  public:
    /// All must outlive the repeater. Made after the controller, so that it hears of a switch after
    /// the controller has acted.
    WakeRepeater(NDAppController& controller, const NotificationCenters& centers, RunLoop& runLoop);
    ~WakeRepeater();
    WakeRepeater(const WakeRepeater&) = delete;
    WakeRepeater& operator=(const WakeRepeater&) = delete;

  private:
    void computerDidWake();
    void effectDidSwitch();

    NDAppController& controller_;
    NotificationCenters centers_;
    RunLoop& runLoop_;
    std::vector<std::unique_ptr<Timer>> timers_;
};

} // namespace nocturo
