#pragma once

#include "app/menu.h"

#include <string>
#include <vector>

namespace nocturo {

class LookPicker;
class NotificationCenter;

/// Keeps the submenu "Looks" of a menu: every look in the user's order, the one in force ticked.
/// Picking one is LookPicker::pick. Main thread only.
class LooksMenu {
  public:
    /// The item of the submenu stands right after `afterItem`. All must outlive this.
    LooksMenu(LookPicker& picker, NotificationCenter& localCenter, Menu& menu, Menu::Id afterItem);
    ~LooksMenu();
    LooksMenu(const LooksMenu&) = delete;
    LooksMenu& operator=(const LooksMenu&) = delete;

  private:
    void list();
    void tick();

    LookPicker& picker_;
    NotificationCenter& localCenter_;
    Menu& menu_;
    Menu::Id title_;
    std::vector<Menu::Id> items_;
    std::string ticked_; // the name of the look that is shown as the one in force
};

} // namespace nocturo
