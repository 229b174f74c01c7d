#include "session/xscreensaver_status.h"

#include "session/screen_saver_state.h"

// XScreenSaver takes no word back when it is killed: its property stays. So while it covers the
// screen its window is watched, which goes with it. It marks that window with its version, by which
// its own commands find it as well.

namespace nocturo {

namespace {

constexpr std::string_view kProperty = "_SCREENSAVER_STATUS";
constexpr std::string_view kWindowMark = "_SCREENSAVER_VERSION";
constexpr std::string_view kBlank = "BLANK";
constexpr std::string_view kLock = "LOCK";

// Whether XScreenSaver has a window, whose end is told from now on.
bool watchSaver(XConnection& server, xcb_atom_t mark) {
    auto* raw = server.handle();
    const XcbReply<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(raw, xcb_query_tree(raw, server.root()), nullptr));
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
            found =
                server.selectEventsIfThere(windows[i], XCB_EVENT_MASK_STRUCTURE_NOTIFY) || found;
        }
    }
    return found;
}

} // namespace

std::vector<XListener> followXScreenSaverStatus(XConnection& server, ScreenSaverState& state) {
    for (const auto name : {kProperty, kWindowMark, kBlank, kLock}) {
        server.expectAtom(name);
    }
    const xcb_atom_t property = server.atom(kProperty);
    const auto report = [=, &server, &state, mark = server.atom(kWindowMark),
                         blank = server.atom(kBlank), lock = server.atom(kLock)] {
        const auto status = server.property(server.root(), property);
        if (!status || status->empty()) {
            state.forget(kProperty);
            return;
        }
        const std::uint32_t phase = status->front();
        const bool covers = phase != XCB_ATOM_NONE && (phase == blank || phase == lock);
        if (covers && !watchSaver(server, mark)) {
            state.forget(kProperty);
        } else {
            state.setActive(kProperty, covers);
        }
    };
    std::vector<XListener> listeners = {
        server.onProperty(server.root(), property, report),
        server.onEvent(XCB_DESTROY_NOTIFY, [report](const auto&) { report(); })};
    report();
    return listeners;
}

} // namespace nocturo
