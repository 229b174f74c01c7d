#pragma once

#include "app/documents_menu.h"
#include "app/effects_menu.h"
#include "app/looks_menu.h"
#include "app/menu.h"
#include "app/screen_option_menu_manager.h"

#include <functional>
#include <optional>

namespace nocturo {

class DefaultsStore;
class LookPicker;
class NDAppController;
class NotificationCenter;

/// The menus that the application is reached by, wherever they are shown. Main thread only.
class AppMenus {
  public:
    /// What items do that is not the controller's.
    struct Actions {
        std::function<void(const std::string& path)> openDocument;
        std::function<void()> quit;
    };

    /// All must outlive the menus.
    AppMenus(NDAppController& controller, DefaultsStore& defaults, NotificationCenter& localCenter,
             LookPicker& looks, const RecentDocuments& documents, Actions actions);

    /// The part of the main menu that switches the effect.
    Menu& effectMenu() { return effectMenu_; }

    /// Of the application's icon in a dock.
    Menu& dockMenu() { return dockMenu_; }

    /// Of the item in the desktop's tray.
    Menu& statusMenu() { return statusMenu_; }

    /// Gives the activate items the title for an effect that is on or off.
    void setActivateItemTitles(bool active);

    /// Fills in, below the activate items, the choice of screens and, where the user looks for
    /// them, those of looks, effects and documents.
    void makeScreenMenus();

  private:
    Menu::Id appendActivateItem(Menu& menu);
    void appendPauses(Menu& menu);

    NDAppController& controller_;
    DefaultsStore& defaults_;
    NotificationCenter& localCenter_;
    LookPicker& looks_;
    const RecentDocuments& documents_;
    const std::function<void(const std::string& path)> openDocument_;
    Menu effectMenu_;
    Menu dockMenu_;
    Menu statusMenu_;
    Menu::Id activateItem_;
    Menu::Id dockActivateItem_;
    Menu::Id statusActivateItem_;
    std::optional<LooksMenu> mainLooks_;
    std::optional<LooksMenu> statusLooks_;
    std::optional<EffectsMenu> statusEffects_;
    std::optional<DocumentsMenu> statusDocuments_;
    std::optional<NDScreenOptionMenuManager> mainScreens_;
    std::optional<NDScreenOptionMenuManager> dockScreens_;
    std::optional<NDScreenOptionMenuManager> statusScreens_;
};

} // namespace nocturo
