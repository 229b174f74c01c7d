#pragma once

#include "x11/x_connection.h"

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace nocturo {

/// The tray of an X server: a window in which others are embedded.
class TrayWindow {
  public:
    /// Red, green and blue, 0 to 65535.
    using Color = std::array<std::uint16_t, 3>;

    /// `changed` is called from the event loop when a tray came or went, and when it may want
    /// another color. The connection must outlive this, which `changed` may destroy.
    TrayWindow(XConnection& server, std::function<void()> changed);

    bool isThere() const { return window_ != XCB_WINDOW_NONE; }

    /// In which the tray has images drawn. Nothing where there is none, or where it does not say.
    std::optional<Color> color() const;

  private:
    void follow();
    void tell() const;

    XConnection& server_;
    std::function<void()> changed_;
    xcb_atom_t selection_;
    xcb_atom_t colors_;
    xcb_window_t window_ = XCB_WINDOW_NONE;
    std::vector<XListener> listeners_;
    XListener colorListener_; // of the window
};

} // namespace nocturo
