#pragma once

#include "session/tray_window.h"

#include <QSystemTrayIcon>

#include <functional>
#include <memory>

class QMenu;

namespace nocturo {

/// The application's item in trays that embed windows, under X11. Not to be shown while the session
/// bus has a tray: Qt would take that one. Needs a QApplication.
class StatusItem : public QObject {
  public:
    /// A click shows the menu, which must outlive the item; a middle click calls `middleClicked`.
    /// `server` is null where there is no X server, and must outlive the item.
    StatusItem(QMenu& menu, XConnection* server, std::function<void()> middleClicked);

    /// A desktop without a tray shows the item as soon as it has one.
    void setShown(bool shown);
    void setActive(bool active);
    void setToolTip(const QString& sentence);

    /// The item is to be shown, and the desktop has no tray that could.
    bool isWaitingForTray() const { return shown_ && noTray_; }

    /// Called whenever that changes.
    std::function<void()> waitingDidChange;

  private:
    void trayDidChange();
    void makeIcon();
    void setWaiting(bool noTray);
    void setImage();
    QColor imageColor() const;
    void wasActivated(QSystemTrayIcon::ActivationReason reason);

    QMenu& menu_;
    XConnection* server_;
    std::function<void()> middleClicked_;
    bool shown_ = false;
    bool active_ = false;
    QString toolTip_;
    bool noTray_ = false; // and that is known
    std::unique_ptr<QSystemTrayIcon> icon_;
    std::unique_ptr<TrayWindow> tray_;
};

} // namespace nocturo
