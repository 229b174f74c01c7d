#pragma once

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>

#include <functional>

namespace nocturo {

class RecentDocuments;

/// The menu bar of the application's windows. Needs a QApplication.
class MainMenu {
  public:
    struct Handlers {
        std::function<void()> activate;
        std::function<void()> openDocument;
        std::function<void(const QString& path)> openRecentDocument;
        std::function<void()> saveDocument;
        std::function<void()> closeWindow;
        std::function<void()> openPreferences;
        std::function<void()> openAboutBox;
    };

    /// The documents must outlive the menu.
    MainMenu(const RecentDocuments& documents, const Handlers& handlers);
    ~MainMenu();
    MainMenu(const MainMenu&) = delete;
    MainMenu& operator=(const MainMenu&) = delete;

    /// A window may take the bar over; it is gone with the window then.
    QMenuBar* bar() const { return bar_; }
    QMenu* effectMenu() const { return effectMenu_; }
    QAction* activateItem() const { return activateItem_; }

  private:
    void addFileMenu(const RecentDocuments& documents, const Handlers& handlers);
    void addEffectMenu(const Handlers& handlers);
    void addHelpMenu(const Handlers& handlers);

    QPointer<QMenuBar> bar_;
    QPointer<QMenu> effectMenu_;
    QPointer<QAction> activateItem_;
};

} // namespace nocturo
