#include "ctl/restore.h"

#include "base/bus.h"
#include "base/environment.h"
#include "base/event_loop.h"
#include "base/file_descriptor.h"
#include "base/runtime_directory.h"
#include "base/texts/translated.h"
#include "bus/running_application.h"
#include "ctl/failure.h"
#include "ctl/output.h"
#include "displays/calibration/profile_calibrations.h"
#include "displays/gnome/shell_journal.h"
#include "displays/guard/display_repair.h"
#include "displays/kde/output_devices.h"
#include "displays/kde/restore_profiles.h"
#include "displays/x11/opening_problem.h"

#include <csignal>
#include <optional>
#include <sys/time.h>
#include <unistd.h>

// Somebody sits in front of screens that cannot be read, so nothing that may be broken is needed,
// and nothing that hangs holds it up for long.

namespace nocturo {

namespace {

constexpr int kPatienceWithNocturoMs = 500;
constexpr int kPatienceWithShellMs = 1000;
constexpr timeval kPatienceWithServer{2, 0};
constexpr timeval kPatienceWithCompositor{2, 700000}; // and with all that is asked besides

constexpr ListedText kSwitchedOff =
    ListedText("Nocturo has switched its effect off and given the displays back.");

constexpr ListedText kMayChangeAgain =
    ListedText("The displays have been given back, but a Nocturo that does not answer still runs "
               "and may change them again.");
constexpr ListedText kOwnColors = ListedText(
    "The displays have their own colors back, as they were before Nocturo changed them.");
constexpr ListedText kNothingChanged =
    ListedText("Nocturo has left no display changed, so nothing was done.");

/// Ends this process with a sentence when all takes too long: a server that is stopped holds up
/// everybody who asks it something.
class Deadline {
  public:
    Deadline(const std::string& sentence, timeval patience) {
        sentence_ = "nocturoctl: " + sentence + '\n';
        std::signal(SIGALRM, tooLate);
        const itimerval once{{}, patience};
        setitimer(ITIMER_REAL, &once, nullptr);
    }
    ~Deadline() {
        const itimerval none{};
        setitimer(ITIMER_REAL, &none, nullptr);
    }
    Deadline(const Deadline&) = delete;
    Deadline& operator=(const Deadline&) = delete;

  private:
    static void tooLate(int /*signal*/) {
        writeAll(STDERR_FILENO, sentence_);
        _exit(kFailed);
    }

