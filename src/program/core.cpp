#include "program/core.h"

#include "base/environment.h"
#include "base/program_files.h"
#include "program/instance_lock.h"
#include "program/surroundings.h"

#include <csignal>
#include <utility>

namespace nocturo {

std::array<int, 5> Core::signalNumbers() {
    return {SIGINT, SIGTERM, SIGHUP, InstanceLock::kReopenSignal, InstanceLock::kSwitchOffSignal};
}

Core::Core(DefaultsStore& store, EventLoop& loop)
    : runLoop(loop), sessionBus(Bus::connect(sessionBusAddress(), loop)),
      systemBus(Bus::connect(systemBusAddress(), loop)),
      defaults(store), centers{NotificationCenter::defaultCenter(), workspaceCenter,
                               distributedCenter},
      controller(defaults, centers, runLoop), wakeRepeater(controller, centers, runLoop),
      disturbances(controller, centers.local,
                   [this](auto answer) { disturberFinder.find(std::move(answer)); }),
      looks(programFile("looks", NOCTURO_DATA_FROM_BIN), dataDirectory() / "looks", centers.local),
      clock(runLoop), automation(defaults, centers.local, clock, runLoop, looks, stateDirectory()),
      desktop(runLoop, sessionBus.get(), controller, defaults, centers, lookPicker),
      keepColors(controller, defaults, centers.local, runLoop),
      hooks(controller, chosenLook, centers.local, runLoop,
            userDirectory("XDG_CONFIG_HOME", ".config") / "nocturo/hooks"),
      face(controller, defaults, centers.local, disturbances, desktop, keepColors, chosenLook,
           automation, sessionBus.get(), loop) {
    controller.setAutomation(&automation);
    controller.setFades(&fades);
    for (Bus* bus : {sessionBus.get(), systemBus.get()}) {
        if (bus != nullptr) {
            bus->rejoin();
        }
    }
    runLoop.handleSignals(signalNumbers(), [this](int number) { signalWasSent(number); });
}

void Core::signalWasSent(int number) {
    if (number == InstanceLock::kReopenSignal) {
        controller.applicationShouldHandleReopen(false);
    } else if (number == InstanceLock::kSwitchOffSignal) {
        controller.giveDisplaysBack();
    } else {
        runLoop.quit();
    }
}

} // namespace nocturo
