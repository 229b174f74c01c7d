#pragma once

#include "app/app_controller.h"
#include "app/disturbance_watch.h"
#include "app/wake_repeater.h"
#include "base/notification_center.h"
#include "bus/bus_face.h"
#include "desktop/app_windows.h"
#include "desktop/qt/qt_run_loop.h"
#include "program/posix_signals.h"
#include "session/disturber_finder.h"

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
