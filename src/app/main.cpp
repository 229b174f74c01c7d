#include "app/app_controller.h"
#include "app/desktop_hot_keys.h"
#include "app/disturbance_watch.h"
#include "app/menus/desktop_menus.h"
#include "app/options.h"
#include "app/recent_documents.h"
#include "app/session_claim.h"
#include "app/wake_repeater.h"
#include "app/window_restoration.h"
#include "app/windows/app_windows.h"
#include "control/bus_face.h"
#include "control/launcher_face.h"
#include "platform/desktop/instance_lock.h"
#include "platform/desktop/posix_signals.h"
#include "platform/desktop/qt_log.h"
#include "platform/desktop/qt_run_loop.h"
#include "platform/desktop/runtime_directory.h"
#include "platform/desktop/session_bus.h"
#include "platform/desktop/socket_watch.h"
#include "platform/desktop/translations.h"
#include "platform/displays/display_functions.h"
#include "platform/displays/guarded/guard_process.h"
#include "platform/log.h"
#include "platform/notification_center.h"
#include "platform/notification_names.h"
#include "platform/settings/defaults_store.h"
#include "platform/settings/settings_keeper.h"
#include "platform/texts/translated.h"
#include "platform/texts/users_language.h"
#include "platform/workspace/desktop_entries.h"
#include "platform/workspace/desktop_sources.h"
#include "platform/workspace/disturber_finder.h"
#include "platform/x11/xcb_handles.h"

#include <QApplication>
#include <QFileInfo>
#include <QStandardPaths>

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace nocturo {

namespace {

constexpr int kSuccess = 0;
constexpr int kFailure = 1;
constexpr int kUsage = 2;
const std::array kSignals = {SIGINT, SIGTERM, SIGHUP, InstanceLock::kReopenSignal,
                             kSwitchOffSignal};

void tell(std::FILE* stream, const std::string& sentence) {
    std::fprintf(stream, "nocturo: %s\n", sentence.c_str());
    std::fflush(stream); // standard output may be a pipe
}

std::string systemBusAddress() {
    return qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS",
                                QStringLiteral("unix:path=/run/dbus/system_bus_socket"))
        .toStdString();
}

std::filesystem::path settingsPath() {
    return std::filesystem::path(
               QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
                   .toStdString()) /
           "nocturo" / "settings.plist";
}

std::filesystem::path stateDirectory() {
    std::filesystem::path directory = qEnvironmentVariable("XDG_STATE_HOME").toStdString();
    if (!directory.is_absolute()) {
        directory =
            std::filesystem::path(qEnvironmentVariable("HOME").toStdString()) / ".local" / "state";
    }
    return directory / "nocturo";
}

/// Whether Qt, which ends the process where it finds no desktop, has one to show windows on.
bool hasDesktop() {
    if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
        return true;
    }
    return !qEnvironmentVariableIsEmpty("DISPLAY") &&
           xcb_connection_has_error(XcbConnection(xcb_connect(nullptr, nullptr)).get()) == 0;
}

/// Without a desktop there are no windows to be seen, but everything else works: so let Qt draw
/// into memory there.
void choosePlatform() {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && !hasDesktop()) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
}

QStringList absolutePaths(const std::vector<std::string>& documents) {
    QStringList paths;
    for (const std::string& document : documents) {
        paths.append(QFileInfo(QString::fromStdString(document)).absoluteFilePath());
    }
    return paths;
}

/// False when the user would rather quit.
bool launch(NDAppController& controller, NotificationCenter& center) {
    bool launched = false;
    center.addObserver(&controller, NSApplicationDidFinishLaunchingNotification,
                       [&] { launched = controller.applicationDidFinishLaunching(); });
    center.post(NSApplicationDidFinishLaunchingNotification);
    return launched;
}

bool inEventLoop = false;

/// Qt ends the process by itself when the X server goes, if it notices before the displays do.
void endWithServer() {
    if (inEventLoop) {
        DefaultsStore::standardUserDefaults()->synchronize();
        tell(stderr, translated("The display server has gone, so Nocturo ends."));
    }
}

