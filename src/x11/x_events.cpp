#include "x11/x_events.h"

#include "base/run_loop.h"

#include <utility>

namespace nocturo {

namespace {

constexpr std::uint32_t kWholeProperty = UINT32_MAX / 4; // in units of four bytes

} // namespace

std::unique_ptr<XEvents> XEvents::open(const std::string& displayName, RunLoop& runLoop) {
    int preferredScreen = 0;
    XcbConnection connection(xcb_connect(displayName.c_str(), &preferredScreen));
    auto* raw = connection.get();
    if (xcb_connection_has_error(raw)) {
        return nullptr;
    }
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(raw));
    for (int i = 0; i < preferredScreen && screens.rem > 1; ++i) {
        xcb_screen_next(&screens);
    }
    const xcb_window_t root = screens.data->root;
    // Those who become managers of something announce it as if the root window had changed.
    const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(raw, root, XCB_CW_EVENT_MASK, &mask);
    xcb_flush(raw);
    return std::unique_ptr<XEvents>(new XEvents(std::move(connection), root, runLoop));
}

XEvents::XEvents(XcbConnection connection, xcb_window_t root, RunLoop& runLoop)
    : connection_(std::move(connection)), root_(root),
      watch_(
          runLoop.watch(xcb_get_file_descriptor(connection_.get()), [this] { processEvents(); })) {}

XEvents::~XEvents() = default;

xcb_atom_t XEvents::atom(std::string_view name) const {
    auto* raw = connection_.get();
    const auto cookie =
        xcb_intern_atom(raw, false, static_cast<std::uint16_t>(name.size()), name.data());
    const XcbReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(raw, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

std::optional<std::vector<std::uint32_t>> XEvents::property(xcb_window_t window,
                                                            xcb_atom_t name) const {
    auto* raw = connection_.get();
    const auto cookie =
        xcb_get_property(raw, false, window, name, XCB_GET_PROPERTY_TYPE_ANY, 0, kWholeProperty);
    const XcbReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(raw, cookie, nullptr));
    if (!reply || reply->type == XCB_ATOM_NONE || reply->format != 32) {
        return std::nullopt;
    }
    const auto* numbers = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return std::vector(numbers, numbers + reply->value_len);
}

void XEvents::followProperties(xcb_window_t window) const {
    const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(connection_.get(), window, XCB_CW_EVENT_MASK, &mask);
    xcb_flush(connection_.get());
}

void XEvents::onProperty(xcb_atom_t name, std::function<void()> changed) {
    propertyHandlers_[name] = std::move(changed);
}

void XEvents::onEvent(std::uint8_t type, EventHandler handler) {
    eventHandlers_[type] = std::move(handler);
}

void XEvents::processEvents() {
    while (const XcbReply<xcb_generic_event_t> event{xcb_poll_for_event(connection_.get())}) {
        handle(*event);
    }
    // A descriptor at its end stays readable for good.
    if (xcb_connection_has_error(connection_.get())) {
        watch_.reset();
    }
}

void XEvents::handle(const xcb_generic_event_t& event) const {
    const auto type = static_cast<std::uint8_t>(event.response_type & 0x7fu);
    if (type == XCB_PROPERTY_NOTIFY) {
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        const auto handler = propertyHandlers_.find(change.atom);
        if (handler != propertyHandlers_.end()) {
            handler->second();
        }
        return;
    }
    const auto handler = eventHandlers_.find(type);
    if (handler != eventHandlers_.end()) {
        handler->second(event);
    }
}

} // namespace nocturo
