#include "session/tray_window.h"

#include <string>
#include <utility>

namespace nocturo {

TrayWindow::TrayWindow(XConnection& server, std::function<void()> changed)
    : server_(server), changed_(std::move(changed)) {
    const std::string selection = "_NET_SYSTEM_TRAY_S" + std::to_string(server.screenNumber());
    server.expectAtom("_NET_SYSTEM_TRAY_COLORS");
    selection_ = server.atom(selection);
    colors_ = server.atom("_NET_SYSTEM_TRAY_COLORS");
    // A tray owns a selection, and says so to all, on the root window, when it takes it.
    server.selectEvents(server.root(), XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    listeners_ = {
        server.onEvent(XCB_CLIENT_MESSAGE,
                       [this](const xcb_generic_event_t& event) {
                           const auto& message =
                               reinterpret_cast<const xcb_client_message_event_t&>(event);
                           if (message.format == 32 && message.data.data32[1] == selection_) {
                               follow();
                               tell();
                           }
                       }),
        server.onEvent(XCB_DESTROY_NOTIFY,
                       [this](const xcb_generic_event_t& event) {
                           const auto& end =
                               reinterpret_cast<const xcb_destroy_notify_event_t&>(event);
                           if (isThere() && end.window == window_) {
                               follow();
                               tell();
                           }
                       }),
    };
    follow();
}

void TrayWindow::follow() {
    const auto cookie = xcb_get_selection_owner(server_.handle(), selection_);
    const XcbReply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(server_.handle(), cookie, nullptr));
    window_ = reply ? reply->owner : xcb_window_t{XCB_WINDOW_NONE};
    colorListener_.reset();
    if (isThere() && server_.selectEventsIfThere(window_, XCB_EVENT_MASK_STRUCTURE_NOTIFY |
                                                              XCB_EVENT_MASK_PROPERTY_CHANGE)) {
        colorListener_ = server_.onProperty(window_, colors_, [this] { tell(); });
    } else {
        window_ = XCB_WINDOW_NONE;
    }
}

void TrayWindow::tell() const {
    const auto changed = changed_;
    changed();
}

// Four colors, of which the first is for images and text.
std::optional<TrayWindow::Color> TrayWindow::color() const {
    const auto numbers = isThere() ? server_.property(window_, colors_) : std::nullopt;
    if (!numbers || numbers->size() < 3) {
        return std::nullopt;
    }
    const auto part = [&](std::size_t index) {
        return static_cast<std::uint16_t>((*numbers)[index]);
    };
    return Color{part(0), part(1), part(2)};
}

} // namespace nocturo
