#include "session/x_screen_saver.h"

#include "session/screen_saver_state.h"
#include "x11/x_events.h"

#include <xcb/screensaver.h>

namespace nocturo {

namespace {

constexpr std::string_view kName = "MIT-SCREEN-SAVER";

// Cycling is a change of picture; a disabled saver never covers anything.
bool isActive(unsigned state) {
    return state == XCB_SCREENSAVER_STATE_ON || state == XCB_SCREENSAVER_STATE_CYCLE;
}

} // namespace

void followXScreenSaver(XEvents& events, ScreenSaverState& state) {
    auto* connection = events.connection();
    const auto* extension = xcb_get_extension_data(connection, &xcb_screensaver_id);
    if (extension == nullptr || !extension->present) {
        return;
    }
    events.onEvent(static_cast<std::uint8_t>(extension->first_event + XCB_SCREENSAVER_NOTIFY),
                   [&state](const xcb_generic_event_t& event) {
                       const auto& notify =
                           reinterpret_cast<const xcb_screensaver_notify_event_t&>(event);
                       state.setActive(kName, isActive(notify.state));
                   });
    // Subscribes before asking, so that no change falls in between.
    xcb_screensaver_select_input(connection, events.root(),
                                 XCB_SCREENSAVER_EVENT_NOTIFY_MASK |
                                     XCB_SCREENSAVER_EVENT_CYCLE_MASK);
    const XcbReply<xcb_screensaver_query_info_reply_t> present(xcb_screensaver_query_info_reply(
        connection, xcb_screensaver_query_info(connection, events.root()), nullptr));
    if (present) {
        state.setActive(kName, isActive(present->state));
    }
}

} // namespace nocturo
