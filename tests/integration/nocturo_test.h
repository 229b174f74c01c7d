#pragma once

#include "rig/session.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <csignal>
#include <fstream>

#include <sys/resource.h>

namespace nocturo::rig {

/// Skips the test where this system lacks a program that it is about.
#define NEEDS(program)                                                                             \
    if (!isInstalled(program)) {                                                                   \
        GTEST_SKIP() << program << " is not installed";                                            \
    }

inline Channels reversed(Channels channels) {
    for (auto& channel : channels) {
        std::reverse(channel.begin(), channel.end());
    }
    return channels;
}

/// A session whose Nocturo is told what to do as users tell it. With 0 displays it has no X server.
struct NocturoTest : testing::Test {
    explicit NocturoTest(int displays) : session_(displays) {}

    RunResult ctl(const std::vector<std::string>& arguments) {
        RunResult result = session_.run("nocturoctl", arguments);
        EXPECT_EQ(result.exit, 0) << arguments.front() << ": " << result.errors;
        return result;
    }
    /// Runs a program that ends so and has that in what it says.
    void says(const std::string& program, const std::vector<std::string>& arguments, int exit,
              const std::string& part) {
        const RunResult result = session_.run(program, arguments);
        EXPECT_EQ(result.exit, exit) << nlohmann::json(arguments);
        EXPECT_NE((result.output + result.errors).find(part), std::string::npos)
            << nlohmann::json(arguments) << result.output << result.errors;
    }
    nlohmann::json status() { return nlohmann::json::parse(ctl({"status", "--json"}).output); }

    /// Starts it where nothing can be written to any file, as on a full disk, until freeDisk().
    void startOnFullDisk(const std::string& options = "") {
        nocturo_ = session_.start(
            "/bin/sh",
            {"-c", "trap '' XFSZ; ulimit -S -f 0; exec " NOCTURO_BIN_DIR "/nocturo " + options});
        ASSERT_TRUE(session_.bus().waitForName("org.nocturo.Nocturo", *nocturo_));
    }
    void freeDisk() {
        const rlimit enough{RLIM_INFINITY, RLIM_INFINITY};
        ASSERT_EQ(prlimit(nocturo_->id(), RLIMIT_FSIZE, &enough, nullptr), 0);
    }

    /// Selects an effect for a Nocturo that does not run, which would ask without one; with more
    /// settings as XML.
    void select(const std::string& effect, const std::string& more = "") {
        session_.writeSettings("<key>NDGroupEffect</key><array><string>" + effect +
                               "</string></array>" + more);
    }
    /// Ends it as the end of a session does.
    void end(int signal = SIGTERM) {
        nocturo_->signal(signal);
        EXPECT_EQ(nocturo_->wait(), 0);
    }

    /// What smaps_rollup in /proc calls so, such as "Rss:".
    long kilobytesOf(const std::string& kind) {
        const auto rollup = readText("/proc/" + std::to_string(nocturo_->id()) + "/smaps_rollup");
        return std::stol(rollup.substr(rollup.find(kind) + kind.size()));
    }

    /// xdotool's number of the first window with that in its title, once one is shown.
    std::string windowCalled(const std::string& name) {
        const auto ids = xdotool({"search", "--sync", "--onlyvisible", "--name", name});
        return ids.substr(0, ids.find('\n'));
    }
    bool isShown(const std::string& name) {
        return !xdotool({"search", "--onlyvisible", "--name", name}).empty();
    }
    std::string xdotool(const std::vector<std::string>& words) {
        return session_.run("xdotool", words).output;
    }

    /// Kills Nocturo and its guards of these names at once; whether a guard is left.
    bool killWith(const std::vector<std::string>& names) {
        nocturo_->signal(SIGSTOP); // or it starts other guards
        const auto killed = guardsOf(nocturo_->id(), names);
        const bool isLeft = guardsOf(nocturo_->id(), kAnyGuard).size() > killed.size();
        for (const pid_t guard : killed) {
            ::kill(guard, SIGKILL);
        }
        nocturo_->signal(SIGKILL);
        nocturo_->wait();
        return isLeft;
    }
    static std::vector<pid_t> guardsOf(pid_t parent, const std::vector<std::string>& names) {
        std::vector<pid_t> guards;
        for (const std::string& name : names) {
            const std::vector<pid_t> found = childrenNamed(parent, name);
            guards.insert(guards.end(), found.begin(), found.end());
        }
        return guards;
    }
    /// Those that are left to this process by killed applications.
    static std::vector<pid_t> leftGuards() {
        return guardsOf(getpid(), {kGuard, kBusGuard, kProfileGuard, kSpare});
    }
    /// Waits for them to end as they should. Without its server one that was still about to connect
    /// fails.
    void reapGuards() {
        for (const pid_t guard : leftGuards()) {
            const auto exit = waitForChild(guard);
            EXPECT_TRUE(exit == 0 || exit == 128 + SIGKILL || (serverIsGone_ && exit == 1))
                << exit.value_or(-1);
        }
    }
    void killServer() {
        serverIsGone_ = true;
        session_.server().kill();
    }
    /// The next start would find a Nocturo running that the bus has not missed yet.
    void waitForTheBus() {
        ASSERT_TRUE(waitUntil([&] { return session_.run("nocturoctl", {"status"}).exit == 3; }));
    }

