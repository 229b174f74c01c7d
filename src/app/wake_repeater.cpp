#include "app/wake_repeater.h"

#include "app/app_controller.h"
#include "base/notification_names.h"
#include "base/run_loop.h"

#include <chrono>

namespace nocturo {

WakeRepeater::WakeRepeater(NDAppController& controller, const NotificationCenters& centers,
                           RunLoop& runLoop)
    : controller_(controller), centers_(centers), runLoop_(runLoop) {
    centers_.workspace.addObserver(this, NSWorkspaceDidWakeNotification,
                                   [this] { computerDidWake(); });
    centers_.local.addObserver(this, kEffectActivationNotification, [this] { effectDidSwitch(); });
}

WakeRepeater::~WakeRepeater() {
    centers_.workspace.removeObserver(this);
    centers_.local.removeObserver(this);
}

void WakeRepeater::computerDidWake() {
    using namespace std::chrono_literals;
    timers_.clear();
    if (!controller_.effectActive()) {
        return;
    }
    for (const std::chrono::milliseconds delay : {1s, 3s, 8s, 15s, 30s}) {
        timers_.push_back(runLoop_.scheduleTimer(delay, [this] { controller_.updateEffect(); }));
    }
}

void WakeRepeater::effectDidSwitch() {
    if (!controller_.effectActive()) {
        timers_.clear();
    }
}

} // namespace nocturo
