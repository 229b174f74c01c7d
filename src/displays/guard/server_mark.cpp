#include "displays/guard/server_mark.h"

#include <array>
#include <cstring>
#include <string_view>

namespace nocturo {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::string_view kPropertyName = "_NOCTURO_CHANGED_DISPLAYS";

// As the property holds it: the token's upper and lower half, and the window.
using Words = std::array<std::uint32_t, 3>;

} // namespace

ServerMark::ServerMark(XConnection& connection) : connection_(connection) {
    if (connection.isLost()) {
        return;
    }
    // Always the first screen's, whichever one a program prefers: it stands for the whole server.
    root_ = xcb_setup_roots_iterator(xcb_get_setup(connection.handle())).data->root;
    property_ = connection.atom(kPropertyName);
}

void ServerMark::expect(XConnection& connection) {
    connection.expectAtom(kPropertyName);
}

std::optional<ServerMark::Content> ServerMark::read() {
    Words words{};
    const auto cookie =
        xcb_get_property(connection_.handle(), false, root_, property_, XCB_ATOM_CARDINAL, 0,
                         static_cast<std::uint32_t>(words.size()));
    const XcbReply<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(connection_.handle(), cookie, nullptr));
    if (!reply || reply->type == XCB_ATOM_NONE) {
        return std::nullopt;
    }
    // Of another shape it is still a mark, of no run that anybody knows.
    if (reply->format == 32 && reply->value_len == words.size()) {
        std::memcpy(words.data(), xcb_get_property_value(reply.get()), sizeof words);
    }
    return Content{std::uint64_t{words[0]} << 32 | words[1], words[2]};
}

void ServerMark::set(const Content& content) {
    const Words words{static_cast<std::uint32_t>(content.token >> 32),
                      static_cast<std::uint32_t>(content.token), content.window};
    xcb_change_property(connection_.handle(), XCB_PROP_MODE_REPLACE, root_, property_,
                        XCB_ATOM_CARDINAL, 32, static_cast<std::uint32_t>(words.size()),
                        words.data());
}

void ServerMark::remove() {
    xcb_delete_property(connection_.handle(), root_, property_);
}

std::uint32_t ServerMark::createWindow() {
    if (connection_.isLost()) {
        return 0;
    }
    const std::uint32_t window = xcb_generate_id(connection_.handle());
    xcb_create_window(connection_.handle(), 0, window, root_, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_flush(connection_.handle());
    return window;
}

bool ServerMark::isAlive(std::uint32_t window) {
    return window != 0 && connection_.selectEventsIfThere(window, XCB_EVENT_MASK_STRUCTURE_NOTIFY);
}

bool ServerMark::waitUntilGone(std::uint32_t window, std::chrono::milliseconds patience) {
    const auto isItsEnd = [window](const xcb_generic_event_t& event) {
        return reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window == window;
    };
    return !isAlive(window) || connection_.waitForEvent(XCB_DESTROY_NOTIFY, isItsEnd, patience);
}

bool ServerMark::waitUntilRemoved(std::chrono::milliseconds patience) {
    connection_.selectEvents(root_, XCB_EVENT_MASK_PROPERTY_CHANGE);
    const auto isRemoval = [this](const xcb_generic_event_t& event) {
        const auto& notify = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        return notify.atom == property_ && notify.state == XCB_PROPERTY_DELETE;
    };
    return !read() || connection_.waitForEvent(XCB_PROPERTY_NOTIFY, isRemoval, patience);
}

ServerMark::Grab::Grab(ServerMark& mark) : connection_(mark.connection_.handle()) {
    xcb_grab_server(connection_);
}

ServerMark::Grab::~Grab() {
    xcb_ungrab_server(connection_);
    xcb_flush(connection_);
}

} // namespace nocturo
