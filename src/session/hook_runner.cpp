#include "session/hook_runner.h"

#include "base/file_descriptor.h"
#include "base/log.h"
#include "base/program_start.h"
#include "base/run_loop.h"

#include <algorithm>
#include <csignal>
#include <functional>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace nocturo {

namespace {

constexpr std::size_t kMostHooks = 100;
constexpr int kPatiences = 6; // how often the time between the two signals is in the limit

bool isHook(const std::filesystem::path& path) {
    const std::string name = path.filename();
    struct stat status {};
    return !name.starts_with('.') && !name.ends_with('~') && stat(path.c_str(), &status) == 0 &&
           S_ISREG(status.st_mode) && (status.st_mode & S_IWOTH) == 0 &&
           access(path.c_str(), X_OK) == 0;
}

/// Starts it with nothing of this process but the environment.
Result<pid_t> startAlone(std::vector<std::string> words, std::vector<std::string> environment) {
    ProgramStart alone;
    alone.makeSession();
    sigset_t none;
    sigemptyset(&none);
    alone.blockSignals(none);
    alone.resetSignals();
    for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        alone.closeOff(standard);
    }
    alone.closeFrom(STDERR_FILENO + 1);
    return alone.start(std::move(words), std::move(environment));
}

} // namespace

/// One that runs, from when it was started until it has ended.
class HookRunner::Program {
  public:
    Program(pid_t process, RunLoop& runLoop, std::chrono::milliseconds timeLimit,
            std::function<void()> ended)
        : process_(process), end_(static_cast<int>(syscall(SYS_pidfd_open, process, 0))),
          watch_(runLoop.watch(end_.get(),
                               [this, ended = std::move(ended)] {
                                   waitpid(process_, nullptr, WNOHANG);
                                   const auto tell = ended; // it ends this
                                   tell();
                               })),
          limit_(runLoop.scheduleTimer(timeLimit, [this, &runLoop, timeLimit] {
              kill(-process_, SIGTERM);
              limit_ = runLoop.scheduleTimer(timeLimit / kPatiences,
                                             [this] { kill(-process_, SIGKILL); });
          })) {}

    bool isFollowed() const { return watch_ != nullptr; }

  private:
    pid_t process_; // of a group of its own; not given to another before it was waited for
    FileDescriptor end_;
    std::unique_ptr<Watch> watch_;
    std::unique_ptr<Timer> limit_;
};

HookRunner::HookRunner(std::filesystem::path directory, RunLoop& runLoop,
                       std::chrono::milliseconds timeLimit)
    : directory_(std::move(directory)), runLoop_(runLoop), timeLimit_(timeLimit) {}

HookRunner::~HookRunner() = default;

std::vector<std::filesystem::path> HookRunner::programs() const {
    std::vector<std::filesystem::path> found;
    std::error_code error;
    for (std::filesystem::directory_iterator each(directory_, error), end;
         !error && each != end && found.size() < kMostHooks; each.increment(error)) {
        if (isHook(each->path())) {
            found.push_back(each->path());
        }
    }
    std::sort(found.begin(), found.end());
    return found;
}

void HookRunner::run(const std::string& event, const std::string& before, const std::string& now) {
    for (const auto& program : programs()) {
        const auto hook = hooks_.find(program);
        if (hook == hooks_.end()) {
            start(program, {event, before, now});
            continue;
        }
        auto& waiting = hook->second.waiting;
        const auto same = std::ranges::find(waiting, event, &Occasion::event);
        if (same == waiting.end()) {
            waiting.push_back({event, before, now});
        } else if (same->before == now) {
            waiting.erase(same); // as it was told last
        } else {
            same->now = now;
        }
    }
}

void HookRunner::start(const std::filesystem::path& program, const Occasion& occasion) {
    std::vector<std::string> environment{"NOCTURO_EVENT=" + occasion.event,
                                         "NOCTURO_OLD=" + occasion.before,
                                         "NOCTURO_NEW=" + occasion.now};
    for (char** variable = environ; *variable != nullptr; ++variable) {
        environment.emplace_back(*variable);
    }
    const auto process = startAlone({program, occasion.event, occasion.before, occasion.now},
                                    std::move(environment));
    if (!process) {
        logWarning(kLogApp, "The hook " + program.string() +
                                " cannot be run: " + process.error().text + ".");
        return;
    }
    auto running = std::make_unique<Program>(*process, runLoop_, timeLimit_,
                                             [this, program] { ended(program); });
    if (!running->isFollowed()) { // nothing would ever limit it
        kill(-*process, SIGKILL);
        waitpid(*process, nullptr, 0);
        return;
    }
    hooks_[program].running = std::move(running);
}

void HookRunner::ended(const std::filesystem::path& program) {
    Hook& hook = hooks_[program];
    hook.running.reset();
    if (hook.waiting.empty() || !isHook(program)) {
        hooks_.erase(program);
        return;
    }
    const Occasion next = std::move(hook.waiting.front());
    hook.waiting.erase(hook.waiting.begin());
    std::vector<Occasion> waiting = std::move(hook.waiting);
    hooks_.erase(program);
    start(program, next);
    if (const auto started = hooks_.find(program); started != hooks_.end()) {
        started->second.waiting = std::move(waiting);
    }
}

} // namespace nocturo
