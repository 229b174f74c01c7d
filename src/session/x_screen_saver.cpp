#include "session/x_screen_saver.h"

#include "session/screen_saver_state.h"

#include <xcb/screensaver.h>

namespace nocturo {

namespace {

constexpr std::string_view kName = "MIT-SCREEN-SAVER";

// Cycling is a change of picture; a disabled saver never covers anything.
bool isActive(unsigned state) {
    return state == XCB_SCREENSAVER_STATE_ON || state == XCB_SCREENSAVER_STATE_CYCLE;
}

} // namespace

XListener followXScreenSaver(XConnection& server, ScreenSaverState& state) {
    auto* connection = server.handle();
    const auto* extension = xcb_get_extension_data(connection, &xcb_screensaver_id);
    if (extension == nullptr || !extension->present) {
        return nullptr;
    }
    XListener listener =
        server.onEvent(extension->first_event + unsigned{XCB_SCREENSAVER_NOTIFY},
                       [&state](const xcb_generic_event_t& event) {
                           const auto& notify =
                               reinterpret_cast<const xcb_screensaver_notify_event_t&>(event);
                           state.setActive(kName, isActive(notify.state));
                       });
    // Subscribes before asking, so that no change falls in between.
    xcb_screensaver_select_input(connection, server.root(),
                                 XCB_SCREENSAVER_EVENT_NOTIFY_MASK |
                                     XCB_SCREENSAVER_EVENT_CYCLE_MASK);
    const XcbReply<xcb_screensaver_query_info_reply_t> present(xcb_screensaver_query_info_reply(
        connection, xcb_screensaver_query_info(connection, server.root()), nullptr));
    if (present) {
        state.setActive(kName, isActive(present->state));
    }
    return listener;
}

} // namespace nocturo
