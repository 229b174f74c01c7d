#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>

#include <map>

namespace nocturo {

class ScreenSaverState;

/// The screen savers of the session bus, those of KDE, GNOME, MATE, Cinnamon and Xfce. Each counts
/// from when it has first told its state, and is forgotten when it leaves the bus. None is ever
/// started.
class BusScreenSavers : public QObject {
    Q_OBJECT

  public:
    /// `state` must outlive the object.
    BusScreenSavers(const QDBusConnection& bus, ScreenSaverState& state);

  private Q_SLOTS:
    void activeChanged(bool active, const QDBusMessage& message);

  private:
    void ownerChanged(const QString& service, const QString& newOwner);
    void askForState(const QString& service);

    QDBusConnection bus_;
    ScreenSaverState& state_;
    QDBusServiceWatcher watcher_;
    std::map<QString, unsigned> owners_; // how many each service has had: an answer may be late
};

} // namespace nocturo
