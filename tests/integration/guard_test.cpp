// Whatever becomes of Nocturo, the displays come back: on a real X server, with the processes
// really killed.

#include "nocturo_test.h"

#include <cstring>
#include <iostream>
#include <random>

#include <sys/resource.h>
#include <sys/stat.h>

namespace nocturo::rig {

namespace {

namespace fs = std::filesystem;

constexpr int kDisplays = 4;
constexpr Milliseconds kWithin{100};
constexpr const char* kAllOwn = "oooo";
constexpr const char* kAllChanged = "????"; // inverted and dimmed

/// Of those that have ended.
double processorSecondsOfChildren() {
    rusage used{};
    getrusage(RUSAGE_CHILDREN, &used);
    return double(used.ru_utime.tv_sec) + double(used.ru_utime.tv_usec) / 1e6;
}

class Guard : public NocturoOnX {
  protected:
    Guard() : NocturoOnX(kDisplays) {
        for (int i = 0; i < kDisplays; ++i) {
            // Of a shape that no effect makes, and each display its own.
            Channels own;
            for (std::size_t channel = 0; channel < own.size(); ++channel) {
                for (int entry = 0; entry < 256; ++entry) {
                    own[channel].push_back(
                        static_cast<std::uint16_t>(entry * entry + 7 * i + int(channel)));
                }
            }
            setOwn(i, own);
        }
    }

    /// With its effect on and every display changed.
    void startChanging() {
        nocturo_ = session_.startNocturo();
        ctl({"effects", "only", "invert", "dim"});
        ctl({"on"});
        ASSERT_TRUE(becomes(kAllChanged)) << shown();
    }
    bool allArePlain() {
        for (int i = 0; i < kDisplays; ++i) {
            const Channels ramp = client_.ramp(output(i));
            if (ramp[0] != ramp[1] || ramp[0][1] != 257 || ramp[0][255] != 65535) {
                return false;
            }
        }
        return true;
    }

    void killAtRandomMoments(int rounds);
    void restoreWhileTheGuardsDo(int rounds);

