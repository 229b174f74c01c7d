#pragma once

#include "x11/xcb_handles.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace nocturo {

class RunLoop;
class Watch;

/// A connection to an X server for what is announced on its root window, and on others that are
/// followed. Handlers run from the event loop. When the server goes, nothing more is heard, and
/// that is all.
class XEvents {
  public:
    using EventHandler = std::function<void(const xcb_generic_event_t& event)>;

    /// Null when the server cannot be reached. The loop must outlive the connection.
    static std::unique_ptr<XEvents> open(const std::string& displayName, RunLoop& runLoop);

    ~XEvents();

    xcb_connection_t* connection() const { return connection_.get(); }
    xcb_window_t root() const { return root_; }

    /// The server's number for a name; 0 when the server does not answer.
    xcb_atom_t atom(std::string_view name) const;

    /// The property of the window as 32-bit numbers; nothing when it is not there.
    std::optional<std::vector<std::uint32_t>> property(xcb_window_t window, xcb_atom_t name) const;
    std::optional<std::vector<std::uint32_t>> rootProperty(xcb_atom_t name) const {
        return property(root_, name);
    }

    /// From now on the properties of that window are heard of as the root window's are.
    void followProperties(xcb_window_t window) const;

    /// One handler for each property and for each type of event.
    void onProperty(xcb_atom_t name, std::function<void()> changed);
    void onEvent(std::uint8_t type, EventHandler handler);

    /// Hands out what has come in. The event loop does it by itself, except for what came in beside
    /// an answer that was waited for outside of a handler.
    void processEvents();

  private:
    XEvents(XcbConnection connection, xcb_window_t root, RunLoop& runLoop);
    void handle(const xcb_generic_event_t& event) const;

    XcbConnection connection_;
    xcb_window_t root_;
    std::map<xcb_atom_t, std::function<void()>> propertyHandlers_;
    std::map<std::uint8_t, EventHandler> eventHandlers_;
    std::unique_ptr<Watch> watch_; // none once the server has gone
};

} // namespace nocturo
