#pragma once

#include "app/app_controller.h"
#include "app/disturbance_watch.h"
#include "app/hooks.h"
#include "app/keep_colors.h"
#include "app/look_picker.h"
#include "app/wake_repeater.h"
#include "automation/automation.h"
#include "base/bus.h"
#include "base/event_loop.h"
#include "base/notification_center.h"
#include "base/wall_clock.h"
#include "bus/bus_face.h"
#include "displays/fades.h"
#include "documents/chosen_look.h"
#include "documents/looks.h"
#include "program/desktop_on_demand.h"
#include "session/disturber_finder.h"

#include <array>
#include <memory>

namespace nocturo {

class DefaultsStore;

/// What every Nocturo is made of before it knows whether it is the one of its session: the
/// controller with its windows, the buses and its face on one, and what signals tell it. Touches
/// neither displays nor the desktop.
struct Core {
    /// To be blocked before the application is made.
    static std::array<int, 5> signalNumbers();

    /// Both must outlive the core.
    Core(DefaultsStore& store, EventLoop& loop);

    EventLoop& runLoop;
    const std::unique_ptr<Bus> sessionBus; // null where there is none
    const std::unique_ptr<Bus> systemBus;
    DefaultsStore& defaults;
    NotificationCenter workspaceCenter;
    NotificationCenter distributedCenter;
    const NotificationCenters centers;
    Fades fades;
    NDAppController controller;
    const WakeRepeater wakeRepeater;
    DisturberFinder disturberFinder{sessionBus.get()};
    const DisturbanceWatch disturbances;
    Looks looks;
    ChosenLook chosenLook{looks};
    LookPicker lookPicker{controller, chosenLook};
    SystemWallClock clock;
    Automation automation;
    DesktopOnDemand desktop;
    KeepColors keepColors;
    Hooks hooks;
    BusFace face;

  private:
    void signalWasSent(int number);
};

} // namespace nocturo