    std::mt19937 random_{std::random_device{}()};
};

// What it is doing changes from round to round: starting, toggling, following a slider, nothing.
// So does what is killed with it: nothing, either guard, or one time in ten both.
void Guard::killAtRandomMoments(int rounds) {
    const std::vector<std::string> drivers[] = {{}, {"100000"}, {"100000", "drag"}, {}};
    const std::vector<std::string> killedToo[] = {{}, {kGuard}, {kSpare}, {kGuard, kSpare}};
    std::uniform_int_distribution<int> moment(0, 60);
    int late = 0;
    startChanging();
    end();
    for (int round = 0; round < rounds; ++round) {
        SCOPED_TRACE("round " + std::to_string(round));
        const int activity = round % 4;
        const bool both = round % 10 == 9;
        nocturo_ = activity == 0 ? session_.start("nocturo") : session_.startNocturo();
        if (activity != 0) {
            ctl({"on"});
        }
        const auto driver =
            drivers[activity].empty() ? nullptr : session_.start("toggle_loop", drivers[activity]);
        ASSERT_EQ(nocturo_->wait(Milliseconds(moment(random_))), std::nullopt)
            << nocturo_->errors();
        const bool nobodyIsLeft = !killWith(killedToo[both ? 3 : round / 4 % 3]);
        if (nobodyIsLeft) {
            waitForTheBus();
            nocturo_ = session_.startNocturo();
            ctl({"off"});
        }
        late += allOwnWithin(kWithin) ? 0 : 1;
        ASSERT_TRUE(allOwnWithin()) << shown();
        if (nobodyIsLeft) {
            ctl({"on"});
            end();
        }
        reapGuards();
        waitForTheBus();
        EXPECT_EQ(shown(), kAllOwn); // and they stay
    }
    // On a machine that has enough else to do the processor itself comes late now and then.
    std::cout << late << " of " << rounds << " took longer than " << kWithin.count() << " ms\n";
    EXPECT_LE(late, rounds / 10);
}

TEST_F(Guard, KilledAtTwentyRandomMoments) {
    killAtRandomMoments(20);
}

TEST_F(Guard, SoakKilledAtTwoThousandRandomMoments) {
    killAtRandomMoments(2000);
}

void Guard::restoreWhileTheGuardsDo(int rounds) {
    std::uniform_int_distribution<int> moment(0, 8);
    for (int round = 0; round < rounds; ++round) {
        SCOPED_TRACE("round " + std::to_string(round));
        startChanging(); // a killed one may have left its choice unwritten
        const auto restore = round % 2 == 0 ? session_.start("nocturoctl", {"restore"}) : nullptr;
        if (restore != nullptr) {
            restore->wait(Milliseconds(moment(random_)));
        }
        killWith({});
        const RunResult result = session_.run("nocturoctl", {"restore"});
        EXPECT_EQ(result.exit, 0) << result.errors;
        ASSERT_TRUE(allOwnWithin()) << shown() << result.output;
        reapGuards();
        waitForTheBus();
        EXPECT_EQ(shown(), kAllOwn);
    }
}

TEST_F(Guard, ARestoreBesideThemLosesNoColors) {
    restoreWhileTheGuardsDo(5);
}

TEST_F(Guard, SoakFiveHundredRestoresBesideThemLoseNoColors) {
    restoreWhileTheGuardsDo(500);
}

TEST_F(Guard, IsThereWhileADisplayIsChangedAndIsReplacedWhenItIsKilled) {
    nocturo_ = session_.startNocturo();
    EXPECT_EQ(guardProcess(), -1); // no effect is chosen: every display keeps its own ramp
    ctl({"effects", "only", "invert"});
    const pid_t guard = guardProcess();
    ASSERT_GT(guard, 0);
    EXPECT_EQ(getsid(guard), guard);
    EXPECT_TRUE(isMarked());
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
    kill(false);
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
    session_.server().kill();
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
    reapGuards(true);
    EXPECT_EQ(childrenNamed(getpid(), kGuard).size(), 0U);
    EXPECT_LT(processorSecondsOfChildren() - before, 5); // nobody went round in circles
}

TEST_F(Guard, KilledWithTheServerItEndsToo) {
    startChanging();
    nocturo_->signal(SIGKILL);
    session_.server().kill();
    nocturo_->wait();
    reapGuards(true);
}

TEST_F(Guard, AJournalThatIsDamagedOrOfAnotherRunGivesPlainColors) {
    startChanging();
    const auto old = journal();
    kill(true);
    waitForTheBus();
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
    waitForTheBus();
    client_.setRootBytes(kJournal, old);
    nocturo_ = session_.startNocturo();
    ctl({"off"});
    EXPECT_TRUE(allArePlain());
}

TEST_F(Guard, RestoreByHandWorksInEverySituation) {
    const auto says = [&](const char* part) {
        const RunResult result = session_.run("nocturoctl", {"restore"});
        EXPECT_EQ(result.exit, 0) << result.errors;
        EXPECT_NE(result.output.find(part), std::string::npos) << result.output;
        EXPECT_EQ(std::count(result.output.begin(), result.output.end(), '\n'), 1);
    };
    startChanging();
    says("switched its effect off");
    EXPECT_EQ(shown(), kAllOwn);

    ctl({"on"});
    const auto environment = session_.environment();
    session_.environment().erase("DBUS_SESSION_BUS_ADDRESS");
    says("switched its effect off");
    EXPECT_EQ(shown(), kAllOwn);
    session_.environment() = environment;

    ctl({"on"});
    // A server drops what a stopped or killed program sent and it has not read yet.
    EXPECT_TRUE(becomes(kAllChanged));
    nocturo_->signal(SIGSTOP);
    says("does not answer");
    EXPECT_EQ(shown(), kAllOwn);

    nocturo_->signal(SIGCONT);
    ctl({"on"});
    EXPECT_TRUE(becomes(kAllChanged));
    kill(true);
    EXPECT_EQ(shown(), kAllChanged);
    says("own colors back");
    EXPECT_EQ(shown(), kAllOwn);

    const Channels anothers = reversed(own_[1]);
    client_.setRamp(output(0), anothers);
    says("nothing was done");
    EXPECT_EQ(client_.ramp(output(0)), anothers) << "it is not Nocturo's";
}

TEST_F(Guard, ARestoreOrAnOptionKeepsTheNextStartSwitchedOff) {
    const auto startSays = [&](const std::vector<std::string>& options, std::string_view words) {
        nocturo_ = session_.startNocturo(options);
        EXPECT_EQ(nocturo_->readLine().value_or(""), words);
        EXPECT_EQ(status()["active"], false);
        EXPECT_EQ(shown(), kAllOwn);
        ctl({"on"}); // once somebody wants it, it comes back
        EXPECT_TRUE(becomes("iiii"));
    };
    select("NDInvertEffect");
    startSays({"--off"}, "nocturo: Nocturo starts switched off.");
    EXPECT_EQ(session_.run("nocturo", {"--off"}).exit, 0);
    EXPECT_EQ(shown(), kAllOwn) << "the one that runs is switched off";
    ctl({"on"});
    kill(true);
    waitForTheBus();
    ctl({"restore"});
    startSays({}, "nocturo: Nocturo starts switched off, because nocturoctl restore gave the "
                  "displays back.");
    end();
    nocturo_ = session_.startNocturo();
    EXPECT_TRUE(becomes("iiii"));
}

// Another server's Nocturo, or whoever else has the name, says that it has done it.
TEST_F(Guard, RestoreLooksAtTheServerAfterItHasAsked) {
    startChanging();
    kill(true);
    waitForTheBus();
    const auto simulated = session_.startNocturo({"--display-services=simulated"});
    EXPECT_EQ(shown(), kAllChanged);
    EXPECT_NE(ctl({"restore"}).output.find("own colors back"), std::string::npos);
    EXPECT_EQ(shown(), kAllOwn);
}

TEST_F(Guard, RestoreNeedsNothingAndNeverTakesLong) {
    const auto restoreWithin = [&](Milliseconds limit) {
        const auto start = std::chrono::steady_clock::now();
        const RunResult result = session_.run("nocturoctl", {"restore"});
        const auto taken = std::chrono::steady_clock::now() - start;
        EXPECT_LT(taken, limit) << result.output << result.errors;
        return result.exit;
    };
    constexpr Milliseconds kAtMost{3000};
    const auto leaveThemChanged = [&] {
        startChanging();
        kill(true);
        waitForTheBus();
        EXPECT_EQ(shown(), kAllChanged);
    };
    const auto environment = session_.environment();
    for (const char* directory : {"/proc/none", "/dev/null", "relative", ""}) {
        leaveThemChanged();
        session_.environment()["XDG_RUNTIME_DIR"] = directory;
        session_.environment().erase("DBUS_SESSION_BUS_ADDRESS");
        EXPECT_EQ(restoreWithin(kAtMost), 0) << directory;
        EXPECT_EQ(shown(), kAllOwn) << directory;
        session_.environment() = environment;
    }
    leaveThemChanged();
    session_.bus().signal(SIGSTOP);
    EXPECT_EQ(restoreWithin(kAtMost), 0);
    EXPECT_EQ(shown(), kAllOwn);
    session_.bus().signal(SIGCONT);
    session_.server().signal(SIGSTOP);
    EXPECT_EQ(restoreWithin(kAtMost), 1);
    session_.server().signal(SIGCONT);
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
    waitForTheBus();
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
    client_.killOwner(window);
    EXPECT_TRUE(allOwnWithin());
    EXPECT_EQ(nocturo_->wait(), 1);
}

// What it has to say may have to wait for whoever reads it.
TEST_F(Guard, AFullPipeHoldsUpNobodyElse) {
    startChanging();
    kill(true);
    waitForTheBus();
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

    waitForTheBus();
    fs::copy_file("/bin/false", elsewhere / "bin" / kGuard); // one that does not stay alive
    start();
    EXPECT_TRUE(nocturo_->waitForError("it does not stay alive"));
    end();
    for (const pid_t guard : guardsOf(getpid())) {
        EXPECT_EQ(waitForChild(guard), 1);
    }
    EXPECT_EQ(shown(), kAllOwn);

    fs::remove(elsewhere / "bin" / kGuard);
    fs::copy_file(built / kGuard, elsewhere / "libexec" / kGuard);
    start();
    kill(false);
    EXPECT_TRUE(allOwnWithin());
}

} // namespace

} // namespace nocturo::rig
