#include "ctl/pause_verb.h"

#include "ctl/bus_client.h"
#include "ctl/failure.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include <spawn.h>
#include <sys/wait.h>

namespace nocturo {

namespace {

/// Starts the command as a shell would, with all signals as they are by themselves.
pid_t start(Arguments command) {
    std::vector<std::string> words(command.begin(), command.end());
    std::vector<char*> pointers(words.size() + 1); // the last is null
    std::ranges::transform(words, pointers.begin(), [](std::string& word) { return word.data(); });
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    sigset_t none;
    sigemptyset(&none);
    posix_spawnattr_setsigmask(&attributes, &none);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK);
    pid_t process = 0;
    const int error =
        posix_spawnp(&process, pointers.front(), nullptr, &attributes, pointers.data(), environ);
    posix_spawnattr_destroy(&attributes);
    if (error != 0) {
        throw Failure{kFailed, translated("\"%1$@\" cannot be started: %2$@.",
                                          {words.front(), std::strerror(error)})};
    }
    return process;
}

/// As shells tell it.
int exitStatus(int status) {
    constexpr int kKilled = 128;
    return WIFEXITED(status) ? WEXITSTATUS(status) : kKilled + WTERMSIG(status);
}

[[noreturn]] void pauseWhile(Arguments command) {
    constexpr const char* kMethod = "PauseWhileConnected";
    constexpr std::array kSignals = {SIGCHLD};
    BusClient client;
    client.call(kMethod);
    [[maybe_unused]] const auto again = client.callThoseToCome(kMethod);
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