    static inline std::string sentence_;
};

ListedText told(const RestoredByHand& done, bool switchedOff) {
    switch (done.repair) {
    case Repair::notNeeded:
    case Repair::inUse:
        break;
    case Repair::ownRamps:
    case Repair::plainRamps:
        if (done.askedNocturo) {
            return kMayChangeAgain;
        }
        return done.repair == Repair::ownRamps
                   ? kOwnColors
                   : ListedText("The displays have plain colors now, or those of their color "
                                "profiles.");
    }
    return switchedOff || done.askedNocturo ? kSwitchedOff : kNothingChanged;
}

/// Under KWin; nothing elsewhere.
std::optional<ListedText> restoreProfiles(const std::string& display, bool switchedOff) {
    const auto compositor = display.empty() ? nullptr : WaylandConnection::open(display);
    if (compositor == nullptr || !OutputDevices::areOfferedBy(*compositor)) {
        return std::nullopt;
    }
    const auto directory = stateDirectory();
    const bool asked = !switchedOff && askProfileChanger(directory);
    if (asked && waitUntilProfilesAreBack(*compositor)) {
        return kSwitchedOff;
    }
    switch (restoreProfiles(*compositor, directory)) {
    case ProfileRepair::restored:
        return asked ? kMayChangeAgain : kOwnColors;
    case ProfileRepair::notNeeded:
        return switchedOff ? kSwitchedOff : kNothingChanged;
    case ProfileRepair::failed:
        break;
    }
    throw Failure{kFailed, translated("The desktop does not take the color profiles of the "
                                      "displays back; choose them in its settings.")};
}

/// The displays of GNOME or Cinnamon; nothing where there is no such shell, or where they are an X
/// server's, which needs no bus.
std::optional<RestoredByHand> restoreOverTheBus(const Bus* bus) {
    const auto directory = runtimeDirectory();
    const bool isWayland = !environment("WAYLAND_DISPLAY").empty();
    const bool mayHaveDisplays = directory && (isWayland || hasShellJournals(*directory));
    // A bus that was silent until now is not waited for once more.
    const bool answers = bus != nullptr && sd_bus_is_ready(bus->handle()) > 0;
    const auto shell =
        mayHaveDisplays && answers ? findShell(*bus, kPatienceWithShellMs) : std::nullopt;
    if (!shell) {
        return std::nullopt;
    }
    switch (repairShell(*bus, *shell, shellJournalFile(*directory, *bus, *shell), {}, true)) {
    case ShellRepair::notNeeded:
        break;
    case ShellRepair::ownRamps:
        return RestoredByHand{Repair::ownRamps, false};
    case ShellRepair::plainRamps:
        return RestoredByHand{Repair::plainRamps, false};
    case ShellRepair::inUse:
        return RestoredByHand{Repair::ownRamps, true};
    case ShellRepair::failed:
        throw Failure{kFailed, translated("%@ does not tell Nocturo of its displays.",
                                          {shell->names->desktop})};
    }
    return isWayland ? std::optional(RestoredByHand{}) : std::nullopt;
}

/// On the X server of that display.
Result<RestoredByHand, RandrRefusal> restoreOnServer(const std::string& display, EventLoop& loop) {
    const auto server = XConnection::open(display);
    const auto hardware = RandrHardware::open(server.get());
    if (!hardware) {
        return tl::unexpected(hardware.error());
    }
    const auto systemBus = Bus::connect(systemBusAddress(), loop);
    ProfileCalibrations calibrations(server.get(), systemBus.get());
    return restoreDisplaysByHand(**hardware, calibrations);
}

ListedText restore(const std::string& display, const std::string& waylandDisplay) {
    EventLoop loop;
    // Whoever is reached over the bus may be one that changes other displays.
    const auto bus = Bus::connect(sessionBusAddress(), loop);
    const bool switchedOff =
        bus != nullptr && switchRunningApplicationOff(*bus, kPatienceWithNocturoMs);
    // What a Wayland session has for an X server may have to be started first; elsewhere the X
    // server comes first, because it needs nobody else.
    Result<RestoredByHand, RandrRefusal> onServer{};
    if (waylandDisplay.empty()) {
        onServer = restoreOnServer(display, loop);
        if (onServer && (onServer->askedNocturo || onServer->repair != Repair::notNeeded)) {
            return told(*onServer, switchedOff);
        }
    }
    if (const auto done = restoreProfiles(waylandDisplay, switchedOff)) {
        return *done;
    }
    if (const auto done = restoreOverTheBus(bus.get())) {
        return told(*done, switchedOff);
    }
    if (!waylandDisplay.empty()) {
        onServer = restoreOnServer(display, loop);
    }
    if (onServer || switchedOff) {
        return told(onServer.value_or(RestoredByHand{}), switchedOff);
    }
    throw Failure{kFailed, display.empty()
                               ? translated("There is no X server whose displays could be given "
                                            "back, because DISPLAY is not set.")
                               : openingProblem(onServer.error(), display)};
}

} // namespace

void restoreDisplays() {
    const std::string display = environment("DISPLAY");
    const std::string waylandDisplay = environment("WAYLAND_DISPLAY");
    const Deadline deadline(
        waylandDisplay.empty() ? translated("The X server %@ does not answer.", {display})
                               : translated("The compositor %@ does not answer.", {waylandDisplay}),
        waylandDisplay.empty() ? kPatienceWithServer : kPatienceWithCompositor);
    print(restore(display, waylandDisplay).translated() + '\n');
}

} // namespace nocturo
