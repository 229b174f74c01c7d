// Whatever becomes of Nocturo, the displays come back: on a real X server, with the processes
// really killed.

#include "four_displays.h"

#include <cstring>
#include <iostream>
#include <random>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/sysinfo.h>

using namespace nocturo;
using namespace nocturo::rig;

namespace fs = std::filesystem;

/// Longer on a machine that has more to do than processors, which comes late by itself.
Milliseconds within() {
    double load = 0;
    getloadavg(&load, 1);
    return Milliseconds(100) * std::max(1, static_cast<int>(load / get_nprocs()));
}

/// Of those that have ended.
double processorSecondsOfChildren() {
    rusage used{};
    getrusage(RUSAGE_CHILDREN, &used);
    return double(used.ru_utime.tv_sec) + double(used.ru_utime.tv_usec) / 1e6;
}

struct Guard : FourDisplays {
    void killAtRandomMoments(int rounds);

    std::mt19937 random_{std::random_device{}()};
};

// What it is doing changes from round to round: starting, seeing a display come, nothing, or what a
// caller makes it do. So does what is killed with it: nothing, either guard, or now and then both.
void Guard::killAtRandomMoments(int rounds) {
    const std::string activities[] = {"start", "toggle", "drag", "none",
                                      "plug",  "fade",   "look", "schedule"};
    const std::string callers = "toggle drag fade look schedule";
    const std::vector<std::string> killedToo[] = {{}, {kGuard}, {kSpare}, {kGuard, kSpare}};
    std::uniform_int_distribution<int> moment(0, 60);
    int late = 0;
    int neither = 0;                                // was left
    std::pair<Milliseconds, std::string> longest{}; // and what was going on
    session_.environment()["NOCTURO_LOG"] = "app";  // who ends it, should anybody else
    startChanging();
    ctl({"schedule", "add", "00:00 Night reading"});
    ctl({"schedule", "off"});
    end();
    for (int round = 0; round < rounds; ++round) {
        SCOPED_TRACE("round " + std::to_string(round));
        const std::string& activity = activities[round % std::size(activities)];
        const bool both = round % 11 == 10;
        const bool starts = activity == "start";
        nocturo_ = starts ? session_.start("nocturo") : session_.startNocturo();
        if (!starts) {
            ctl({"on"});
        }
        if (activity == "plug") {
            session_.server().switchOff(kDisplays - 1);
            session_.server().switchOn(kDisplays - 1);
        }
        const auto driver = callers.find(activity) == std::string::npos
                                ? nullptr
                                : session_.start("caller", {activity, "100000"});
        ASSERT_EQ(nocturo_->wait(Milliseconds(moment(random_))), std::nullopt)
            << nocturo_->output() << nocturo_->errors();
        const auto start = std::chrono::steady_clock::now();
        if (killWith(killedToo[both ? 3 : round / 8 % 3])) {
            ASSERT_TRUE(allOwnWithin()) << shown();
            const auto taken = std::chrono::steady_clock::now() - start;
            late += taken > within() ? 1 : 0;
            longest = std::max(longest, {std::chrono::floor<Milliseconds>(taken), activity});
        } else { // nobody is left to do it before the next start
            ++neither;
            waitForTheBus();
            nocturo_ = session_.startNocturo();
            ctl({"off"});
            ASSERT_EQ(shown(), kAllOwn);
            ctl({"on"});
            end();
        }
        reapGuards();
        waitForTheBus();
        EXPECT_EQ(shown(), kAllOwn); // and they stay
    }
    std::cout << late << " of " << rounds << " took longer than " << within().count()
              << " ms, the longest " << longest.first.count() << " ms (" << longest.second << "); "
              << neither << " were left to the next start\n";
    EXPECT_LE(late, std::max(2, rounds / 100));
}

TEST_F(Guard, KilledAtTwentyRandomMoments) {
    killAtRandomMoments(20);
}

TEST_F(Guard, SoakKilledAtTwoThousandRandomMoments) {
    killAtRandomMoments(2000);
}

