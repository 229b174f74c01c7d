#include "session/desktop_sources.h"

#include "base/log.h"
#include "base/notification_names.h"
#include "session/application_watch.h"
#include "session/bus_screen_savers.h"
#include "session/login_session.h"
#include "session/screen_saver_state.h"
#include "session/x_screen_saver.h"
#include "session/xscreensaver_status.h"

#include <optional>
#include <vector>

namespace nocturo {

struct DesktopSources::Parts {
    explicit Parts(NotificationCenter& distributed) : screenSaver(distributed) {}

    ScreenSaverState screenSaver;
    XListener xScreenSaver;
    std::vector<XListener> xScreenSaverStatus;
    std::optional<BusScreenSavers> busScreenSavers;
    std::optional<ApplicationWatch> applications;
    std::optional<LoginSession> login;
};

DesktopSources::DesktopSources(const NotificationCenters& centers, RunLoop& runLoop,
                               const Surroundings& surroundings)
    : parts_(std::make_unique<Parts>(centers.distributed)) {
    const auto poster = [&workspace = centers.workspace](std::string_view name) {
        return [&workspace, name] { workspace.post(name); };
    };
    Parts& parts = *parts_;
    XConnection* server = surroundings.server;
    if (server != nullptr) {
        parts.xScreenSaver = followXScreenSaver(*server, parts.screenSaver);
        parts.xScreenSaverStatus = followXScreenSaverStatus(*server, parts.screenSaver);
    }
    if (surroundings.sessionBus != nullptr) {
        parts.busScreenSavers.emplace(*surroundings.sessionBus, parts.screenSaver);
    }
    parts.applications.emplace(server, surroundings.sessionBus, runLoop,
                               poster(NSWorkspaceDidTerminateApplicationNotification));
    if (surroundings.systemBus != nullptr) {
        parts.login.emplace(
            *surroundings.systemBus, surroundings.sessionId,
            LoginSession::Handlers{
                poster(NSWorkspaceDidWakeNotification),
                poster(NSWorkspaceSessionDidBecomeActiveNotification),
                [&parts](bool locked) { parts.screenSaver.setSessionLocked(locked); }});
    } else {
        logInfo(kLogWorkspace, "There is no system bus, so Nocturo is not told when the "
                               "computer wakes up.");
    }
}

DesktopSources::~DesktopSources() = default;

} // namespace nocturo
