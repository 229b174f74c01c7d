#pragma once

#include "x11/x_events.h"

#include <QObject>

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace nocturo {

class RunLoop;

/// The color in which the tray window of an X server has its images drawn.
class TrayColor : public QObject {
  public:
    /// Red, green and blue, 0 to 65535.
    using Color = std::array<std::uint16_t, 3>;

    /// `changed` is called from the event loop whenever it may be another, also for another tray.
    TrayColor(const std::string& xDisplay, RunLoop& runLoop, std::function<void()> changed);

    /// Nothing where there is no tray window, or where it does not say.
    std::optional<Color> color() const;

  private:
    void follow();

    std::function<void()> changed_;
    std::unique_ptr<XEvents> events_; // null where there is no X server
    xcb_atom_t selection_ = XCB_ATOM_NONE;
    xcb_atom_t colors_ = XCB_ATOM_NONE;
    xcb_window_t tray_ = XCB_WINDOW_NONE;
};

} // namespace nocturo
