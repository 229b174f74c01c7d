#include "platform/desktop/session_bus.h"

#include <QFileInfo>

namespace nocturo {

std::optional<QDBusConnection> connectToSessionBus() {
    QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    if (address.isEmpty()) {
        const QString socket = qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus");
        if (!QFileInfo::exists(socket)) {
            return std::nullopt;
        }
        address = QStringLiteral("unix:path=") + socket;
    }
    QDBusConnection bus = QDBusConnection::connectToBus(address, QStringLiteral("nocturo"));
    if (!bus.isConnected()) {
        return std::nullopt;
    }
    return bus;
}

std::optional<QDBusConnection> connectToSystemBus() {
    QDBusConnection bus =
        QDBusConnection::connectToBus(QDBusConnection::SystemBus, QStringLiteral("nocturo-system"));
    if (!bus.isConnected()) {
        return std::nullopt;
    }
    return bus;
}

} // namespace nocturo
