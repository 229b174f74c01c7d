#include "ctl/restore.h"

#include "base/bus.h"
#include "base/event_loop.h"
#include "base/runtime_directory.h"
#include "base/texts/translated.h"
#include "ctl/bus_client.h"
#include "ctl/failure.h"
#include "displays/calibration/profile_calibrations.h"
#include "displays/guard/display_repair.h"
#include "displays/guard/guard_process.h"
#include "displays/guard/journal.h"
#include "displays/x11/opening_problem.h"

#include <csignal>
#include <cstdlib>
#include <iostream>

namespace nocturo {

namespace {

// Somebody sits in front of screens that cannot be read.
constexpr std::chrono::seconds kPatience{1};

constexpr ListedText kSwitchedOff =
    ListedText("Nocturo has switched its effect off and given the displays back.");

bool switchOffOverTheBus() {
    try {
        BusClient client;
        client.setPatience(kPatience);
        client.call("SetActive", false);
        return true;
    } catch (const Failure&) {
        return false; // whatever it is, what follows needs no bus
    }
}

// True when a running Nocturo switched off. One that cannot be told from another program by its
// number, or that has just ended, is sent nothing.
bool switchOffBySignal(RandrHardware& hardware, const std::filesystem::path& journal) {
    const auto nocturo = changingProcess(hardware, journal);
    return nocturo && *nocturo > 0 && kill(*nocturo, kSwitchOffSignal) == 0 &&
           waitUntilGivenBack(hardware);
}

ListedText restoreByHand() {
    const char* variable = std::getenv("DISPLAY");
    const std::string display = variable != nullptr ? variable : "";
    const auto directory = runtimeDirectory();
    if (display.empty()) {
        throw Failure{kFailed,
                      translated("There is no X server whose displays could be given back, "
                                 "because DISPLAY is not set.")};
    }
    if (!directory) {
        throw Failure{kFailed, translated("The runtime directory cannot be used; set "
                                          "XDG_RUNTIME_DIR to one of yours.")};
    }
    const auto server = XConnection::open(display);
    const auto opened = RandrHardware::open(server.get());
    if (!opened) {
        throw Failure{kFailed, openingProblem(opened.error(), display)};
    }
    RandrHardware& hardware = **opened;
    const auto journal = journalFile(*directory, display);
    if (switchOffBySignal(hardware, journal)) {
        return kSwitchedOff;
    }
    EventLoop loop;
    const auto systemBus = Bus::connect(systemBusAddress(), loop);
    ProfileCalibrations calibrations(server.get(), systemBus.get());
    switch (repairDisplays(hardware, journal, calibrations)) {
    case Repair::ownRamps:
        return ListedText(
            "The displays have their own colors back, as they were before Nocturo changed them.");
    case Repair::plainRamps:
        return ListedText("The displays have plain colors now, or those of their color profiles.");
    case Repair::inUse:
        overwriteDisplays(hardware, journal, calibrations);
        return ListedText(
            "The displays have been given back, but a Nocturo that does not answer still "
            "runs and may change them again.");
    case Repair::notNeeded:
        break;
    }
    writePlainRamps(hardware, calibrations);
    return ListedText(
        "Nocturo had left no display changed; the displays have plain colors now, or those "
        "of their color profiles.");
}

} // namespace

void restoreDisplays() {
    const ListedText done = switchOffOverTheBus() ? kSwitchedOff : restoreByHand();
    std::cout << done.translated() << '\n';
}

} // namespace nocturo
