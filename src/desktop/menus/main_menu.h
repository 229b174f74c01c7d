#pragma once

#include "app/documents_menu.h"
#include "desktop/menus/drawn_menu.h"

#include <QMenuBar>
#include <QPointer>

#include <functional>
#include <optional>
#include <string>

namespace nocturo {

class RecentDocuments;

/// The menu bar of the application's windows. Needs a QApplication.
class MainMenu {
  public:
    struct Handlers {
        std::function<void()> openDocument;
        std::function<void(const std::string& path)> openRecentDocument;
        std::function<void()> saveDocument;
        std::function<void()> closeWindow;
        std::function<void()> openPreferences;
        std::function<void()> openAboutBox;
        std::function<void()> openGuide; // empty where there is none
    };

    /// The documents and the menu of the effect must outlive the main menu.
    MainMenu(Menu& effectMenu, const RecentDocuments& documents, const Handlers& handlers);
    ~MainMenu();
    MainMenu(const MainMenu&) = delete;
    MainMenu& operator=(const MainMenu&) = delete;

    /// A window may take the bar over; it is gone with the window then.
    QMenuBar* bar() const { return bar_; }

  private:
    void addFileMenu(const RecentDocuments& documents, const Handlers& handlers);
    void addHelpMenu(const Handlers& handlers);

    QPointer<QMenuBar> bar_;
    Menu recentMenu_;
    DocumentsMenu recent_;
    std::optional<DrawnMenu> drawnRecent_;
    std::optional<DrawnMenu> effectMenu_;
};

} // namespace nocturo
