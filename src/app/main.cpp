#include "app/app_controller.h"
#include "app/options.h"
#include "control/bus_face.h"
#include "platform/desktop/instance_lock.h"
#include "platform/desktop/posix_signals.h"
#include "platform/desktop/qt_log.h"
#include "platform/desktop/qt_run_loop.h"
#include "platform/desktop/runtime_directory.h"
#include "platform/desktop/session_bus.h"
#include "platform/displays/display_functions.h"
#include "platform/log.h"
#include "platform/notification_center.h"
#include "platform/settings/defaults_store.h"
#include "platform/settings/settings_keeper.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QStandardPaths>

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

void tell(std::FILE* stream, const std::string& sentence) {
    std::fprintf(stream, "nocturo: %s\n", sentence.c_str());
}

std::unique_ptr<QSocketNotifier> whenReadable(int descriptor, std::function<void()> action) {
    if (descriptor < 0) {
        return nullptr;
    }
    auto notifier = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
    QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(),
                     std::move(action));
    return notifier;
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

/// Claims to be the one Nocturo of the session: its name on the session bus, or a lock where there
/// is no bus.
class SessionClaim {
  public:
    SessionClaim(BusFace& face, const std::filesystem::path& runtimeDirectory) {
        if (const auto bus = connectToSessionBus()) {
            granted_ = face.takeName(*bus);
            return;
        }
        logInfo("nocturo.bus", "There is no session bus, so nocturoctl cannot reach Nocturo.");
        lock_.emplace(runtimeDirectory);
        granted_ = lock_->isHeld();
        if (!granted_) {
            lock_->askHolderToReopen();
        }
    }

    bool isGranted() const { return granted_; }

  private:
    bool granted_ = false;
    std::optional<InstanceLock> lock_;
};

/// Runs the application in its event loop until it is told to end.
int run(QCoreApplication& application, const RunOptions& options) {
    const auto directory = runtimeDirectory();
    if (!directory) {
        tell(stderr, "The runtime directory cannot be used; set XDG_RUNTIME_DIR to one of yours.");
        return kFailure;
    }
    const auto& defaults = DefaultsStore::standardUserDefaults();
    NotificationCenter& localCenter = NotificationCenter::defaultCenter();
    QtRunLoop runLoop;
    NDAppController controller(*defaults, localCenter, runLoop);
    BusFace face(controller, *defaults, localCenter);

    const PosixSignals signals({SIGINT, SIGTERM, SIGHUP, InstanceLock::kReopenSignal},
                               [&](int number) {
                                   if (number == InstanceLock::kReopenSignal) {
                                       controller.applicationShouldHandleReopen(false);
                                   } else {
                                       QCoreApplication::quit();
                                   }
                               });
    const SessionClaim claim(face, *directory);
    if (!claim.isGranted()) {
        tell(stdout, "Nocturo is already running.");
        return kSuccess;
    }

    SettingsKeeper keeper(*defaults, settingsPath(), runLoop);
    const auto settingsWatch =
        whenReadable(keeper.fileEventDescriptor(), [&] { keeper.processFileEvents(); });

    const OpenedDisplays displays = openDisplays(
        options.displays,
        {qEnvironmentVariable("DISPLAY").toStdString(), *directory, systemBusAddress()}, runLoop);
    if (displays.services == nullptr) {
        tell(stderr, displays.problem);
        return kFailure;
    }
    setDisplayServices(displays.services.get());
    displays.services->setChangeHandler([&](const DisplayChanges& changes) {
        callReconfigurationCallbacks(changes);
        if (changes.arrangementChanged) {
            localCenter.post(NSApplicationDidChangeScreenParametersNotification);
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

    controller.applicationDidFinishLaunching();
    face.announceChanges();
    const int result = application.exec();
    controller.applicationWillTerminate();
    setDisplayServices(nullptr);
    if (result != kSuccess) {
        tell(stderr, "The display server has gone, so Nocturo ends.");
    }
    return result;
}

} // namespace

} // namespace nocturo

int main(int argc, char* argv[]) {
    using namespace nocturo;
    const Options options = parseOptions(std::vector<std::string>(argv + 1, argv + argc));
    if (const auto* text = std::get_if<PrintAndExit>(&options)) {
        std::fputs(text->text.c_str(), stdout);
        return kSuccess;
    }
    if (const auto* error = std::get_if<UsageError>(&options)) {
        tell(stderr, error->sentence);
        return kUsage;
    }
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("nocturo"));
    installQtLogSink();
    return run(application, std::get<RunOptions>(options));
}
