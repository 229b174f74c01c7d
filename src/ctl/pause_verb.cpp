#include "ctl/pause_verb.h"

#include "base/program_start.h"
#include "base/texts/shortened.h"
#include "ctl/bus_client.h"
#include "ctl/failure.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <string>
#include <sys/wait.h>

namespace nocturo {

namespace {

/// Starts the command as a shell would, with all signals as they are by themselves.
pid_t start(Arguments command) {
    ProgramStart plain;
    sigset_t none;
    sigemptyset(&none);
    plain.blockSignals(none);
    const auto process = plain.start({command.begin(), command.end()});
    if (!process) {
        throw Failure{kFailed, translated("\"%1$@\" cannot be started: %2$@.",
                                          {command.front(), process.error().text})};
    }
    return *process;
}

/// As shells tell it.
int exitStatus(int status) {
    constexpr int kKilled = 128;
    return WIFEXITED(status) ? WEXITSTATUS(status) : kKilled + WTERMSIG(status);
}

[[noreturn]] void pauseWhile(Arguments command) {
    constexpr const char* kMethod = "PauseWhileRunning";
    constexpr std::array kSignals = {SIGCHLD};
    BusClient client;
    const std::string words = shortened(joined(command));
    client.call(kMethod, words);
    [[maybe_unused]] const auto again = client.callThoseToCome(kMethod, words);
    EventLoop& loop = client.loop();
    pid_t process = 0;
    loop.handleSignals(kSignals, [&](int) {
        int status = 0;
        if (process != 0 && waitpid(process, &status, WNOHANG) == process) {
            loop.quit(exitStatus(status));
        }
    });
    process = start(command);
    std::signal(SIGINT, SIG_IGN); // the terminal sends it to the command as well
    std::signal(SIGQUIT, SIG_IGN);
    std::exit(loop.run());
}

} // namespace

void runPause(Arguments arguments) {
    const std::string how = arguments.empty() ? "" : arguments[0];
    if (how == "while") {
        expect(arguments.size() > 1);
        pauseWhile(arguments.subspan(1));
    } else if (how == "cancel") {
        expect(arguments.size() == 1);
        BusClient().call("Resume");
    } else {
        BusClient().call("Pause", joined(arguments));
    }
}

} // namespace nocturo