    static constexpr const char* kGuard = "nocturo-guard";
    static constexpr const char* kBusGuard = "nocturo-bus-guard";
    static constexpr const char* kProfileGuard = "nocturo-profile-guard";
    static constexpr const char* kSpare = "display-keeper";
    static constexpr const char* kNoNameYet = "nocturo"; // of a guard, for a moment
    inline static const std::vector<std::string> kAnyGuard{kGuard, kBusGuard, kProfileGuard, kSpare,
                                                           kNoNameYet};

    Session session_;
    std::unique_ptr<Process> nocturo_;
    bool serverIsGone_ = false;
};

/// The same on a real X server, whose ramps it looks at. Nocturo and its guard may be killed.
struct NocturoOnX : NocturoTest {
    explicit NocturoOnX(int displays) : NocturoTest(displays) {
        inheritOrphans();
        for (int display = 0; display < displays; ++display) {
            own_.push_back(client_.ramp(output(display)));
        }
    }
    ~NocturoOnX() override {
        nocturo_.reset();
        waitUntil([] { return childrenNamed(getpid(), kNoNameYet).empty(); }, Milliseconds(500));
        reapGuards();
    }

    static std::string output(int display) { return "DUMMY" + std::to_string(display); }

    /// Makes it what the display shows and what counts as its own.
    void setOwn(int display, Channels ramp) {
        client_.setRamp(output(display), ramp);
        own_.at(static_cast<std::size_t>(display)) = std::move(ramp);
    }

    /// One letter a display: i inverted, o its own ramp, to the last bit, ? anything else. What
    /// Nocturo has sent off the server may, when busy, hear after this.
    std::string shown() {
        std::string letters;
        for (std::size_t display = 0; display < own_.size(); ++display) {
            const Channels ramp = client_.ramp(output(static_cast<int>(display)));
            letters += ramp == own_[display] ? 'o' : ramp == reversed(own_[display]) ? 'i' : '?';
        }
        return letters;
    }
    bool becomes(const std::string& letters, Milliseconds time = kPatience) {
        return waitUntil([&] { return shown() == letters; }, time);
    }
    bool allOwnWithin(Milliseconds time = kPatience) {
        return becomes(std::string(own_.size(), 'o'), time);
    }

    /// -1 when there is none. Waits a little: a new process has its parent's name for a moment.
    pid_t guardProcess() {
        std::vector<pid_t> guards;
        const auto isAlone = [&] { // the spare one has this name at first, too
            guards = childrenNamed(nocturo_->id(), kGuard);
            return guards.size() == 1;
        };
        return waitUntil(isAlone, Milliseconds(500)) ? guards.front() : -1;
    }
    /// With `guardsToo` also all guards. Afterwards the bus knows.
    void kill(bool guardsToo) {
        if (guardsToo) {
            guardProcess(); // waits for it
        }
        killWith(guardsToo ? kAnyGuard : std::vector<std::string>{});
        waitForTheBus();
    }
    std::vector<std::uint8_t> journal() { return client_.rootBytes(kJournal); }
    void damageJournal() {
        auto bytes = journal();
        bytes.at(1000) ^= 1;
        client_.setRootBytes(kJournal, bytes);
    }
    bool isMarked() { return !client_.rootBytes(kMark).empty(); }

    static constexpr const char* kJournal = "_NOCTURO_OWN_RAMPS";
    static constexpr const char* kMark = "_NOCTURO_CHANGED_DISPLAYS";

    XClient client_{session_.server().display()};
    std::vector<Channels> own_;
};

} // namespace nocturo::rig
