#include "platform/screensaver/xscreensaver_status.h"

#include "platform/desktop/x_events.h"
#include "platform/screensaver/screen_saver_state.h"

namespace nocturo {

namespace {

constexpr std::string_view kProperty = "_SCREENSAVER_STATUS";

} // namespace

void followXScreenSaverStatus(XEvents& events, ScreenSaverState& state) {
    const xcb_atom_t property = events.atom(kProperty);
    const xcb_atom_t blank = events.atom("BLANK");
    const xcb_atom_t lock = events.atom("LOCK");
    const auto report = [=, &events, &state] {
        const auto status = events.rootProperty(property);
        if (!status || status->empty()) {
            state.forget(kProperty);
            return;
        }
        const std::uint32_t phase = status->front();
        state.setActive(kProperty, phase != XCB_ATOM_NONE && (phase == blank || phase == lock));
    };
    events.onRootProperty(property, report);
    report();
}

} // namespace nocturo
