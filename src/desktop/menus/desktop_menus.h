#pragma once

#include "app/desktop_face.h"
#include "desktop/menus/drawn_menu.h"
#include "desktop/menus/main_menu.h"
#include "desktop/menus/status_item.h"
#include "desktop/menus/taskbar_presence.h"
#include "desktop/preferences/keep_colors_box.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

class QMessageBox;

namespace nocturo {

class AppMenus;
class AppWindows;
class NDAppController;
class RecentDocuments;

/// Alerts, the main menu, and the status item where it is a window. Needs a QApplication.
class DesktopMenus {
  public:
    /// All must outlive this. `server` is null where there is no X server.
    DesktopMenus(NDAppController& controller, AppWindows& windows,
                 const RecentDocuments& recentDocuments, AppMenus& menus, XConnection* server);
    ~DesktopMenus();
    DesktopMenus(const DesktopMenus&) = delete;
    DesktopMenus& operator=(const DesktopMenus&) = delete;

    // As DesktopPart has them.
    void showAlert(const Alert& alert, std::function<void(AlertAnswer answer)> answered);
    void askToKeepColors(int secondsLeft, std::function<void(bool keep)> answered);
    void withdrawKeepColors() { keepColorsBox_.withdraw(); }
    void whenPointerIsReleased(std::function<void()> action) {
        keepColorsBox_.whenPointerIsReleased(std::move(action));
    }
    void showRefusedDocuments(const std::vector<std::string>& paths);
    void setInTray(bool inTray) { taskbarPresence_.setHidden(inTray); }
    void setItemEmbedded(bool embedded) { statusItem_.setShown(embedded); }
    void setItemImage(bool active) { statusItem_.setActive(active); }
    void setItemToolTip(const std::string& sentence) {
        statusItem_.setToolTip(QString::fromStdString(sentence));
    }
    void popUpStatusMenu(int x, int y);

  private:
    MainMenu::Handlers mainMenuHandlers();
    void updateStatusItemNotice();

    NDAppController& controller_;
    AppWindows& windows_;
    const RecentDocuments& recentDocuments_;
    MainMenu mainMenu_;
    QMenu statusMenu_;
    DrawnMenu drawnStatusMenu_;
    StatusItem statusItem_;
    TaskbarPresence taskbarPresence_;
    KeepColorsBox keepColorsBox_;
    std::unique_ptr<QMessageBox> alert_;   // while it is not answered
    std::unique_ptr<QMessageBox> refusal_; // the last one, which may have been closed
};

} // namespace nocturo
