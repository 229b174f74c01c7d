// The protocol is freedesktop.org's "Startup notification": a text, cut into messages of 20 bytes
// to the root window. The last one holds the zero byte that ends the text.

#include "x11/startup_notification.h"

#include "x11/x_connection.h"

#include <cstring>

namespace nocturo {

namespace {

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

void finishStartup(XConnection* connection, const std::string& startupIdentifier) {
    if (connection == nullptr || startupIdentifier.empty()) {
        return;
    }
    auto* server = connection->handle();
    connection->expectAtom("_NET_STARTUP_INFO");
    const xcb_window_t root = connection->roots().front();
    const xcb_window_t sender = xcb_generate_id(server); // tells this text from others'
    xcb_create_window(server, XCB_COPY_FROM_PARENT, sender, root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 8;
    message.window = sender;
    message.type = connection->atom("_NET_STARTUP_INFO_BEGIN");
    const xcb_atom_t more = connection->atom("_NET_STARTUP_INFO");
    const std::string text = "remove: ID=" + quoted(startupIdentifier) + '\0';
    constexpr std::size_t kPart = sizeof message.data.data8;
    for (std::size_t sent = 0; sent < text.size(); sent += kPart) {
        std::memset(message.data.data8, 0, kPart);
        text.copy(reinterpret_cast<char*>(message.data.data8), kPart, sent);
        xcb_send_event(server, false, root, XCB_EVENT_MASK_PROPERTY_CHANGE,
                       reinterpret_cast<const char*>(&message));
        message.type = more;
    }
    xcb_destroy_window(server, sender);
    // A server drops what it has not read yet of a client that goes.
    connection->synchronize();
}

} // namespace nocturo
