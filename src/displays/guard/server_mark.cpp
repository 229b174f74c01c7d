#include "displays/guard/server_mark.h"

#include <array>
#include <cstring>
#include <poll.h>
#include <string_view>

namespace nocturo {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::string_view kPropertyName = "_NOCTURO_CHANGED_DISPLAYS";

// As the property holds it: the token's upper and lower half, and the window.
using Words = std::array<std::uint32_t, 3>;

unsigned eventType(const xcb_generic_event_t& event) {
    return event.response_type & 0x7fu;
}

} // namespace

ServerMark::ServerMark(xcb_connection_t* connection) : connection_(connection) {
    if (xcb_connection_has_error(connection_) != 0) {
        return;
    }
    // Always the first screen's, whichever one a program prefers: it stands for the whole server.
    root_ = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root;
    const auto cookie = xcb_intern_atom(
        connection_, false, static_cast<std::uint16_t>(kPropertyName.size()), kPropertyName.data());
    const XcbReply<xcb_intern_atom_reply_t> atom(
        xcb_intern_atom_reply(connection_, cookie, nullptr));
    property_ = atom ? atom->atom : static_cast<std::uint32_t>(XCB_ATOM_NONE);
}

std::optional<ServerMark::Content> ServerMark::read() {
    Words words{};
    const auto cookie = xcb_get_property(connection_, false, root_, property_, XCB_ATOM_CARDINAL, 0,
                                         static_cast<std::uint32_t>(words.size()));
    const XcbReply<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(connection_, cookie, nullptr));
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
    xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, root_, property_, XCB_ATOM_CARDINAL, 32,
                        static_cast<std::uint32_t>(words.size()), words.data());
}

void ServerMark::remove() {
    xcb_delete_property(connection_, root_, property_);
}

std::uint32_t ServerMark::createWindow() {
    if (xcb_connection_has_error(connection_) != 0) {
        return 0;
    }
    const std::uint32_t window = xcb_generate_id(connection_);
    xcb_create_window(connection_, 0, window, root_, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_flush(connection_);
    return window;
}

bool ServerMark::isAlive(std::uint32_t window) {
    if (window == 0) {
        return false;
    }
    const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    const auto cookie =
        xcb_change_window_attributes_checked(connection_, window, XCB_CW_EVENT_MASK, &mask);
    const XcbReply<xcb_generic_error_t> error(xcb_request_check(connection_, cookie));
    return !error && xcb_connection_has_error(connection_) == 0;
}

bool ServerMark::waitUntilGone(std::uint32_t window, std::chrono::milliseconds patience) {
    const auto isItsEnd = [window](const xcb_generic_event_t& event) {
        return eventType(event) == XCB_DESTROY_NOTIFY &&
               reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window == window;
    };
    return !isAlive(window) || waitForEvent(isItsEnd, patience);
}

bool ServerMark::waitUntilRemoved(std::chrono::milliseconds patience) {
    const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(connection_, root_, XCB_CW_EVENT_MASK, &mask);
    const auto isRemoval = [this](const xcb_generic_event_t& event) {
        const auto& notify = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        return eventType(event) == XCB_PROPERTY_NOTIFY && notify.atom == property_ &&
               notify.state == XCB_PROPERTY_DELETE;
    };
    return !read() || waitForEvent(isRemoval, patience);
}

template <class Condition>
bool ServerMark::waitForEvent(Condition isTheOne, std::chrono::milliseconds patience) {
    const auto deadline = Clock::now() + patience;
    xcb_flush(connection_);
    while (xcb_connection_has_error(connection_) == 0) {
        while (const XcbReply<xcb_generic_event_t> event{xcb_poll_for_event(connection_)}) {
            if (isTheOne(*event)) {
                return true;
            }
        }
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now()).count();
        if (left <= 0) {
            return false;
        }
        pollfd source{xcb_get_file_descriptor(connection_), POLLIN, 0};
        poll(&source, 1, static_cast<int>(left));
    }
    return false;
}

void ServerMark::synchronize() {
    const XcbReply<xcb_get_input_focus_reply_t> anyReply(
        xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
}

ServerMark::Grab::Grab(ServerMark& mark) : connection_(mark.connection_) {
    xcb_grab_server(connection_);
}

ServerMark::Grab::~Grab() {
    xcb_ungrab_server(connection_);
    xcb_flush(connection_);
}

} // namespace nocturo
