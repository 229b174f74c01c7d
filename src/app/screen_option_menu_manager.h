#pragma once

#include "app/menu.h"
#include "displays/display_services.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace nocturo {

class DefaultsStore;
class NotificationCenter;

/// Keeps a run of items in a menu with which the user chooses the displays that the effect is
/// applied to: "All Screens" and one item per online display, "Screen 1" and so on in the order of
/// the online list, checked as the affected screen set says, with the monitor's name behind it and
/// the display's as tool tip. Affected displays that are not connected follow, each by the name
/// that it had when it was, as far as that is known.
///
/// The run follows every change of a setting and of the screen arrangement. Items that stay are
/// changed in place, so that an open menu, and what a desktop shows of an exported one, stays calm.
///
/// Main thread only. The store, the center and the menu must outlive the manager. The items stay in
/// the menu when the manager goes, and do nothing from then on.
class NDScreenOptionMenuManager {
  public:
    /// Builds the run at once. It starts right after `insertAfterItem`, or at the top of the menu
    /// where that is none. The text of `titleItem`, which may be none too, is kept a summary of the
    /// choice: "All Screens", "Screen 1, 3", or "None" when no display of the set is online.
    /// `separator` asks for one after "All Screens"; `hideSingular` for no run at all when there is
    /// one display or none. `indent` is in levels.
    NDScreenOptionMenuManager(DefaultsStore& defaults, NotificationCenter& localCenter, Menu& menu,
                              Menu::Id insertAfterItem, Menu::Id titleItem, bool separator,
                              bool hideSingular, int indent);
    ~NDScreenOptionMenuManager();
    NDScreenOptionMenuManager(const NDScreenOptionMenuManager&) = delete;
    NDScreenOptionMenuManager& operator=(const NDScreenOptionMenuManager&) = delete;

    /// Brings the run in line with the settings and the online displays.
    void setupScreenMenu();

    /// What picking an item of the run does: its display goes into the set or out of it. `tag` is
    /// the display's identifier as a signed number, 0 for all displays.
    void chooseAffectedScreen(std::int32_t tag);

  private:
    MenuItem option(std::int32_t tag, std::string title, bool isChecked);

    void appendAbsent(std::vector<MenuItem>& run, const std::vector<DisplayInfo>& online);

    /// The run as it should be; sets `summary` to what the title item should say.
    std::vector<MenuItem> options(std::string& summary);

    DefaultsStore& defaults_;
    NotificationCenter& localCenter_;
    Menu& menu_;
    Menu::Id afterItem_;
    Menu::Id titleItem_;
    std::vector<Menu::Id> optionItems_; // in menu order, the separator included
    bool separator_;
    bool hideSingular_;
    int indent_;
};

} // namespace nocturo
