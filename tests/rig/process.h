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

/// A running program. It is killed and reaped at the end, also when the test itself dies. Works
/// without an event loop and an application object.
///
/// The end of the thread that started it counts as the test's end: start programs on the main
/// thread. Its output is taken in while something is waited for and by output() and errors().
class Process {
  public:
    /// Standard input is empty. A program that cannot be run exits with 127 and says so in
    /// errors().
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
    bool takeInUntil(Condition condition, QProcess::ProcessChannel source, Milliseconds timeout);
    void takeIn();

    QProcess process_;
    pid_t id_ = -1; // also when it has ended
    std::string output_;
    std::string errors_;
    std::size_t linesRead_ = 0; // where the next line begins
};

} // namespace nocturo::rig
