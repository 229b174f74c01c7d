#include "displays/guard/guard_process.h"

#include "base/program_files.h"
#include "base/program_start.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <sys/epoll.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace nocturo {

std::filesystem::path guardProgram(const char* name) {
    return programFile(name, NOCTURO_LIBEXEC_FROM_BIN);
}

GuardProcess::GuardProcess() : ends_(epoll_create1(EPOLL_CLOEXEC)) {}

Result<void> GuardProcess::start(const std::filesystem::path& program,
                                 const std::vector<std::string>& arguments) {
    if (isRunning()) {
        return {};
    }
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) {
        return failedWith(errno);
    }
    FileDescriptor ours(ends[0]);
    const FileDescriptor guards(ends[1]);

    std::vector<std::string> words{program.string()};
    words.insert(words.end(), arguments.begin(), arguments.end());
    ProgramStart guard;
    guard.makeSession();
    sigset_t all;
    sigfillset(&all);
    guard.blockSignals(all);
    guard.closeOff(STDIN_FILENO);
    guard.closeOff(STDOUT_FILENO);
    guard.give(guards.get(), kGuardDescriptor);
    const auto process = guard.start(std::move(words));
    if (!process) {
        return tl::unexpected(process.error());
    }
    process_ = *process;
    epoll_event interest{};
    interest.events = EPOLLIN | EPOLLRDHUP;
    epoll_ctl(ends_.get(), EPOLL_CTL_ADD, ours.get(), &interest);
    connection_ = std::move(ours);
    return {};
}

bool GuardProcess::takeEnd() {
    // The guard never says anything, so there is something to read only at its end.
    char byte = 0;
    if (!isRunning() || recv(connection_.get(), &byte, 1, MSG_DONTWAIT) < 0) {
        return false;
    }
    connection_.close();
    waitpid(process_, nullptr, 0);
    process_ = -1;
    return true;
}

} // namespace nocturo
