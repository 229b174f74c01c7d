#include "session/application_watch.h"

#include "base/run_loop.h"

#include <algorithm>
#include <utility>

namespace nocturo {

namespace {

using namespace std::chrono_literals;

// Long enough for the windows of one application to go, short enough not to be seen.
constexpr auto kMoment = 200ms;

// Only the loss of a name, which is told with an empty new owner, is worth waking up for.
constexpr const char* kNameVanished =
    "type='signal',sender='org.freedesktop.DBus',path='/org/freedesktop/DBus',"
    "interface='org.freedesktop.DBus',member='NameOwnerChanged',arg2=''";

} // namespace

ApplicationWatch::ApplicationWatch(XConnection* server, const Bus* bus, RunLoop& runLoop,
                                   std::function<void()> quit)
    : server_(server), bus_(bus), runLoop_(runLoop), quit_(std::move(quit)) {
    if (server_ == nullptr) {
        listenToBus(true);
        return;
    }
    windowListAtom_ = server_->atom("_NET_CLIENT_LIST");
    windowList_ =
        server_->onProperty(server_->root(), windowListAtom_, [this] { readWindowList(); });
    readWindowList();
}

ApplicationWatch::~ApplicationWatch() = default;

void ApplicationWatch::readWindowList() {
    auto windows = server_->property(server_->root(), windowListAtom_);
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
    if (bus_ == nullptr || listen == (namesThatVanish_ != nullptr)) {
        return;
    }
    namesThatVanish_ = !listen ? nullptr : bus_->onMatch(kNameVanished, [this](auto* signal) {
        const char* name = nullptr;
        if (sd_bus_message_read(signal, "s", &name) > 0 && *name != ':') {
            announceSoon();
        }
    });
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
