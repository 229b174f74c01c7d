#pragma once

#include "app/app_controller.h"
#include "app/disturbance_watch.h"
#include "app/wake_repeater.h"
#include "app/windows/app_windows.h"
#include "control/bus_face.h"
#include "platform/desktop/posix_signals.h"
#include "platform/desktop/qt_run_loop.h"
#include "platform/notification_center.h"
#include "platform/workspace/disturber_finder.h"

#include <array>

namespace nocturo {

class DefaultsStore;

/// What every Nocturo is made of before it knows whether it is the one of its session: the
/// controller with its windows, its face on the bus, and what POSIX signals tell it. Touches
/// neither displays nor the desktop. Needs a QApplication.
struct Core {
    /// To be blocked before the application is made.
    static std::array<int, 5> signalNumbers();

    explicit Core(DefaultsStore& store);

    DefaultsStore& defaults;
    NotificationCenter workspaceCenter;
    NotificationCenter distributedCenter;
    const NotificationCenters centers;
    QtRunLoop runLoop;
    NDAppController controller;
    const WakeRepeater wakeRepeater;
    DisturberFinder disturberFinder;
    const DisturbanceWatch disturbances;
    AppWindows windows;
    BusFace face;
    const PosixSignals signals;

  private:
    void signalWasSent(int number);
};

} // namespace nocturo
