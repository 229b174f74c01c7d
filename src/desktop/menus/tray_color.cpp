#include "desktop/menus/tray_color.h"

#include <QMetaObject>

#include <utility>

namespace nocturo {

TrayColor::TrayColor(const std::string& xDisplay, RunLoop& runLoop, std::function<void()> changed)
    : changed_(std::move(changed)) {
    if (!xDisplay.empty()) {
        events_ = XEvents::open(xDisplay, runLoop);
    }
    if (events_ == nullptr) {
        return;
    }
    selection_ = events_->atom("_NET_SYSTEM_TRAY_S0");
    colors_ = events_->atom("_NET_SYSTEM_TRAY_COLORS");
    events_->onProperty(colors_, changed_);
    // How a tray window says to all that it is there.
    events_->onEvent(XCB_CLIENT_MESSAGE, [this](const xcb_generic_event_t& event) {
        const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(event);
        if (message.format == 32 && message.data.data32[1] == selection_) {
            follow();
            changed_();
        }
    });
    follow();
    QMetaObject::invokeMethod(
        this, [this] { events_->processEvents(); }, Qt::QueuedConnection);
}

void TrayColor::follow() {
    auto* connection = events_->connection();
    const auto cookie = xcb_get_selection_owner(connection, selection_);
    const XcbReply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(connection, cookie, nullptr));
    tray_ = reply ? reply->owner : xcb_window_t{XCB_WINDOW_NONE};
    if (tray_ != XCB_WINDOW_NONE) {
        events_->followProperties(tray_);
    }
}

// Four colors, of which the first is for images and text.
std::optional<TrayColor::Color> TrayColor::color() const {
    if (tray_ == XCB_WINDOW_NONE) {
        return std::nullopt;
    }
    const auto numbers = events_->property(tray_, colors_);
    if (!numbers || numbers->size() < 3) {
        return std::nullopt;
    }
    const auto part = [&](std::size_t index) {
        return static_cast<std::uint16_t>((*numbers)[index]);
    };
    return Color{part(0), part(1), part(2)};
}

} // namespace nocturo
