#include "desktop/menus/taskbar_presence.h"

#include "x11/x_connection.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <utility>
#include <vector>

namespace nocturo {

namespace {

xcb_connection_t* serverOfWindows() {
    const auto* x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 != nullptr ? x11->connection() : nullptr;
}

bool isOrdinaryWindow(const QWidget& widget) {
    return widget.isWindow() &&
           (widget.windowType() == Qt::Window || widget.windowType() == Qt::Dialog);
}

} // namespace

TaskbarPresence::TaskbarPresence() {
    qApp->installEventFilter(this);
}

void TaskbarPresence::setHidden(bool hidden) {
    if (std::exchange(hidden_, hidden) == hidden) {
        return;
    }
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (!isOrdinaryWindow(*window) || !window->isVisible()) {
            continue;
        }
        tell(*window, true);
        if (!hidden) { // an ordinary application comes to the front
            window->raise();
            window->activateWindow();
        }
    }
}

bool TaskbarPresence::eventFilter(QObject* watched, QEvent* event) {
    auto* window = hidden_ ? qobject_cast<QWidget*>(watched) : nullptr;
    if (window == nullptr || !isOrdinaryWindow(*window)) {
        return false;
    }
    // A window that is shown hears of it just before it is mapped.
    if (event->type() == QEvent::Show && !event->spontaneous()) {
        tell(*window, false);
    }
    // Nothing on the task bar would bring a minimized window back; the tray's menu does. One that
    // waits for an answer stays, for the question would go with it.
    if (event->type() == QEvent::WindowStateChange && window->isMinimized() &&
        QApplication::activeModalWidget() == nullptr) {
        window->hide();
    }
    return false;
}

// The window manager owns the states of a mapped window and is asked; those that it starts with
// are the window's own to set.
void TaskbarPresence::tell(const QWidget& window, bool mapped) const {
    auto* server = serverOfWindows();
    if (server == nullptr) {
        return;
    }
    const auto id = static_cast<xcb_window_t>(window.winId());
    const xcb_atom_t states = internAtom(server, "_NET_WM_STATE");
    const xcb_atom_t skip = internAtom(server, "_NET_WM_STATE_SKIP_TASKBAR");
    if (!mapped) {
        xcb_change_property(server, XCB_PROP_MODE_APPEND, id, states, XCB_ATOM_ATOM, 32, 1, &skip);
        return;
    }
    xcb_client_message_event_t request{};
    request.response_type = XCB_CLIENT_MESSAGE;
    request.format = 32;
    request.window = id;
    request.type = states;
    request.data.data32[0] = hidden_ ? 1 : 0;
    request.data.data32[1] = skip;
    request.data.data32[3] = 1; // from an application
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(server)).data->root;
    xcb_send_event(server, false, root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&request));
    xcb_flush(server);
}

} // namespace nocturo
