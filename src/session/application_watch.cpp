#include "session/application_watch.h"

#include "base/run_loop.h"
#include "x11/x_events.h"

#include <QStringList>

#include <algorithm>
#include <utility>

namespace nocturo {

namespace {

using namespace std::chrono_literals;

// Long enough for the windows of one application to go, short enough not to be seen.
constexpr auto kMoment = 200ms;

const QString kBus = QStringLiteral("org.freedesktop.DBus");

} // namespace

ApplicationWatch::ApplicationWatch(XEvents* events, std::optional<QDBusConnection> bus,
                                   RunLoop& runLoop, std::function<void()> quit)
    : events_(events), bus_(std::move(bus)), runLoop_(runLoop), quit_(std::move(quit)) {
    if (events_ == nullptr) {
        listenToBus(true);
        return;
    }
    windowListAtom_ = events_->atom("_NET_CLIENT_LIST");
    events_->onProperty(windowListAtom_, [this] { readWindowList(); });
    readWindowList();
}

ApplicationWatch::~ApplicationWatch() {
    if (events_ != nullptr) {
        events_->onProperty(windowListAtom_, [] {});
    }
}

void ApplicationWatch::readWindowList() {
    auto windows = events_->rootProperty(windowListAtom_);
    if (windows) {
        std::sort(windows->begin(), windows->end());
    }
    // A window manager that comes or goes ends no application.
    if (windows && windows_ &&
        !std::includes(windows->begin(), windows->end(), windows_->begin(), windows_->end())) {
        announceSoon();
    }
    windows_ = std::move(windows);
    listenToBus(!windows_);
}

void ApplicationWatch::listenToBus(bool listen) {
    if (!bus_ || listen == listening_) {
        return;
    }
    listening_ = listen;
    // Only the loss of a name, which is told with an empty new owner, is worth waking up for.
    const QStringList match = {QString(), QString(), QStringLiteral("")};
    const QString path = QStringLiteral("/org/freedesktop/DBus");
    const QString signal = QStringLiteral("NameOwnerChanged");
    const char* slot = SLOT(nameVanished(QString));
    if (listen) {
        bus_->connect(kBus, path, kBus, signal, match, QString(), this, slot);
    } else {
        bus_->disconnect(kBus, path, kBus, signal, match, QString(), this, slot);
    }
}

void ApplicationWatch::nameVanished(const QString& name) {
    if (!name.startsWith(QLatin1Char(':'))) {
        announceSoon();
    }
}

void ApplicationWatch::announceSoon() {
    if (announcement_ == nullptr) {
        announcement_ = runLoop_.scheduleTimer(kMoment, [this] {
            announcement_.reset();
            quit_();
        });
    }
}

} // namespace nocturo
