#include "program/desktop_session.h"

#include "base/environment.h"
#include "base/notification_names.h"
#include "program/connected_displays.h"
#include "program/core.h"
#include "program/rule_sources.h"
#include "program/surroundings.h"

namespace nocturo {

DesktopSession::DesktopSession(Core& core, const ConnectedDisplays& displays, XConnection* server)
    : core_(core), displays_(displays), server_(server), applications_(dataDirectories()),
      documents_(core.controller, core.runLoop),
      windowRestoration_(core.controller, stateDirectory() / "windows.plist") {
    core.controller.setInstalledApplications(&applications_);
    core.desktop.setXServer(waylandDisplayName().empty() ? server : nullptr);
    core.desktop.sessionIsEnding = [this] { windowRestoration_.save(); };
}

DesktopSession::~DesktopSession() {
    core_.automation.rules().stopListening();
    core_.desktop.setKeyboardLayout(nullptr);
    core_.desktop.setXServer(nullptr);
    core_.desktop.sessionIsEnding = nullptr;
}

void DesktopSession::launch(const std::vector<std::string>& documents,
                            const std::function<void(const std::string&)>& refused) {
    core_.face.announceChanges();
    const auto goOn = [this, documents, refused](bool launched) {
        if (!launched) {
            core_.runLoop.quit();
            return;
        }
        listen();
        static_cast<void>(documents_.open(documents, [this, refused](const auto& paths) {
            if (!paths.empty()) {
                refused(refusalOf(paths));
            }
            core_.hooks.launchDidFinish();
            windowRestoration_.restore();
            windowRestoration_.startKeeping();
        }));
    };
    core_.centers.local.addObserver(
        &core_.controller, NSApplicationDidFinishLaunchingNotification,
        [this, goOn] { core_.controller.applicationDidFinishLaunching(goOn); });
    core_.centers.local.post(NSApplicationDidFinishLaunchingNotification);
}

void DesktopSession::listen() {
    hotKeys_.emplace(DesktopHotKeys::Surroundings{server_, waylandDisplayName(), desktopName(),
                                                  core_.sessionBus.get(), core_.runLoop,
                                                  core_.centers.local});
    core_.face.setKeyboardLayout(hotKeys_->layout());
    core_.desktop.setKeyboardLayout(hotKeys_->layout());
    core_.controller.updateHotKey();
    hotKeys_->launchDidFinish();
    core_.face.launchDidFinish();
    sources_.emplace(core_.centers, core_.runLoop,
                     DesktopSources::Surroundings{displays_.areOfXServer() ? server_ : nullptr,
                                                  loginSession(), core_.sessionBus.get(),
                                                  core_.systemBus.get()});
    core_.automation.rules().setSources(
        ruleSources(server_, waylandDisplayName(), core_.sessionBus.get(), core_.runLoop));
    looksWatch_.emplace(core_.looks.directories(), core_.runLoop,
                        [this] { core_.looks.directoriesDidChange(); });
}

} // namespace nocturo
