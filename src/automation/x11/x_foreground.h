#pragma once

#include "automation/filled_displays.h"
#include "automation/foreground.h"
#include "base/run_loop.h"
#include "x11/x_connection.h"

#include <cstdint>
#include <map>

namespace nocturo {

/// The windows of an X server, as its window manager tells of them.
class XForeground : public Foreground {
  public:
    /// Both must outlive this.
    XForeground(XConnection& server, RunLoop& runLoop, bool filling, std::function<void()> changed);

    bool isTold() const override { return isManaged_; }
    const InFront& inFront() const override { return inFront_; }
    void displaysDidChange() override { tell(); }

  private:
    struct Client {
        StackedWindow window;
        std::uint32_t desktop = 0;
        bool isStale = true;
        std::shared_ptr<const void> hearsPlace; // events that are selected
        std::shared_ptr<const void> hearsProperties;
    };

    void listen();
    void rootDidChange();
    void clientDidChange(xcb_window_t window);
    void clientWasPlaced(const xcb_configure_notify_event_t& event);
    void refreshSoon();
    void refresh();
    void readRoot();
    void takeStack(std::vector<std::uint32_t> windows);
    void readClients();
    void tell();
    bool coversAny(const DisplayRect& bounds) const;

    XConnection& server_;
    RunLoop& runLoop_;
    bool filling_;
    std::function<void()> changed_;
    std::vector<XListener> listeners_;
    std::map<xcb_window_t, Client> clients_;
    std::vector<xcb_window_t> stack_; // the topmost first
    xcb_window_t active_ = XCB_WINDOW_NONE;
    std::uint32_t desktop_ = 0;
    bool isManaged_ = false;
    bool isRootStale_ = true;
    bool anyCovers_ = false; // a client that may fill a display
    std::unique_ptr<Timer> soon_;
    InFront inFront_;
};

} // namespace nocturo