TEST_F(Guard, IsThereWhileADisplayIsChangedAndIsReplacedWhenItIsKilled) {
    nocturo_ = session_.startNocturo();
    EXPECT_EQ(guardProcess(), -1); // no effect is chosen: every display keeps its own ramp
    ctl({"effects", "only", "invert"});
    const pid_t guard = guardProcess();
    ASSERT_GT(guard, 0);
    EXPECT_EQ(getsid(guard), guard);
    EXPECT_TRUE(waitUntil([&] { return isMarked(); }));
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        ::kill(guard, number);
    }
    end();
    EXPECT_EQ(waitForChild(guard), 0);
    EXPECT_FALSE(isMarked());
    EXPECT_TRUE(journal().empty());
    EXPECT_EQ(shown(), kAllOwn);

    startChanging();
    for (int i = 0; i < 3; ++i) {
        const pid_t before = guardProcess();
        ASSERT_GT(before, 0);
        ::kill(before, SIGKILL);
        ASSERT_TRUE(waitUntil([&] {
            const pid_t now = guardProcess();
            return now > 0 && now != before;
        }));
    }
    ASSERT_TRUE(waitUntil([&] { return childrenNamed(nocturo_->id(), kSpare).size() == 1; }));
    EXPECT_TRUE(killWith({kGuard})) << "the spare one does it";
    EXPECT_TRUE(allOwnWithin());

    waitForTheBus();
    startChanging();
    ctl({"off"});
    const Channels anothers = client_.ramp(output(1));
    client_.setRamp(output(0), anothers);
    kill(false);
    reapGuards();
    EXPECT_EQ(client_.ramp(output(0)), anothers) << "the displays had been given back";
}

TEST_F(Guard, WithTheServerEverythingEndsByItself) {
    const double before = processorSecondsOfChildren();
    startChanging();
    const pid_t guard = guardProcess();
    ASSERT_GT(guard, 0);
    nocturo_->signal(SIGSTOP); // the guard has to notice the server's end by itself
    killServer();
    EXPECT_TRUE(waitUntil([&] {
        const std::string stat = readText("/proc/" + std::to_string(guard) + "/stat");
        return stat.find(") Z ") != std::string::npos; // its parent is stopped
    }));
    nocturo_->signal(SIGCONT);
    EXPECT_EQ(nocturo_->wait(), 1);
    // Qt may have a line of its own to say first.
    EXPECT_TRUE(
        nocturo_->errors().ends_with("nocturo: The display server has gone, so Nocturo ends.\n"))
        << nocturo_->errors();
    reapGuards();
    EXPECT_EQ(childrenNamed(getpid(), kGuard).size(), 0U);
    EXPECT_LT(processorSecondsOfChildren() - before, 5); // nobody went round in circles
}

TEST_F(Guard, KilledWithTheServerItEndsToo) {
    startChanging();
    nocturo_->signal(SIGKILL);
    killServer();
    nocturo_->wait();
    reapGuards();
}

TEST_F(Guard, AJournalThatIsDamagedOrOfAnotherRunGivesPlainColors) {
    startChanging();
    const auto old = journal();
    kill(true);
    damageJournal();
    nocturo_ = session_.start("nocturo");
    EXPECT_TRUE(nocturo_->waitForError("is missing or damaged, so they get plain ones."));
    session_.bus().waitForName("org.nocturo.Nocturo", *nocturo_);
    ctl({"off"});
    EXPECT_TRUE(allArePlain());
    end();

    for (int i = 0; i < kDisplays; ++i) {
        Channels other = own_[static_cast<std::size_t>(i)];
        std::swap(other[0], other[1]);
        setOwn(i, other);
    }
    client_.setRootBytes(kJournal, old);
    startChanging(); // no display was left changed: it is not even read
    kill(true);
    client_.setRootBytes(kJournal, old);
    nocturo_ = session_.startNocturo();
    ctl({"off"});
    EXPECT_TRUE(allArePlain());
}

