#include "desktop/qt/bus_call.h"

#include <QDBusPendingCallWatcher>

#include <utility>

namespace nocturo {

void callLater(const QDBusConnection& bus, QDBusMessage call, QObject* context,
               std::function<void(const QDBusMessage& answer)> answered) {
    call.setAutoStartService(false);
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, context,
                     [watcher, answered = std::move(answered)] {
                         watcher->deleteLater();
                         answered(watcher->reply());
                     });
}

QDBusMessage propertyCall(const QString& service, const QString& path, const QString& interface,
                          const QString& property) {
    QDBusMessage call = QDBusMessage::createMethodCall(
        service, path, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    call << interface << property;
    return call;
}

} // namespace nocturo
