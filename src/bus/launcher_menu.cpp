#include "bus/launcher_menu.h"

#include <QDBusMessage>

namespace nocturo {

namespace {

const QString kMenuPath = QStringLiteral("/org/nocturo/Nocturo/LauncherMenu");
const QString kEntryPath = QStringLiteral("/org/nocturo/Nocturo");
const QString kEntryInterface = QStringLiteral("com.canonical.Unity.LauncherEntry");
const QString kApplication = QStringLiteral("application://org.nocturo.Nocturo.desktop");
const QString kDock = QStringLiteral("com.canonical.Unity");

} // namespace

LauncherMenu::LauncherMenu(const QDBusConnection& bus)
    : bus_(bus), exporter_(menu_, bus, kMenuPath),
      docks_(kDock, bus, QDBusServiceWatcher::WatchForRegistration) {}

void LauncherMenu::offer() {
    connect(&docks_, &QDBusServiceWatcher::serviceRegistered, this, &LauncherMenu::announce);
    announce();
}

void LauncherMenu::announce() {
    QDBusMessage signal =
        QDBusMessage::createSignal(kEntryPath, kEntryInterface, QStringLiteral("Update"));
    signal << kApplication << QVariantMap{{QStringLiteral("quicklist"), kMenuPath}};
    bus_.send(signal);
}

} // namespace nocturo
