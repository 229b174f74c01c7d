#pragma once

#include "app/menu.h"

#include <string>
#include <vector>

namespace nocturo {

class ChosenLook;
class NDAppController;
class NotificationCenter;

/// Keeps the submenu "Looks" of a menu: every look in the user's order, the one in force ticked.
/// Picking one applies it and switches the effect on; picking the ticked one goes back. Main thread
/// only.
class LooksMenu {
  public:
    /// The item of the submenu stands right after `afterItem`. All must outlive this.
    LooksMenu(NDAppController& controller, ChosenLook& chosen, NotificationCenter& localCenter,
              Menu& menu, Menu::Id afterItem);
    ~LooksMenu();
    LooksMenu(const LooksMenu&) = delete;
    LooksMenu& operator=(const LooksMenu&) = delete;

  private:
    void list();
    void tick();
    void pick(const std::string& name);

    NDAppController& controller_;
    ChosenLook& chosen_;
    NotificationCenter& localCenter_;
    Menu& menu_;
    Menu::Id title_;
    std::vector<Menu::Id> items_;
    std::string ticked_; // the name of the look that is shown as the one in force
};

} // namespace nocturo
