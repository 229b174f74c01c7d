#pragma once

#include "rig/wait.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <QProcess>
#include <sys/types.h>

namespace nocturo::rig {

using Environment = std::map<std::string, std::string>;

/// This process's environment without what leads to the user's displays, buses and settings.
Environment cleanEnvironment();

/// A running program. It is killed and reaped at the end, also when the test itself dies.
///
/// The end of the thread that started it counts as the test's end: start programs on the main
/// thread. Its output is taken in while something is waited for and by output() and errors().
class Process {
  public:
    /// Standard input is empty. Throws std::runtime_error when the program cannot be run.
    Process(const std::string& program, const std::vector<std::string>& arguments,
            const Environment& environment);
    ~Process();
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    pid_t id() const { return id_; }
    bool isRunning();
    void signal(int number);

    /// The exit code, 128 + n when signal n ended it, nothing when it runs on.
    std::optional<int> wait(Milliseconds timeout = kPatience);

    /// The next line of standard output that was not read yet, without its end; nothing when none
    /// came.
    std::optional<std::string> readLine(Milliseconds timeout = kPatience);

    /// Waits for standard error to contain `part`.
    bool waitForError(std::string_view part, Milliseconds timeout = kPatience);

    /// All that it wrote so far.
    const std::string& output();
    const std::string& errors();

  private:
    template <class Condition>
    bool takeInUntil(QProcess::ProcessChannel channel, Condition condition, Milliseconds timeout);

    QProcess process_;
    pid_t id_ = -1;
    std::string output_;
    std::string errors_;
    std::size_t linesRead_ = 0; // where the next line begins
};

/// Whether this system has a program of that name; distributions lack one or the other.
bool isInstalled(const std::string& program);

/// The processes of that name (at most 15 bytes count) that `parent` started or inherited.
std::vector<pid_t> childrenNamed(pid_t parent, const std::string& name);

/// Makes this process inherit what the programs that it starts leave behind when they end.
void inheritOrphans();

/// Waits for a child of this process that is no Process; its exit as Process::wait tells it.
std::optional<int> waitForChild(pid_t child, Milliseconds timeout = kPatience);

} // namespace nocturo::rig
