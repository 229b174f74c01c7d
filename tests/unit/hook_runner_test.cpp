#include "session/hook_runner.h"

#include "base/event_loop.h"
#include "temporary_directory.h"

#include <cerrno>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>

using namespace nocturo;

struct HookRunnerTest : testing::Test {
    void write(const std::string& name, const std::string& script) const {
        const auto hook = directory_ / "hooks" / name;
        std::filesystem::create_directories(hook.parent_path());
        writeText(hook, "#!/bin/sh\ncd '" + directory_.path().string() + "'\n" + script);
        std::filesystem::permissions(hook, std::filesystem::perms::owner_all);
    }
    std::string told() const { return readText(directory_ / "told"); }
    /// Runs the loop until that was told and every hook has ended.
    void waitFor(const std::string& expected) {
        const auto look = loop_.scheduleRepeatingTimer(std::chrono::milliseconds(2), [&] {
            if (told() == expected && waitpid(-1, nullptr, WNOHANG) < 0 && errno == ECHILD) {
                loop_.quit();
            }
        });
        const auto limit = loop_.scheduleTimer(std::chrono::seconds(20), [&] { loop_.quit(1); });
        EXPECT_EQ(loop_.run(), 0) << told();
    }

    TemporaryDirectory directory_;
    EventLoop loop_;
};

TEST_F(HookRunnerTest, RunsOneOfANameAtATimeWithNothingOpenAndThenTheLatest) {
    ASSERT_EQ(mkfifo((directory_ / "gate").c_str(), 0600), 0);
    write("a", "[ -e open ] || cat gate\n"
               "echo \"$@;$NOCTURO_EVENT,$NOCTURO_OLD,$NOCTURO_NEW\" >> told\n"
               "ls /proc/self/fd >> told\n");
    write(".hidden", "echo hidden >> told");
    write("backup~", "echo backup >> told");
    HookRunner runner(directory_ / "hooks", loop_);
    runner.run("look-changed", "", "A");
    runner.run("active-changed", "off", "on");
    runner.run("look-changed", "A", "B");
    runner.run("active-changed", "on", "off");
    runner.run("look-changed", "B", "C");
    writeText(directory_ / "gate", ""); // waits for who reads it
    writeText(directory_ / "open", "");
    const std::string open = "\n0\n1\n2\n3\n"; // the last one is the list itself
    waitFor("look-changed  A;look-changed,,A" + open + "look-changed A C;look-changed,A,C" + open);
}

TEST_F(HookRunnerTest, EndsWhatDoesNotEndByItself) {
    write("a", "trap '' TERM\necho a >> told\nwhile :; do sleep 9; done");
    HookRunner runner(directory_ / "hooks", loop_, std::chrono::milliseconds(300));
    runner.run("paused", "off", "on");
    waitFor("a\n");
}
