#include "session/xscreensaver_status.h"

#include "session/screen_saver_state.h"
#include "x11/x_events.h"

// XScreenSaver takes no word back when it is killed: its property stays. So while it covers the
// screen its window is watched, which goes with it. It marks that window with its version, by which
// its own commands find it as well.

namespace nocturo {

namespace {

constexpr std::string_view kProperty = "_SCREENSAVER_STATUS";
constexpr std::string_view kWindowMark = "_SCREENSAVER_VERSION";

// Asks for word of the window's end; false when that has come already.
bool watchEnd(xcb_connection_t* connection, xcb_window_t window) {
    const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    const auto cookie =
        xcb_change_window_attributes_checked(connection, window, XCB_CW_EVENT_MASK, &mask);
    return XcbReply<xcb_generic_error_t>(xcb_request_check(connection, cookie)) == nullptr;
}

// Whether XScreenSaver has a window, whose end is told from now on.
bool watchSaver(const XEvents& events, xcb_atom_t mark) {
    auto* raw = events.connection();
    const XcbReply<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(raw, xcb_query_tree(raw, events.root()), nullptr));
    if (!tree) {
        return false;
    }
    const auto* windows = xcb_query_tree_children(tree.get());
    std::vector<xcb_get_property_cookie_t> questions;
    questions.reserve(static_cast<std::size_t>(tree->children_len));
    for (int i = 0; i < tree->children_len; ++i) {
        questions.push_back(
            xcb_get_property(raw, false, windows[i], mark, XCB_GET_PROPERTY_TYPE_ANY, 0, 0));
    }
    bool found = false;
    for (std::size_t i = 0; i < questions.size(); ++i) {
        const XcbReply<xcb_get_property_reply_t> answer(
            xcb_get_property_reply(raw, questions[i], nullptr));
        if (answer && answer->type != XCB_ATOM_NONE) {
            found = watchEnd(raw, windows[i]) || found;
        }
    }
    return found;
}

} // namespace

void followXScreenSaverStatus(XEvents& events, ScreenSaverState& state) {
    const xcb_atom_t property = events.atom(kProperty);
    const xcb_atom_t mark = events.atom(kWindowMark);
    const xcb_atom_t blank = events.atom("BLANK");
    const xcb_atom_t lock = events.atom("LOCK");
    const auto report = [=, &events, &state] {
        const auto status = events.rootProperty(property);
        if (!status || status->empty()) {
            state.forget(kProperty);
            return;
        }
        const std::uint32_t phase = status->front();
        const bool covers = phase != XCB_ATOM_NONE && (phase == blank || phase == lock);
        if (covers && !watchSaver(events, mark)) {
            state.forget(kProperty);
        } else {
            state.setActive(kProperty, covers);
        }
    };
    events.onProperty(property, report);
    events.onEvent(XCB_DESTROY_NOTIFY, [report](const auto&) { report(); });
    report();
}

} // namespace nocturo
