// Qt decides once, when the first tray icon is made or a tray asked for, which kind of tray this
// process has, and "none" is for good. At login an application may well be there before the panel,
// so nobody may ask Qt, or load it for that, before there is a tray.

#include "session/tray_watch.h"

#include "base/run_loop.h"

#include <utility>

namespace nocturo {

TrayWatch::TrayWatch(const std::string& xDisplay, RunLoop& runLoop, std::function<void()> appeared,
                     std::function<void()> missing)
    : runLoop_(runLoop), appeared_(std::move(appeared)), missing_(std::move(missing)) {
    if (!xDisplay.empty()) {
        xEvents_ = XEvents::open(xDisplay, runLoop);
    }
    if (xEvents_ != nullptr) {
        followServer();
    } else {
        callSoon(missing_);
    }
}

TrayWatch::~TrayWatch() = default;

void TrayWatch::callSoon(std::function<void()> action) {
    soon_ = runLoop_.scheduleTimer(std::chrono::milliseconds(0), std::move(action));
}

// A tray window owns a selection, and says so to all when it takes it.
void TrayWatch::followServer() {
    traySelection_ = xEvents_->atom("_NET_SYSTEM_TRAY_S0");
    xEvents_->onEvent(XCB_CLIENT_MESSAGE, [this](const xcb_generic_event_t& event) {
        const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(event);
        if (message.format == 32 && message.data.data32[1] == traySelection_) {
            tell();
        }
    });
    callSoon([this] { lookForTrayWindow(); });
}

void TrayWatch::lookForTrayWindow() {
    auto* connection = xEvents_->connection();
    const auto cookie = xcb_get_selection_owner(connection, traySelection_);
    const XcbReply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(connection, cookie, nullptr));
    if (reply && reply->owner != XCB_WINDOW_NONE) {
        tell();
    } else {
        missing_();
    }
    xEvents_->processEvents();
}

void TrayWatch::tell() {
    if (const auto appeared = std::exchange(appeared_, nullptr)) {
        // Whoever is told may have no more use for this object.
        callSoon(appeared);
    }
}

} // namespace nocturo
