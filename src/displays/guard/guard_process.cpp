#include "displays/guard/guard_process.h"

#include "base/program_files.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/epoll.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace nocturo {

namespace {

class SpawnSettings {
  public:
    SpawnSettings() {
        posix_spawn_file_actions_init(&actions_);
        posix_spawnattr_init(&attributes_);
    }
    ~SpawnSettings() {
        posix_spawnattr_destroy(&attributes_);
        posix_spawn_file_actions_destroy(&actions_);
    }
    SpawnSettings(const SpawnSettings&) = delete;
    SpawnSettings& operator=(const SpawnSettings&) = delete;

    int spawn(const std::string& program, char* const* arguments, int connection, pid_t& process) {
        sigset_t all;
        sigfillset(&all);
        posix_spawnattr_setsigmask(&attributes_, &all);
        posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK);
        for (const int standard : {STDIN_FILENO, STDOUT_FILENO}) {
            posix_spawn_file_actions_addopen(&actions_, standard, "/dev/null", O_RDWR, 0);
        }
        posix_spawn_file_actions_adddup2(&actions_, connection, kGuardDescriptor);
        return posix_spawn(&process, program.c_str(), &actions_, &attributes_, arguments, environ);
    }

  private:
    posix_spawn_file_actions_t actions_{};
    posix_spawnattr_t attributes_{};
};

} // namespace

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
    std::vector<char*> pointers;
    pointers.reserve(words.size() + 1);
    for (std::string& word : words) {
        pointers.push_back(word.data());
    }
    pointers.push_back(nullptr);
    if (const int error =
            SpawnSettings().spawn(words.front(), pointers.data(), guards.get(), process_)) {
        process_ = -1;
        return failedWith(error);
    }
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
