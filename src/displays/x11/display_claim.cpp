#include "displays/x11/display_claim.h"

#include "x11/x_connection.h"

namespace nocturo {

namespace {

constexpr std::chrono::milliseconds kPatienceWithTheDying{500};

xcb_window_t ownerOf(xcb_connection_t* connection, xcb_atom_t selection) {
    const XcbReply<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
        connection, xcb_get_selection_owner(connection, selection), nullptr));
    return reply ? reply->owner : xcb_window_t{XCB_WINDOW_NONE};
}

/// Takes it if it is nobody's, and says whose it was. Between asking and taking nobody else may.
xcb_window_t take(xcb_connection_t* connection, xcb_atom_t selection, xcb_window_t window) {
    xcb_grab_server(connection);
    const xcb_window_t owner = ownerOf(connection, selection);
    if (owner == XCB_WINDOW_NONE) {
        xcb_set_selection_owner(connection, window, selection, XCB_CURRENT_TIME);
    }
    xcb_ungrab_server(connection);
    xcb_flush(connection);
    return owner;
}

} // namespace

bool claimDisplays(XConnection& server) {
    xcb_connection_t* connection = server.handle();
    const xcb_atom_t selection = server.atom("_NOCTURO_DISPLAYS");
    const xcb_window_t window = xcb_generate_id(connection);
    xcb_create_window(connection, 0, window, server.root(), 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    const xcb_window_t owner = take(connection, selection, window);
    if (owner == XCB_WINDOW_NONE) {
        return true;
    }
    if (server.selectEventsIfThere(owner, XCB_EVENT_MASK_STRUCTURE_NOTIFY)) {
        const auto isOwners = [owner](const xcb_generic_event_t& event) {
            return reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window == owner;
        };
        server.waitForEvent(XCB_DESTROY_NOTIFY, isOwners, kPatienceWithTheDying);
    }
    return take(connection, selection, window) == XCB_WINDOW_NONE;
}

} // namespace nocturo
