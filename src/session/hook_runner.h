#pragma once

#include <chrono>
#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace nocturo {

class RunLoop;

/// Runs the programs in a directory of the user's when something happens: each that may be
/// executed, but none that is hidden, ends in "~" or can be written by anybody. A program is
/// started apart from this process, with the arguments EVENT BEFORE NOW, which are also in its
/// environment as NOCTURO_EVENT, NOCTURO_OLD and NOCTURO_NEW, and with nothing open. Main thread
/// only.
///
/// A program that still runs is not started a second time: of each event the last waits for it,
/// with what was before as it was told last. One that runs for too long is asked to end, and killed
/// 5 seconds later. Those that run at the end of the runner are left alone.
class HookRunner {
  public:
    /// `directory` need not exist. The loop must outlive the runner.
    HookRunner(std::filesystem::path directory, RunLoop& runLoop,
               std::chrono::milliseconds timeLimit = std::chrono::seconds(30));
    ~HookRunner();
    HookRunner(const HookRunner&) = delete;
    HookRunner& operator=(const HookRunner&) = delete;

    /// Whether there is anything to run.
    bool hasHooks() const { return !programs().empty(); }

    /// `before` and `now` are two different texts.
    void run(const std::string& event, const std::string& before, const std::string& now);

  private:
    struct Occasion {
        std::string event;
        std::string before;
        std::string now;
    };
    class Program;
    struct Hook {
        std::unique_ptr<Program> running;
        std::vector<Occasion> waiting; // one of each event at most
    };

    std::vector<std::filesystem::path> programs() const;
    void start(const std::filesystem::path& program, const Occasion& occasion);
    void ended(const std::filesystem::path& program);

    const std::filesystem::path directory_;
    RunLoop& runLoop_;
    const std::chrono::milliseconds timeLimit_;
    std::map<std::filesystem::path, Hook> hooks_; // those that run
};

} // namespace nocturo
