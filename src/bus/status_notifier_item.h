#pragma once

#include "base/bus.h"
#include "bus/menu_exporter.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace nocturo {

class EventLoop;

/// The application's item in a tray that asks for it over the session bus
/// (org.kde.StatusNotifierItem), with its menu. Offered to every tray there is or comes, from when
/// this is made until it is destroyed. Main thread only.
class StatusNotifierItem {
  public:
    struct Handlers {
        /// The tray leaves it to the item to show its menu at this point of the screen.
        std::function<void(int x, int y)> menuWanted;
        std::function<void()> middleClicked;
        /// The wheel was turned over the item by so many steps; up is more than 0.
        std::function<void(int steps)> scrolled;
        /// Whether a tray shows the item, or whether one does may now be another.
        std::function<void()> hostingDidChange;
    };

    /// All but the handlers must outlive the item. On a connection of its own, because trays drop
    /// items by the end of their connection alone.
    StatusNotifierItem(Menu& menu, EventLoop& loop, const std::string& busAddress,
                       Handlers handlers);
    ~StatusNotifierItem();
    StatusNotifierItem(const StatusNotifierItem&) = delete;
    StatusNotifierItem& operator=(const StatusNotifierItem&) = delete;

    enum class Hosting { unknown, shown, nobody };

    /// Unknown until the bus has answered.
    Hosting hosting() const { return hosting_; }

    /// Whether the image is that of an effect that is on.
    void setActive(bool active);

    /// What is told below the name of the application.
    void setToolTip(const std::string& sentence);

  private:
    struct Table;

    int wheelSteps(int delta);
    void follow();
    void watcherDidChange(const std::string& owner);
    void askForHost();
    void setHosting(Hosting hosting);

    Handlers handlers_;
    std::unique_ptr<Bus> bus_; // null where there is none
    int wheelDegrees_ = 0;     // eighths that make no step yet
    bool active_ = false;
    std::string toolTip_;
    Hosting hosting_ = Hosting::unknown;
    std::optional<std::string> owner_; // of the watcher, once that is known
    std::unique_ptr<MenuExporter> menu_;
    std::unique_ptr<BusSlot> object_;
    std::unique_ptr<BusSlot> watcher_;
    std::unique_ptr<BusSlot> hostCame_;
    std::unique_ptr<BusSlot> hostWent_;
    std::unique_ptr<BusSlot> registration_;
    std::unique_ptr<BusSlot> question_;
};

} // namespace nocturo
