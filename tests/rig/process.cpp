#include "rig/process.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <system_error>

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace nocturo::rig {

namespace {

[[noreturn]] void fail(const char* what) {
    throw std::system_error(errno, std::generic_category(), what);
}

struct Pipe {
    FileDescriptor read;
    FileDescriptor write;
};

Pipe makePipe() {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) {
        fail("pipe2");
    }
    Pipe made{FileDescriptor(ends[0]), FileDescriptor(ends[1])};
    fcntl(ends[0], F_SETFL, O_NONBLOCK);
    return made;
}

std::vector<char*> pointersTo(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (auto& text : texts) {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

// Between fork and exec: only what is safe there.
[[noreturn]] void becomeProgram(pid_t parent, int output, int errors, char* const* arguments,
                                char* const* environment) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent) {
        _exit(127);
    }
    const int input = open("/dev/null", O_RDONLY);
    dup2(input, STDIN_FILENO);
    dup2(output, STDOUT_FILENO);
    dup2(errors, STDERR_FILENO);
    execvpe(arguments[0], arguments, environment);
    const char* reason = strerrordesc_np(errno);
    for (const char* text : {static_cast<const char*>(arguments[0]), ": ", reason, "\n"}) {
        (void)!write(STDERR_FILENO, text, strlen(text));
    }
    _exit(127);
}

int exitCodeOf(int status) {
    return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
}

} // namespace

Environment cleanEnvironment() {
    Environment environment;
    for (char** entry = environ; *entry; ++entry) {
        const std::string_view text = *entry;
        const auto equals = text.find('=');
        const std::string name(text.substr(0, equals));
        const bool leadsToTheUser = name == "DISPLAY" || name == "XAUTHORITY" || name == "HOME" ||
                                    name.starts_with("WAYLAND_") || name.starts_with("DBUS_") ||
                                    name.starts_with("XDG_") || name.starts_with("QT_") ||
                                    name.starts_with("NOTIFY_");
        if (equals != std::string_view::npos && !leadsToTheUser) {
            environment[name] = text.substr(equals + 1);
        }
    }
    environment["LANGUAGE"] = "en"; // tests look for windows and texts by name
    return environment;
}

Process::Process(const std::string& program, const std::vector<std::string>& arguments,
                 const Environment& environment) {
    std::vector<std::string> words{program};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<std::string> settings;
    for (const auto& [name, value] : environment) {
        settings.push_back(std::string(name).append("=").append(value));
    }
    const auto wordPointers = pointersTo(words);
    const auto settingPointers = pointersTo(settings);
    Pipe output = makePipe();
    Pipe errors = makePipe();

    const pid_t parent = getpid();
    id_ = fork();
    if (id_ < 0) {
        fail("fork");
    }
    if (id_ == 0) {
        becomeProgram(parent, output.write.get(), errors.write.get(), wordPointers.data(),
                      settingPointers.data());
    }
    output_.pipe = std::move(output.read);
    errors_.pipe = std::move(errors.read);
    end_ = FileDescriptor(static_cast<int>(syscall(SYS_pidfd_open, id_, 0)));
    if (end_.get() < 0) {
        const int reason = errno;
        kill(id_, SIGKILL);
        reap(true);
        errno = reason;
        fail("pidfd_open");
    }
}

Process::~Process() {
    signal(SIGKILL);
    reap(true);
}

void Process::signal(int number) {
    // Once reaped, the number may be another process's.
    if (!exitCode_) {
        kill(id_, number);
    }
}

bool Process::isRunning() {
    reap(false);
    return !exitCode_;
}

void Process::reap(bool block) {
    int status = 0;
    if (exitCode_ || waitpid(id_, &status, block ? 0 : WNOHANG) != id_) {
        return;
    }
    exitCode_ = exitCodeOf(status);
}

void Process::takeIn(Stream& stream) {
    std::array<char, 65536> buffer;
    while (stream.pipe.get() >= 0) {
        const ssize_t count = read(stream.pipe.get(), buffer.data(), buffer.size());
        if (count > 0) {
            stream.text.append(buffer.data(), static_cast<std::size_t>(count));
        } else if (count == 0) {
            stream.pipe.close();
        } else if (errno != EINTR) {
            return;
        }
    }
}

void Process::takeIn() {
    takeIn(output_);
    takeIn(errors_);
}

// Tells false only after a last look at everything that arrived.
template <class Condition>
bool Process::takeInUntil(Condition condition, Milliseconds timeout) {
    const auto deadline = timeAfter(timeout);
    while (true) {
        const bool ended = !isRunning();
        takeIn();
        if (condition()) {
            return true;
        }
        const int left = millisecondsUntil(deadline);
        if (ended || left == 0) {
            return false;
        }
        std::array<pollfd, 3> sources{{{output_.pipe.get(), POLLIN, 0},
                                       {errors_.pipe.get(), POLLIN, 0},
                                       {end_.get(), POLLIN, 0}}};
        poll(sources.data(), sources.size(), left);
    }
}

std::optional<int> Process::wait(Milliseconds timeout) {
    takeInUntil([this] { return exitCode_.has_value(); }, timeout);
    return exitCode_;
}

std::optional<std::string> Process::readLine(Milliseconds timeout) {
    std::size_t end = std::string::npos;
    const bool found = takeInUntil(
        [&] { return (end = output_.text.find('\n', linesRead_)) != std::string::npos; }, timeout);
    if (!found) {
        return std::nullopt;
    }
    std::string line = output_.text.substr(linesRead_, end - linesRead_);
    linesRead_ = end + 1;
    return line;
}

bool Process::waitForError(std::string_view part, Milliseconds timeout) {
    return takeInUntil([&] { return errors_.text.find(part) != std::string::npos; }, timeout);
}

const std::string& Process::output() {
    takeIn();
    return output_.text;
}

const std::string& Process::errors() {
    takeIn();
    return errors_.text;
}

std::vector<pid_t> childrenNamed(pid_t parent, const std::string& name) {
    std::vector<pid_t> children;
    for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
        // "17 (name) S 1 ..."; entries that are no processes have no such file.
        std::ifstream stat(entry.path() / "stat");
        std::string text;
        std::getline(stat, text);
        const auto end = text.rfind(") ");
        if (end == std::string::npos || text.substr(0, end).find(" (" + name) == text.npos) {
            continue;
        }
        if (std::stoi(text.substr(end + 4)) == parent) {
            children.push_back(std::stoi(text));
        }
    }
    return children;
}

void inheritOrphans() {
    prctl(PR_SET_CHILD_SUBREAPER, 1);
}

std::optional<int> waitForChild(pid_t child, Milliseconds timeout) {
    const FileDescriptor end(static_cast<int>(syscall(SYS_pidfd_open, child, 0)));
    pollfd source{end.get(), POLLIN, 0};
    int status = 0;
    if (end.get() < 0 || poll(&source, 1, static_cast<int>(timeout.count())) != 1 ||
        waitpid(child, &status, 0) != child) {
        return std::nullopt;
    }
    return exitCodeOf(status);
}

} // namespace nocturo::rig
