#include "session/bus_screen_savers.h"

#include "desktop/qt/bus_call.h"
#include "session/screen_saver_state.h"

#include <QStringList>

namespace nocturo {

namespace {

// Each service's interface has the service's name; the paths are where it takes calls. KDE signals
// from both of its paths.
struct Saver {
    const char* service;
    QStringList paths;
};

const QList<Saver>& savers() {
    static const QList<Saver> list = {
        {"org.freedesktop.ScreenSaver", {"/org/freedesktop/ScreenSaver", "/ScreenSaver"}},
        {"org.gnome.ScreenSaver", {"/org/gnome/ScreenSaver"}},
        {"org.mate.ScreenSaver", {"/org/mate/ScreenSaver"}},
        {"org.cinnamon.ScreenSaver", {"/org/cinnamon/ScreenSaver"}},
        {"org.xfce.ScreenSaver", {"/org/xfce/ScreenSaver"}},
    };
    return list;
}

} // namespace

BusScreenSavers::BusScreenSavers(const QDBusConnection& bus, ScreenSaverState& state)
    : bus_(bus), state_(state) {
    watcher_.setConnection(bus_);
    watcher_.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    connect(&watcher_, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString& service, const QString& /*oldOwner*/, const QString& newOwner) {
                ownerChanged(service, newOwner);
            });
    for (const Saver& saver : savers()) {
        const QString service = QString::fromLatin1(saver.service);
        watcher_.addWatchedService(service);
        // From any path.
        bus_.connect(service, QString(), service, QStringLiteral("ActiveChanged"), this,
                     SLOT(activeChanged(bool, QDBusMessage)));
        askForState(service);
    }
}

void BusScreenSavers::activeChanged(bool active, const QDBusMessage& message) {
    state_.setActive(message.interface().toStdString(), active);
}

void BusScreenSavers::ownerChanged(const QString& service, const QString& newOwner) {
    ++owners_[service];
    state_.forget(service.toStdString());
    if (!newOwner.isEmpty()) {
        askForState(service);
    }
}

void BusScreenSavers::askForState(const QString& service) {
    for (const Saver& saver : savers()) {
        if (service != QLatin1String(saver.service)) {
            continue;
        }
        for (const QString& path : saver.paths) {
            const auto call =
                QDBusMessage::createMethodCall(service, path, service, QStringLiteral("GetActive"));
            callLater(bus_, call, this,
                      [this, service, owner = owners_[service]](const QDBusMessage& answer) {
                          const QVariant active = answer.arguments().value(0);
                          if (answer.type() == QDBusMessage::ReplyMessage &&
                              active.typeId() == QMetaType::Bool && owner == owners_[service]) {
                              state_.setActive(service.toStdString(), active.toBool());
                          }
                      });
        }
    }
}

} // namespace nocturo