/// Runs the application in its event loop until it is told to end.
int run(const RunOptions& options) {
    const auto directory = runtimeDirectory();
    if (!directory) {
        tell(stderr,
             translated(
                 "The runtime directory cannot be used; set XDG_RUNTIME_DIR to one of yours."));
        return kFailure;
    }
    const auto& defaults = DefaultsStore::standardUserDefaults();
    NotificationCenter workspaceCenter;
    NotificationCenter distributedCenter;
    const NotificationCenters centers{NotificationCenter::defaultCenter(), workspaceCenter,
                                      distributedCenter};
    QtRunLoop runLoop;
    NDAppController controller(*defaults, centers, runLoop);
    const WakeRepeater wakeRepeater(controller, centers, runLoop);
    DisturberFinder disturberFinder;
    const DisturbanceWatch disturbances(
        controller, centers.local, [&](auto answer) { disturberFinder.find(std::move(answer)); });
    AppWindows windows(controller, *defaults, centers);
    BusFace face(controller, *defaults, centers.local, disturbances, windows);

    const PosixSignals signals(kSignals, [&](int number) {
        if (number == InstanceLock::kReopenSignal) {
            controller.applicationShouldHandleReopen(false);
        } else if (number == kSwitchOffSignal) {
            controller.setEffectActive(false, true);
        } else {
            QCoreApplication::quit();
        }
    });
    const QStringList documents = absolutePaths(options.documents);
    const SessionClaim claim(face, *directory, documents);
    if (!claim.isGranted()) {
        if (!claim.problem().empty()) {
            tell(stderr, claim.problem());
            return kFailure;
        }
        if (documents.isEmpty()) {
            tell(stdout, translated("Nocturo is already running."));
        }
        return kSuccess;
    }

    SettingsKeeper keeper(*defaults, settingsPath(), runLoop);
    const auto settingsWatch =
        whenReadable(keeper.fileEventDescriptor(), [&] { keeper.processFileEvents(); });

    const std::string xDisplay = qEnvironmentVariable("DISPLAY").toStdString();
    const OpenedDisplays displays =
        openDisplays(options.displays, {xDisplay, *directory, systemBusAddress()}, runLoop);
    if (displays.services == nullptr) {
        tell(stderr, displays.problem);
        return kFailure;
    }
    if (!displays.notice.empty()) {
        tell(stdout, displays.notice);
    }
    setDisplayServices(displays.services.get());
    displays.services->setChangeHandler([&](const DisplayChanges& changes) {
        callReconfigurationCallbacks(changes);
        if (changes.arrangementChanged) {
            centers.local.post(NSApplicationDidChangeScreenParametersNotification);
        }
        if (!changes.profilesChanged.empty()) {
            centers.distributed.post(NSScreenColorSpaceDidChangeNotification);
        }
    });
    std::vector<std::unique_ptr<QSocketNotifier>> displayWatches;
    for (const int descriptor : displays.eventDescriptors) {
        displayWatches.push_back(whenReadable(descriptor, [&] {
            displays.processEvents();
            if (displays.connectionLost()) {
                QCoreApplication::exit(kFailure);
            }
        }));
    }

    const auto guardWatch = whenReadable(displays.guardEndDescriptor, displays.processGuardEnd);

    const RecentDocuments recentDocuments(stateDirectory() / "recent-documents.plist");
    DesktopMenus menus(controller, *defaults, centers.local, windows, recentDocuments,
                       {connectToSessionBus(), xDisplay});
    const DesktopEntries applications(DesktopEntries::dataDirectories());
    controller.setInstalledApplications(&applications);
    WindowRestoration windowRestoration(controller, stateDirectory() / "windows.plist");
    std::optional<DesktopHotKeys> hotKeys;
    std::optional<DesktopSources> sources;
    // In the event loop, because it may ask the user and be told to end meanwhile.
    callFirst([&] {
        if (!launch(controller, centers.local)) {
            QCoreApplication::quit();
            return;
        }
        hotKeys.emplace(xDisplay);
        face.setKeyboardLayout(hotKeys->layout());
        windows.setKeyboardLayout(hotKeys->layout());
        controller.updateHotKey();
        face.announceChanges();
        const bool displaysOfX = displays.services->name() == "randr";
        sources.emplace(
            centers, runLoop,
            DesktopSources::Surroundings{displaysOfX ? xDisplay : std::string(),
                                         qEnvironmentVariable("XDG_SESSION_ID").toStdString()});
        const std::string refused = openDocuments(controller, documents);
        if (!refused.empty()) {
            tell(stderr, refused);
        }
        windowRestoration.restore();
        windowRestoration.startKeeping();
    });
    std::atexit(endWithServer);
    inEventLoop = true;
    const int result = QApplication::exec();
    inEventLoop = false;
    windows.setKeyboardLayout(nullptr);
    controller.applicationWillTerminate();
    setDisplayServices(nullptr);
    if (result != kSuccess) {
        tell(stderr, translated("The display server has gone, so Nocturo ends."));
    }
    return result;
}

} // namespace

} // namespace nocturo

int main(int argc, char* argv[]) {
    using namespace nocturo;
    setLanguageOfTexts(usersLanguage());
    const Options options = parseOptions(std::vector<std::string>(argv + 1, argv + argc));
    if (const auto* text = std::get_if<PrintAndExit>(&options)) {
        std::fputs(text->text.c_str(), stdout);
        return kSuccess;
    }
    if (const auto* error = std::get_if<UsageError>(&options)) {
        tell(stderr, error->sentence);
        return kUsage;
    }
    installQtLogSink();
    PosixSignals::block(kSignals);
    choosePlatform();
    const QApplication application(argc, argv);
    installTranslations(*QCoreApplication::instance());
    QApplication::setApplicationName(QStringLiteral("Nocturo"));
    QApplication::setDesktopFileName(QStringLiteral("org.nocturo.Nocturo"));
    QApplication::setQuitOnLastWindowClosed(false);
    return run(std::get<RunOptions>(options));
}
