#include "base/environment.h"
#include "base/event_loop.h"
#include "base/log.h"
#include "base/program_watch.h"
#include "base/runtime_directory.h"
#include "base/texts/translated.h"
#include "base/texts/users_language.h"
#include "program/connected_displays.h"
#include "program/core.h"
#include "program/desktop_session.h"
#include "program/options.h"
#include "program/session_claim.h"
#include "program/surroundings.h"
#include "settings/defaults_store.h"
#include "settings/settings_keeper.h"
#include "x11/startup_notification.h"
#include "x11/x_connection.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

namespace nocturo {

namespace {

constexpr int kSuccess = 0;
constexpr int kFailure = 1;
constexpr int kUsage = 2;

void tell(std::FILE* stream, const std::string& sentence) {
    std::fprintf(stream, "nocturo: %s\n", sentence.c_str());
    std::fflush(stream); // standard output may be a pipe
}

void tellOfLostServer() {
    tell(stderr, translated("The display server has gone, so Nocturo ends."));
}

/// What is left to do where another Nocturo has the session.
int endAfterHandingOver(const SessionClaim& claim, const std::vector<std::string>& documents) {
    if (!claim.problem().empty()) {
        tell(stderr, claim.problem());
        return kFailure;
    }
    if (documents.empty()) {
        tell(stdout, translated("Nocturo is already running."));
    }
    return kSuccess;
}

/// In a Wayland session an X server has nothing that is needed, and may only start because of us.
std::string xServerOfDisplays(const DisplayChoice& choice) {
    const bool isWanted = waylandDisplayName().empty() || choice.kind == DisplayChoice::Kind::randr;
    return isWanted ? xDisplayName() : std::string();
}

/// Runs the application in its event loop until it is told to end.
int run(const RunOptions& options, EventLoop& loop, const std::string& startupIdentifier) {
    const auto directory = runtimeDirectory();
    if (!directory) {
        tell(stderr, translated("The runtime directory cannot be used; set XDG_RUNTIME_DIR to one "
                                "of yours."));
    }
    Core core(*DefaultsStore::standardUserDefaults(), loop);
    const std::vector<std::string> documents = absolutePaths(options.documents);
    const SessionClaim claim(core.sessionBus.get(), directory, documents, options.switchedOff,
                             options.atLogin);
    if (!claim.isGranted()) {
        if (!startupIdentifier.empty()) {
            finishStartup(XConnection::open(xServerOfDisplays({})).get(), startupIdentifier);
        }
        return endAfterHandingOver(claim, documents);
    }
    SettingsKeeper keeper(core.defaults, settingsPath(), core.runLoop);
    core.face.setSettingsKeeper(&keeper);

    const auto server = XConnection::open(xServerOfDisplays(options.displays));
    if (server != nullptr) {
        server->join(loop);
    }
    Result<OpenedDisplays> opened = openDisplays(
        options.displays,
        {xDisplayName(), server.get(), waylandDisplayName(), desktopName(), directory.value_or(""),
         stateDirectory(), sessionBusAddress(), core.systemBus.get(), drawTestCard,
         [&] { loop.quit(kFailure); }, [&] { core.controller.giveDisplaysBack(); }, &core.fades},
        loop);
    if (!opened) {
        tell(stderr, opened.error().text);
        return kFailure;
    }
    if (!opened->notice.empty()) {
        tell(stdout, opened->notice);
    }
    if (options.switchedOff || opened->restoredByHand) {
        tell(stdout, opened->restoredByHand
                         ? translated("Nocturo starts switched off, because nocturoctl restore "
                                      "gave the displays back.")
                         : translated("Nocturo starts switched off."));
        core.controller.startSwitchedOff();
    }
    if (options.atLogin) {
        core.controller.startWithSession();
    }
    const ConnectedDisplays displays(std::move(*opened), core.centers);

    core.desktop.serverIsLost = [&core] {
        core.defaults.synchronize();
        tellOfLostServer();
    };
    core.automation.start();
    DesktopSession desktop(core, displays, server.get());
    desktop.launch(documents, [](const std::string& problem) { tell(stderr, problem); });
    finishStartup(server.get(), startupIdentifier); // there may never be a window
    const ProgramWatch programWatch(ownProgram(), loop, [&loop] {
        logWarning(kLogApp, "Nocturo has been removed, so it gives the displays back and ends.");
        loop.quit();
    });
    const int result = loop.run();
    core.controller.applicationWillTerminate(); // the displays come before all that is written
    core.hooks.tell();
    if (result == kSuccess) {
        desktop.end();
    } else {
        tellOfLostServer();
    }
    return result;
}

} // namespace

} // namespace nocturo

int main(int argc, char* argv[]) {
    using namespace nocturo;
    setLanguageOfTexts(usersLanguage());
    const Options options = parseOptions(std::vector<std::string>(argv + 1, argv + argc));
    if (const auto* text = std::get_if<PrintAndExit>(&options)) {
        std::fputs(text->text.c_str(), stdout);
        return kSuccess;
    }
    if (const auto* error = std::get_if<UsageError>(&options)) {
        tell(stderr, error->sentence);
        return kUsage;
    }
    EventLoop::blockSignals(Core::signalNumbers());
    EventLoop loop;
    const char* given = std::getenv("DESKTOP_STARTUP_ID");
    const std::string startupIdentifier = given != nullptr ? given : "";
    unsetenv("DESKTOP_STARTUP_ID"); // windows come later, by other ways
    return run(std::get<RunOptions>(options), loop, startupIdentifier);
}
