#pragma once

#include "app/menu.h"

#include <vector>

namespace nocturo {

class NotificationCenter;

/// Keeps the submenu "Effects" of a menu: every effect that can be selected, the selected ones
/// ticked. Picking one selects it or not; whether the effect is on stays as it is. Main thread
/// only.
class EffectsMenu {
  public:
    /// The item of the submenu stands right after `afterItem`. All must outlive this.
    EffectsMenu(NotificationCenter& localCenter, Menu& menu, Menu::Id afterItem);
    ~EffectsMenu();
    EffectsMenu(const EffectsMenu&) = delete;
    EffectsMenu& operator=(const EffectsMenu&) = delete;

  private:
    void tick();

    NotificationCenter& localCenter_;
    Menu& menu_;
    std::vector<Menu::Id> items_; // as the effects are listed
};

} // namespace nocturo
