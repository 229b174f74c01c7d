// The protocol is freedesktop.org's "Startup notification": a text, cut into messages of 20 bytes
// to the root window. The last one holds the zero byte that ends the text.

#include "x11/startup_notification.h"

#include "x11/xcb_handles.h"

#include <cstring>
#include <string_view>

namespace nocturo {

namespace {

xcb_atom_t atom(xcb_connection_t* server, std::string_view name) {
    const auto cookie =
        xcb_intern_atom(server, false, static_cast<std::uint16_t>(name.size()), name.data());
    const XcbReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(server, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

std::string quoted(const std::string& text) {
    std::string result = "\"";
    for (const char character : text) {
        if (character == '"' || character == '\\') {
            result += '\\';
        }
        result += character;
    }
    return result + '"';
}

} // namespace

void finishStartup(const std::string& displayName, const std::string& startupIdentifier) {
    if (startupIdentifier.empty() || displayName.empty()) {
        return;
    }
    const XcbConnection connection(xcb_connect(displayName.c_str(), nullptr));
    auto* server = connection.get();
    if (xcb_connection_has_error(server) != 0) {
        return;
    }
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(server)).data->root;
    const xcb_window_t sender = xcb_generate_id(server); // tells this text from others'
    xcb_create_window(server, XCB_COPY_FROM_PARENT, sender, root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 8;
    message.window = sender;
    message.type = atom(server, "_NET_STARTUP_INFO_BEGIN");
    const xcb_atom_t more = atom(server, "_NET_STARTUP_INFO");
    const std::string text = "remove: ID=" + quoted(startupIdentifier) + '\0';
    constexpr std::size_t kPart = sizeof message.data.data8;
    for (std::size_t sent = 0; sent < text.size(); sent += kPart) {
        std::memset(message.data.data8, 0, kPart);
        text.copy(reinterpret_cast<char*>(message.data.data8), kPart, sent);
        xcb_send_event(server, false, root, XCB_EVENT_MASK_PROPERTY_CHANGE,
                       reinterpret_cast<const char*>(&message));
        message.type = more;
    }
    // A server drops what it has not read yet of a client that goes.
    const XcbReply<xcb_get_input_focus_reply_t> answer(
        xcb_get_input_focus_reply(server, xcb_get_input_focus(server), nullptr));
}

} // namespace nocturo
