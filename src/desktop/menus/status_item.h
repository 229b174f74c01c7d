#pragma once

#include "desktop/menus/tray_color.h"
#include "session/tray_watch.h"

#include <QSystemTrayIcon>

#include <functional>
#include <memory>
#include <string>

class QMenu;

namespace nocturo {

class RunLoop;

/// The application's item in trays that embed windows, under X11. Not to be shown while the session
/// bus has a tray: Qt would take that one. Needs a QApplication.
class StatusItem : public QObject {
  public:
    /// A click shows the menu, which must outlive the item; a middle click calls `middleClicked`.
    /// `xDisplay` is empty where there is no X server; the loop must outlive the item.
    StatusItem(QMenu& menu, std::string xDisplay, RunLoop& runLoop,
               std::function<void()> middleClicked);

    /// A desktop without a tray shows the item as soon as it has one.
    void setShown(bool shown);
    void setActive(bool active);

    /// The item is to be shown, and the desktop has no tray that could.
    bool isWaitingForTray() const { return shown_ && noTray_; }

    /// Called whenever that changes.
    std::function<void()> waitingDidChange;

  private:
    void trayAppeared();
    void setWaiting(bool noTray);
    void setImage();
    QColor imageColor() const;
    void wasActivated(QSystemTrayIcon::ActivationReason reason);

    QMenu& menu_;
    std::string xDisplay_;
    RunLoop& runLoop_;
    std::function<void()> middleClicked_;
    bool shown_ = false;
    bool active_ = false;
    bool noTray_ = false; // and that is known
    std::unique_ptr<TrayWatch> trayWatch_;
    std::unique_ptr<QSystemTrayIcon> icon_;
    std::unique_ptr<TrayColor> trayColor_;
};

} // namespace nocturo
