// Qt decides once, when the first tray icon is made or a tray asked for, which kind of tray this
// process has, and "none" is for good. At login an application may well be there before the panel,
// so nobody may ask Qt before there is a tray.

#include "desktop/menus/tray_watch.h"

#include "desktop/qt/bus_call.h"

#include <QDBusMessage>
#include <QDBusVariant>
#include <QMetaObject>

#include <utility>

namespace nocturo {

namespace {

const QString kWatcher = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString kWatcherPath = QStringLiteral("/StatusNotifierWatcher");

} // namespace

TrayWatch::TrayWatch(std::optional<QDBusConnection> bus, const std::string& xDisplay,
                     std::function<void()> appeared)
    : bus_(std::move(bus)), appeared_(std::move(appeared)) {
    if (bus_) {
        followBus();
    }
    if (!xDisplay.empty()) {
        xEvents_ = XEvents::open(xDisplay);
    }
    if (xEvents_ != nullptr) {
        followServer();
    }
}

void TrayWatch::followBus() {
    watcherOwner_ = std::make_unique<QDBusServiceWatcher>(
        kWatcher, *bus_, QDBusServiceWatcher::WatchForRegistration);
    connect(watcherOwner_.get(), &QDBusServiceWatcher::serviceRegistered, this,
            &TrayWatch::askWatcher);
    // The watcher may be there before anybody shows what it watches.
    bus_->connect(kWatcher, kWatcherPath, kWatcher, QStringLiteral("StatusNotifierHostRegistered"),
                  this, SLOT(hostAppeared()));
    askWatcher();
}

void TrayWatch::askWatcher() {
    const auto question = propertyCall(kWatcher, kWatcherPath, kWatcher,
                                       QStringLiteral("IsStatusNotifierHostRegistered"));
    callLater(*bus_, question, this, [this](const QDBusMessage& answer) {
        const auto value = answer.arguments().value(0).value<QDBusVariant>();
        if (value.variant().toBool()) {
            tell();
        }
    });
}

void TrayWatch::hostAppeared() {
    tell();
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
    QMetaObject::invokeMethod(this, &TrayWatch::lookForTrayWindow, Qt::QueuedConnection);
}

void TrayWatch::lookForTrayWindow() {
    auto* connection = xEvents_->connection();
    const auto cookie = xcb_get_selection_owner(connection, traySelection_);
    const XcbReply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(connection, cookie, nullptr));
    if (reply && reply->owner != XCB_WINDOW_NONE) {
        tell();
    }
    xEvents_->processEvents();
}

void TrayWatch::tell() {
    if (const auto appeared = std::exchange(appeared_, nullptr)) {
        // Whoever is told may have no more use for this object.
        QMetaObject::invokeMethod(this, appeared, Qt::QueuedConnection);
    }
}

} // namespace nocturo
