#pragma once

#include "bus/status_notifier_item.h"

#include <functional>
#include <memory>
#include <string>

namespace nocturo {

/// The application's item in the desktop's tray: over the bus where a tray is there, or else by a
/// toolkit, in a tray that embeds windows. Main thread only.
class Tray {
  public:
    /// What takes a toolkit.
    struct Toolkit {
        /// Shows the item in trays that embed windows, or shows it there no longer.
        std::function<void(bool shown)> setEmbedded;
        /// Shows the item's menu at that point of the screen.
        std::function<void(int x, int y)> popUpMenu;
    };

    /// What is done to the item but for its menu.
    struct Actions {
        std::function<void()> middleClicked;
        std::function<void(int steps)> scrolled; // in trays of the bus alone
    };

    /// The menu and the loop must outlive the tray.
    Tray(Menu& menu, EventLoop& loop, std::string busAddress, Toolkit toolkit, Actions actions);

    void setShown(bool shown);
    void setActive(bool active);
    void setToolTip(const std::string& sentence);

  private:
    void hostingDidChange();

    Menu& menu_;
    EventLoop& loop_;
    std::string busAddress_;
    Toolkit toolkit_;
    Actions actions_;
    bool active_ = false;
    std::string toolTip_;
    bool embedded_ = false;
    std::unique_ptr<StatusNotifierItem> item_; // while shown
};

} // namespace nocturo
