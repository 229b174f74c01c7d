#pragma once

#include "x11/x_events.h"

#include <QObject>

#include <functional>
#include <memory>
#include <string>

namespace nocturo {

class RunLoop;

/// Waits until an X server has a tray window.
class TrayWatch : public QObject {
  public:
    /// `xDisplay` is empty where there is no X server. From the event loop `appeared` is called
    /// once, also for a tray that is there already, and `missing` at first where there is none.
    TrayWatch(const std::string& xDisplay, RunLoop& runLoop, std::function<void()> appeared,
              std::function<void()> missing);

  private:
    void followServer();
    void lookForTrayWindow();
    void tell();

    std::unique_ptr<XEvents> xEvents_;
    xcb_atom_t traySelection_ = XCB_ATOM_NONE;
    std::function<void()> appeared_;
    std::function<void()> missing_;
};

} // namespace nocturo
