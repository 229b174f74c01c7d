#pragma once

#include "x11/x_events.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace nocturo {

/// Waits until the desktop has a tray: a StatusNotifierItem host on the session bus, or a tray
/// window of an X server.
class TrayWatch : public QObject {
    Q_OBJECT

  public:
    /// `xDisplay` is empty where there is no X server. `appeared` is called once, from the event
    /// loop, also for a tray that is there already.
    TrayWatch(std::optional<QDBusConnection> bus, const std::string& xDisplay,
              std::function<void()> appeared);

  private Q_SLOTS:
    void hostAppeared();

  private:
    void followBus();
    void followServer();
    void askWatcher();
    void lookForTrayWindow();
    void tell();

    std::optional<QDBusConnection> bus_;
    std::unique_ptr<QDBusServiceWatcher> watcherOwner_;
    std::unique_ptr<XEvents> xEvents_;
    xcb_atom_t traySelection_ = XCB_ATOM_NONE;
    std::function<void()> appeared_;
};

} // namespace nocturo
