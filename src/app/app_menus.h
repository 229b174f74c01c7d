#pragma once

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
    /// All must outlive the menus; `quit` is what the quit items do.
    AppMenus(NDAppController& controller, DefaultsStore& defaults, NotificationCenter& localCenter,
             LookPicker& looks, std::function<void()> quit);

    /// The part of the main menu that switches the effect.
    Menu& effectMenu() { return effectMenu_; }

    /// Of the application's icon in a dock.
    Menu& dockMenu() { return dockMenu_; }

    /// Of the item in the desktop's tray.
    Menu& statusMenu() { return statusMenu_; }

    /// Gives the activate items the title for an effect that is on or off.
    void setActivateItemTitles(bool active);

    /// Fills in, below the activate items, the choice of screens and, where the user looks for it,
    /// that of looks.
    void makeScreenMenus();

  private:
    Menu::Id appendActivateItem(Menu& menu);

    NDAppController& controller_;
    DefaultsStore& defaults_;
    NotificationCenter& localCenter_;
    LookPicker& looks_;
    Menu effectMenu_;
    Menu dockMenu_;
    Menu statusMenu_;
    Menu::Id activateItem_;
    Menu::Id dockActivateItem_;
    Menu::Id statusActivateItem_;
    std::optional<LooksMenu> mainLooks_;
    std::optional<LooksMenu> statusLooks_;
    std::optional<NDScreenOptionMenuManager> mainScreens_;
    std::optional<NDScreenOptionMenuManager> dockScreens_;
    std::optional<NDScreenOptionMenuManager> statusScreens_;
};

} // namespace nocturo
