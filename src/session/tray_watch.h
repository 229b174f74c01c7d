#pragma once

#include "x11/x_events.h"

#include <functional>
#include <memory>
#include <string>

namespace nocturo {

class RunLoop;
class Timer;

/// Waits until an X server has a tray window.
class TrayWatch {
  public:
    /// `xDisplay` is empty where there is no X server. From the event loop `appeared` is called
    /// once, also for a tray that is there already, and `missing` at first where there is none.
    TrayWatch(const std::string& xDisplay, RunLoop& runLoop, std::function<void()> appeared,
              std::function<void()> missing);
    ~TrayWatch();
    TrayWatch(const TrayWatch&) = delete;
    TrayWatch& operator=(const TrayWatch&) = delete;

  private:
    void followServer();
    void lookForTrayWindow();
    void tell();
    void callSoon(std::function<void()> action);

    RunLoop& runLoop_;
    std::unique_ptr<XEvents> xEvents_;
    std::unique_ptr<Timer> soon_;
    xcb_atom_t traySelection_ = XCB_ATOM_NONE;
    std::function<void()> appeared_;
    std::function<void()> missing_;
};

} // namespace nocturo
