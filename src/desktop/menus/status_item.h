#pragma once

#include "desktop/menus/tray_color.h"
#include "desktop/menus/tray_watch.h"

#include <QSystemTrayIcon>

#include <functional>
#include <memory>
#include <string>

class QMenu;

namespace nocturo {

/// The application's item in the desktop's tray. Needs a QApplication.
class StatusItem : public QObject {
  public:
    struct Surroundings {
        std::optional<QDBusConnection> bus; // the session's
        std::string xDisplay;               // empty where there is no X server
    };

    /// A click shows the menu, which must outlive the item; a middle click calls `middleClicked`.
    StatusItem(QMenu& menu, Surroundings surroundings, std::function<void()> middleClicked);

    /// A desktop without a tray shows the item as soon as it has one.
    void setShown(bool shown);
    void setActive(bool active);

    /// The item is to be shown, and the desktop has no tray that could.
    bool isWaitingForTray() const { return shown_ && icon_ == nullptr; }

    /// Called whenever that changes.
    std::function<void()> waitingDidChange;

  private:
    void trayAppeared();
    void setImage();
    std::optional<QColor> imageColor() const;
    void wasActivated(QSystemTrayIcon::ActivationReason reason);

    QMenu& menu_;
    Surroundings surroundings_;
    std::function<void()> middleClicked_;
    bool shown_ = false;
    bool active_ = false;
    std::unique_ptr<TrayWatch> trayWatch_;
    std::unique_ptr<QSystemTrayIcon> icon_;
    std::unique_ptr<TrayColor> trayColor_;
};

} // namespace nocturo
