#include "displays/display_factory.h"

#include "base/bus.h"
#include "base/event_loop.h"
#include "base/log.h"
#include "base/texts/translated.h"
#include "displays/calibration/profile_calibrations.h"
#include "displays/fading_hardware.h"
#include "displays/gnome/gnome_hardware.h"
#include "displays/guard/display_repair.h"
#include "displays/guard/guarded_hardware.h"
#include "displays/guard/server_mark.h"
#include "displays/kde/kde_hardware.h"
#include "displays/kernel_edid.h"
#include "displays/ramp_display_services.h"
#include "displays/simulated/simulated_hardware.h"
#include "displays/wlr/wlr_hardware.h"
#include "displays/x11/display_claim.h"
#include "displays/x11/opening_problem.h"
#include "displays/x11/randr_hardware.h"
#include "wayland/wayland_connection.h"
#include "x11/x_connection.h"

#include <charconv>
#include <chrono>
#include <utility>

namespace nocturo {

namespace {

constexpr std::chrono::milliseconds kWaitForCalibrations{100};

tl::unexpected<Problem> failedForNow(const std::string& problem) {
    return failed(problem + ' ' +
                  translated("To see what the effects do, start it with "
                             "--display-services=simulated."));
}

std::string offersNoWay(const std::string& desktop) {
    return translated("%@ offers Nocturo no way to change the colors of displays under Wayland.",
                      {desktop.empty() ? translated("This desktop") : desktop});
}

std::unique_ptr<GammaHardware> fading(std::unique_ptr<GammaHardware> hardware,
                                      const DisplaySurroundings& surroundings, RunLoop& runLoop) {
    return surroundings.fades == nullptr ? std::move(hardware)
                                         : std::make_unique<FadingHardware>(
                                               std::move(hardware), *surroundings.fades, runLoop);
}

Result<OpenedDisplays> openRandr(const DisplaySurroundings& surroundings, RunLoop& runLoop) {
    const std::string& xDisplay = surroundings.xDisplay;
    if (xDisplay.empty()) {
        return failedForNow(
            translated("There is no X server to work with, because DISPLAY is not set."));
    }
    XConnection* server = surroundings.xServer;
    if (server == nullptr) {
        return failedForNow(openingProblem(RandrRefusal::unreachable, xDisplay));
    }
    // What they ask the server is answered along with what is asked next.
    ServerMark::expect(*server);
    auto profiles = std::make_unique<ProfileCalibrations>(server, surroundings.systemBus);
    auto randr = RandrHardware::open(server);
    if (!randr) {
        return failedForNow(openingProblem(randr.error(), xDisplay));
    }
    // Before anything is captured, so that no effect is ever taken for a display's own colours.
    if (repairDisplays(**randr, *profiles) == Repair::inUse || !claimDisplays(*server)) {
        return failed(
            translated("Another Nocturo drives the displays of the X server %@.", {xDisplay}));
    }
    OpenedDisplays opened;
    opened.restoredByHand = ServerMark(*server).takeRestored();
    auto hardware =
        std::make_unique<GuardedHardware>(std::move(*randr), xDisplay, runLoop, surroundings.letGo);
    opened.services = std::make_unique<RampDisplayServices>(
        fading(std::move(hardware), surroundings, runLoop), std::move(profiles), &runLoop);
    opened.listening = server->onLoss(surroundings.lost);
    logInfo(kLogDisplays, "Displays are those of the X server " + xDisplay + ".");
    return opened;
}

/// Services that live on that connection, which they own.
OpenedDisplays waylandDisplays(WaylandConnection* compositor,
                               std::unique_ptr<RampDisplayServices> services, RunLoop& runLoop,
                               std::function<void()> lost) {
    OpenedDisplays opened;
    opened.listening = runLoop.watch(
        compositor->descriptor(), [displays = services.get(), compositor, lost = std::move(lost)] {
            displays->lookForChanges();
            if (compositor->isLost()) {
                lost();
            }
        });
    opened.services = std::move(services);
    return opened;
}

OpenedDisplays wlrDisplays(std::unique_ptr<WaylandConnection> connection,
                           const DisplaySurroundings& surroundings, RunLoop& runLoop) {
    WaylandConnection* compositor = connection.get();
    auto hardware = std::make_unique<WlrHardware>(std::move(connection), kKernelConnectors);
    auto calibrations = std::make_unique<ProfileCalibrations>(nullptr, surroundings.systemBus);
    // These compositors load no profile's calibration, so nothing shows it before an effect does.
    std::vector<Head> heads;
    hardware->listHeads(heads);
    for (const Head& head : heads) {
        calibrations->calibration(head.connector, head.rampSize);
    }
    calibrations->waitForAnswers(kWaitForCalibrations);
    auto services = std::make_unique<RampDisplayServices>(
        fading(std::move(hardware), surroundings, runLoop), std::move(calibrations), &runLoop);
    logInfo(kLogDisplays, "Displays are those of a Wayland compositor with wlr-gamma-control.");
    return waylandDisplays(compositor, std::move(services), runLoop, surroundings.lost);
}

OpenedDisplays kdeDisplays(std::unique_ptr<WaylandConnection> connection,
                           const DisplaySurroundings& surroundings, RunLoop& runLoop) {
    WaylandConnection* compositor = connection.get();
    auto hardware = std::make_unique<KdeHardware>(std::move(connection),
                                                  KdePlaces{surroundings.waylandDisplay,
                                                            surroundings.runtimeDirectory,
                                                            surroundings.stateDirectory},
                                                  runLoop);
    auto calibrations = std::make_unique<KdeCalibrations>(hardware->profiles());
    // No fade: it takes one profile at a time, and each from a file.
    auto services = std::make_unique<RampDisplayServices>(std::move(hardware),
                                                          std::move(calibrations), &runLoop);
    logInfo(kLogDisplays, "Displays are those of KWin, by their color profiles.");
    return waylandDisplays(compositor, std::move(services), runLoop, surroundings.lost);
}

struct FoundShell {
    std::unique_ptr<Bus> bus; // of its own, see GnomeHardware
    Shell shell;
};

std::optional<FoundShell> shellOn(const std::string& sessionBus, EventLoop& loop) {
    constexpr int kPatienceMs = 1000;
    auto bus = Bus::connect(sessionBus, loop);
    if (bus != nullptr) {
        bus->rejoin(); // a desktop may start its shell anew along with the bus
    }
    auto shell = bus != nullptr ? findShell(*bus, kPatienceMs) : std::nullopt;
    return shell ? std::optional(FoundShell{std::move(bus), std::move(*shell)}) : std::nullopt;
}

/// `compositor`, which may be null, only tells when the session ends.
Result<OpenedDisplays> shellsDisplays(FoundShell found,
                                      const std::shared_ptr<WaylandConnection>& compositor,
                                      const DisplaySurroundings& surroundings, EventLoop& loop) {
    const std::string desktop = found.shell.names->desktop;
    const JournalFile journal =
        shellJournalFile(surroundings.runtimeDirectory, *found.bus, found.shell);
    const ShellRepair repaired = repairShell(*found.bus, found.shell, journal);
    if (repaired == ShellRepair::inUse) {
        return failed(translated("Another Nocturo drives the displays of %@.", {desktop}));
    }
    const char* connection = "";
    sd_bus_get_unique_name(found.bus->handle(), &connection);
    auto guard = std::make_unique<ShellGuard>(found.shell, journal, connection, loop);
    auto hardware = std::make_unique<GnomeHardware>(std::move(found.bus), std::move(found.shell),
                                                    std::move(guard), kKernelConnectors, loop);
    if (repaired == ShellRepair::failed || !hardware->waitForShell()) {
        return failedForNow(translated("%@ does not tell Nocturo of its displays.", {desktop}));
    }
    if (hardware->isNested()) {
        return failedForNow(offersNoWay(desktop));
    }
    OpenedDisplays opened;
    opened.services = std::make_unique<RampDisplayServices>(
        fading(std::move(hardware), surroundings, loop),
        std::make_unique<ProfileCalibrations>(nullptr, surroundings.systemBus), &loop);
    if (compositor != nullptr) {
        opened.listening =
            loop.watch(compositor->descriptor(), [compositor, lost = surroundings.lost] {
                compositor->processEvents();
                if (compositor->isLost()) {
                    lost();
                }
            });
    }
    logInfo(kLogDisplays, "Displays are those of " + desktop + ".");
    return opened;
}

std::unique_ptr<WaylandConnection> compositorOf(const DisplaySurroundings& surroundings) {
    const std::string& display = surroundings.waylandDisplay;
    return display.empty() ? nullptr : WaylandConnection::open(display);
}

Result<OpenedDisplays> openGnome(const DisplaySurroundings& surroundings, EventLoop& loop) {
    auto found = shellOn(surroundings.sessionBus, loop);
    if (!found) {
        return failedForNow(translated("Neither GNOME nor Cinnamon is on the session bus."));
    }
    return shellsDisplays(std::move(*found), compositorOf(surroundings), surroundings, loop);
}

Result<OpenedDisplays> openWayland(DisplayChoice::Kind kind,
                                   const DisplaySurroundings& surroundings, EventLoop& loop) {
    using Kind = DisplayChoice::Kind;
    auto compositor = compositorOf(surroundings);
    if (compositor == nullptr) {
        return failedForNow(translated("No Wayland compositor answers."));
    }
    if (kind != Kind::kde && WlrHardware::isOfferedBy(*compositor)) {
        return wlrDisplays(std::move(compositor), surroundings, loop);
    }
    if (kind != Kind::wlr && KdeHardware::isOfferedBy(*compositor)) {
        return kdeDisplays(std::move(compositor), surroundings, loop);
    }
    if (kind == Kind::automatic) {
        if (auto found = shellOn(surroundings.sessionBus, loop)) {
            return shellsDisplays(std::move(*found), std::move(compositor), surroundings, loop);
        }
    }
    if (KdeHardware::isTooOld(*compositor)) {
        return failedForNow(
            translated("Plasma 5 offers Nocturo no way to change the colors of displays under "
                       "Wayland; choose its X11 session when logging in, or use Plasma 6."));
    }
    return failedForNow(offersNoWay(surroundings.desktop));
}

OpenedDisplays openSimulated(unsigned count, const DisplaySurroundings& surroundings,
                             RunLoop& runLoop) {
    const std::filesystem::path& pictureDirectory = surroundings.runtimeDirectory;
    OpenedDisplays opened;
    auto hardware =
        std::make_unique<SimulatedHardware>(count, pictureDirectory, surroundings.drawPicture);
    opened.services =
        std::make_unique<RampDisplayServices>(fading(std::move(hardware), surroundings, runLoop));
    if (!pictureDirectory.empty()) {
        opened.notice = translated("Displays are simulated; their pictures are in %@.",
                                   {pictureDirectory.string()});
    }
    return opened;
}

} // namespace

std::optional<DisplayChoice> parseDisplayChoice(std::string_view text) {
    using Kind = DisplayChoice::Kind;
    constexpr std::string_view kSimulated = "simulated";
    if (text == "auto") {
        return DisplayChoice{Kind::automatic};
    }
    if (text == "randr") {
        return DisplayChoice{Kind::randr};
    }
    if (text == "wlr") {
        return DisplayChoice{Kind::wlr};
    }
    if (text == "gnome") {
        return DisplayChoice{Kind::gnome};
    }
    if (text == "kde") {
        return DisplayChoice{Kind::kde};
    }
    if (!text.starts_with(kSimulated)) {
        return std::nullopt;
    }
    DisplayChoice choice{Kind::simulated};
    text.remove_prefix(kSimulated.size());
    if (text.empty()) {
        return choice;
    }
    const char* end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data() + 1, end, choice.simulatedCount);
    const bool isNumber = text.front() == ':' && error == std::errc() && rest == end;
    if (!isNumber || choice.simulatedCount < 1 || choice.simulatedCount > kMaxSimulatedHeads) {
        return std::nullopt;
    }
    return choice;
}

Result<OpenedDisplays> openDisplays(const DisplayChoice& choice,
                                    const DisplaySurroundings& surroundings, EventLoop& loop) {
    using Kind = DisplayChoice::Kind;
    switch (choice.kind) {
    case Kind::simulated:
        return openSimulated(choice.simulatedCount, surroundings, loop);
    case Kind::wlr:
    case Kind::kde:
        return openWayland(choice.kind, surroundings, loop);
    case Kind::gnome:
        return openGnome(surroundings, loop);
    case Kind::randr:
        return openRandr(surroundings, loop);
    case Kind::automatic:
        break;
    }
    // An X server in a Wayland session has windows, and no displays.
    return surroundings.waylandDisplay.empty() ? openRandr(surroundings, loop)
                                               : openWayland(choice.kind, surroundings, loop);
}

} // namespace nocturo