TEST_F(Guard, WithoutARuntimeDirectoryItLivesAllTheSame) {
    session_.environment()["XDG_RUNTIME_DIR"] = "/proc/none";
    startChanging();
    EXPECT_TRUE(nocturo_->waitForError("The runtime directory cannot be used"));
    kill(false);
    EXPECT_TRUE(allOwnWithin());
}

// The numbers of windows go from those that end to those that come.
TEST_F(Guard, AWindowThatIsSomebodyElsesByNowIsNotTakenForItsOwner) {
    startChanging();
    kill(true);
    auto mark = client_.rootBytes(kMark);
    std::vector<std::uint32_t> numbers(mark.size() / sizeof(std::uint32_t));
    std::memcpy(numbers.data(), mark.data(), mark.size());
    numbers.at(2) = client_.root();
    client_.setRootProperty(kMark, numbers);
    nocturo_ = session_.startNocturo();
    ctl({"off"});
    EXPECT_EQ(shown(), kAllOwn);
}

TEST_F(Guard, ALostConnectionAloneLosesNoColors) {
    startChanging();
    const auto mark = client_.rootBytes(kMark);
    std::uint32_t window = 0;
    std::memcpy(&window, &mark.at(2 * sizeof window), sizeof window);
    session_.server().run("xkill", {"-id", std::to_string(window)});
    EXPECT_TRUE(allOwnWithin());
    EXPECT_EQ(nocturo_->wait(), 1);
}

// What it has to say may have to wait for whoever reads it.
TEST_F(Guard, AFullPipeHoldsUpNobodyElse) {
    startChanging();
    kill(true);
    damageJournal();
    const fs::path pipe = session_.runtimeDirectory() / "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const auto stuck = session_.start(
        "/bin/sh", {"-c", "exec 3<>\"$1\"; head -c 65536 /dev/zero >&3; exec \"$2\" 2>&3", "sh",
                    pipe, NOCTURO_BIN_DIR "/nocturo"});
    EXPECT_TRUE(waitUntil([&] { return allArePlain(); }));
    EXPECT_TRUE(stuck->isRunning());
}

// Nocturo copied elsewhere, with whatever stands for the guard.
TEST_F(Guard, IsFoundWhereItIsInstalledAndDoneWithoutOtherwise) {
    const fs::path elsewhere = session_.runtimeDirectory() / "elsewhere";
    const fs::path built = NOCTURO_BIN_DIR;
    fs::create_directories(elsewhere / "bin");
    fs::create_directories(elsewhere / "libexec");
    fs::copy_file(built / "nocturo", elsewhere / "bin/nocturo");
    select("NDInvertEffect");
    const auto start = [&] {
        nocturo_ = session_.start(elsewhere / "bin/nocturo");
        ASSERT_TRUE(session_.bus().waitForName("org.nocturo.Nocturo", *nocturo_));
        ctl({"on"}); // after a restore it starts switched off
        ASSERT_TRUE(becomes("iiii"));
    };
    start(); // there is none
    ctl({"off"});
    ctl({"on"});
    end();
    EXPECT_EQ(shown(), kAllOwn);
    const std::string& errors = nocturo_->errors();
    EXPECT_EQ(std::count(errors.begin(), errors.end(), '\n'), 1) << errors;
    EXPECT_NE(errors.find("cannot be had (No such file or directory)"), std::string::npos);
    start();
    kill(false);
    EXPECT_EQ(shown(), "iiii");
    ctl({"restore"});
    EXPECT_TRUE(becomes(kAllOwn)) << shown();

    fs::copy_file("/bin/false", elsewhere / "bin" / kGuard); // one that does not stay alive
    start();
    EXPECT_TRUE(nocturo_->waitForError("it does not stay alive"));
    end();
    for (const pid_t guard : leftGuards()) {
        EXPECT_EQ(waitForChild(guard), 1);
    }
    EXPECT_EQ(shown(), kAllOwn);

    fs::remove(elsewhere / "bin" / kGuard);
    fs::copy_file(built / kGuard, elsewhere / "libexec" / kGuard);
    start();
    kill(false);
    EXPECT_TRUE(allOwnWithin());
}
