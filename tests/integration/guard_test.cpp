// Whatever becomes of Nocturo, the displays come back: on a real X server, with the processes
// really killed.

#include "nocturo_test.h"

#include <iostream>
#include <random>

#include <sys/resource.h>

namespace nocturo::rig {

namespace {

namespace fs = std::filesystem;

constexpr int kDisplays = 4;
constexpr Milliseconds kWithin{100};
constexpr const char* kGuard = "nocturo-guard";
constexpr const char* kAllOwn = "oooo";
constexpr const char* kAllChanged = "????"; // inverted and dimmed

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
        ASSERT_EQ(shown(), kAllChanged);
    }

    int plain() {
        int count = 0;
        for (int i = 0; i < kDisplays; ++i) {
            const Channels ramp = client_.ramp(output(i));
            count += ramp[0] == ramp[1] && ramp[0][1] == 257 && ramp[0][255] == 65535 ? 1 : 0;
        }
        return count;
    }

    void killAtRandomMoments(int rounds, int together);
};

// What it is doing changes from round to round: starting, toggling, following a slider, nothing.
void Guard::killAtRandomMoments(int rounds, int together) {
    std::mt19937 random(std::random_device{}());
    const auto moment = [&] {
        return Milliseconds(std::uniform_int_distribution<int>(0, 60)(random));
    };
    int late = 0;
    startChanging();
    ctl({"quit"});
    nocturo_->wait();
    for (int round = 0; round < rounds; ++round) {
        SCOPED_TRACE("round " + std::to_string(round));
        const int activity = round % 4;
        std::unique_ptr<Process> driver;
        if (activity == 0) {
            nocturo_ = session_.start("nocturo");
        } else {
            nocturo_ = session_.startNocturo();
            ctl({"on"});
        }
        if (activity == 1) {
            driver = session_.start("toggle_loop", {"100000"});
        } else if (activity == 2) {
            driver = session_.start("toggle_loop", {"100000", "drag"});
        }
        ASSERT_EQ(nocturo_->wait(moment()), std::nullopt) << nocturo_->errors();
        const bool guardToo = round * together / rounds != (round + 1) * together / rounds;
        kill(guardToo);
        if (guardToo) {
            waitForTheBus();
            nocturo_ = session_.startNocturo();
            ctl({"off"});
        }
        late += allOwnWithin(kWithin) ? 0 : 1;
        EXPECT_TRUE(allOwnWithin()) << shown();
        if (guardToo) {
            ctl({"on"});
            ctl({"quit"});
            nocturo_->wait();
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
    killAtRandomMoments(20, 4);
}

TEST_F(Guard, SoakKilledAtTwoHundredRandomMoments) {
    killAtRandomMoments(200, 20);
}

TEST_F(Guard, IsThereBeforeTheFirstChangeAndOnlyThen) {
    nocturo_ = session_.startNocturo();
    EXPECT_EQ(guardProcess(), -1); // no effect is chosen: every display keeps its own ramp
    ctl({"effects", "only", "invert"});
    const pid_t guard = guardProcess();
    ASSERT_GT(guard, 0);
    EXPECT_EQ(getsid(guard), guard);
    EXPECT_TRUE(fs::exists(journal()));
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        ::kill(guard, number);
    }
    ctl({"quit"});
    EXPECT_EQ(nocturo_->wait(), 0);
    EXPECT_EQ(waitForChild(guard), 0);
    EXPECT_FALSE(fs::exists(journal()));
    EXPECT_EQ(shown(), kAllOwn);
}

TEST_F(Guard, WritesNothingWhereTheDisplaysWereGivenBack) {
    startChanging();
    ctl({"off"});
    const Channels anothers = client_.ramp(output(1));
    client_.setRamp(output(0), anothers);
    kill(false);
    reapGuards();
    EXPECT_EQ(client_.ramp(output(0)), anothers);
}

TEST_F(Guard, AnotherTakesOverWhenItIsKilled) {
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
}

TEST_F(Guard, WithTheServerEverythingEndsByItself) {
    startChanging();
    const pid_t guard = guardProcess();
    ASSERT_GT(guard, 0);
    nocturo_->signal(SIGSTOP); // the guard has to notice the server's end by itself
    session_.server().kill();
    EXPECT_TRUE(waitUntil([&] {
        std::ifstream stat("/proc/" + std::to_string(guard) + "/stat");
        std::string text;
        std::getline(stat, text);
        return text.find(") Z ") != std::string::npos; // its parent is stopped
    }));
    nocturo_->signal(SIGCONT);
    EXPECT_EQ(nocturo_->wait(), 1);
    // Qt may have a line of its own to say first.
    EXPECT_TRUE(
        nocturo_->errors().ends_with("nocturo: The display server has gone, so Nocturo ends.\n"))
        << nocturo_->errors();
    reapGuards();
    rusage used{};
    getrusage(RUSAGE_CHILDREN, &used);
    EXPECT_EQ(childrenNamed(getpid(), kGuard).size(), 0U);
    EXPECT_LT(used.ru_utime.tv_sec, 5); // nobody went round in circles
}

TEST_F(Guard, KilledWithTheServerItEndsToo) {
    startChanging();
    nocturo_->signal(SIGKILL);
    session_.server().kill();
    nocturo_->wait();
    reapGuards();
}

TEST_F(Guard, ADamagedJournalGivesPlainColors) {
    startChanging();
    kill(true);
    waitForTheBus();
    damageJournal();
    nocturo_ = session_.start("nocturo");
    EXPECT_TRUE(nocturo_->waitForError("is missing or damaged, so they get plain ones."));
    session_.bus().waitForName("org.nocturo.Nocturo", *nocturo_);
    ctl({"off"});
    EXPECT_EQ(plain(), kDisplays);
    EXPECT_TRUE(fs::exists(journal().native() + ".damaged"));
}

TEST_F(Guard, AJournalOfAnotherRunIsNotBelieved) {
    startChanging();
    const fs::path old = session_.runtimeDirectory() / "old";
    fs::copy_file(journal(), old);
    ctl({"quit"});
    nocturo_->wait();
    for (int i = 0; i < kDisplays; ++i) {
        Channels other = client_.ramp(output(i));
        std::swap(other[0], other[1]);
        setOwn(i, other);
    }
    fs::copy_file(old, journal());
    startChanging(); // no display was left changed: it is not even read
    kill(true);
    waitForTheBus();
    fs::copy_file(old, journal(), fs::copy_options::overwrite_existing);
    nocturo_ = session_.startNocturo();
    ctl({"off"});
    EXPECT_EQ(plain(), kDisplays);
}

TEST_F(Guard, RestoreByHandWorksWhileNocturoHangs) {
    startChanging();
    EXPECT_TRUE(becomes(kAllChanged));
    nocturo_->signal(SIGSTOP);
    const RunResult restored = session_.run("nocturoctl", {"restore"});
    EXPECT_EQ(restored.exit, 0) << restored.errors;
    EXPECT_NE(restored.output.find("does not answer"), std::string::npos) << restored.output;
    EXPECT_EQ(shown(), kAllOwn);
}

TEST_F(Guard, RestoreByHandWorksInEverySituation) {
    const auto restore = [&] {
        const RunResult result = session_.run("nocturoctl", {"restore"});
        EXPECT_EQ(result.exit, 0) << result.errors;
        EXPECT_EQ(std::count(result.output.begin(), result.output.end(), '\n'), 1);
        return result.output;
    };
    startChanging();
    EXPECT_NE(restore().find("switched its effect off"), std::string::npos);
    EXPECT_EQ(shown(), kAllOwn);

    ctl({"on"});
    const std::string address = session_.environment()["DBUS_SESSION_BUS_ADDRESS"];
    session_.environment().erase("DBUS_SESSION_BUS_ADDRESS");
    EXPECT_NE(restore().find("switched its effect off"), std::string::npos);
    EXPECT_EQ(shown(), kAllOwn);
    session_.environment()["DBUS_SESSION_BUS_ADDRESS"] = address;

    ctl({"on"});
    // A server drops what a killed program sent and it has not read yet.
    EXPECT_TRUE(becomes(kAllChanged));
    kill(true);
    EXPECT_EQ(shown(), kAllChanged);
    EXPECT_NE(restore().find("own colors back"), std::string::npos);
    EXPECT_EQ(shown(), kAllOwn);

    EXPECT_NE(restore().find("plain colors now"), std::string::npos);
    EXPECT_EQ(plain(), kDisplays);
}

/// Nocturo copied elsewhere, with whatever stands for the guard.
class GuardElsewhere : public Guard {
  protected:
    GuardElsewhere() {
        fs::create_directories(bin());
        fs::create_directories(bin() / "../libexec");
        fs::copy_file(built() / "nocturo", bin() / "nocturo");
        // The saved effect is what it starts with.
        nocturo_ = session_.startNocturo();
        ctl({"effects", "only", "invert"});
        ctl({"quit"});
        nocturo_->wait();
    }
    static fs::path built() { return NOCTURO_BIN_DIR; }
    fs::path bin() const { return session_.runtimeDirectory() / "elsewhere" / "bin"; }

    void startFromThere() {
        nocturo_ = session_.start(bin() / "nocturo");
        ASSERT_TRUE(session_.bus().waitForName("org.nocturo.Nocturo", *nocturo_));
        ASSERT_TRUE(becomes("iiii"));
    }
};

TEST_F(GuardElsewhere, IsFoundWhereItIsInstalled) {
    fs::copy_file(built() / kGuard, bin() / "../libexec" / kGuard);
    startFromThere();
    kill(false);
    EXPECT_TRUE(allOwnWithin());
}

TEST_F(GuardElsewhere, MissingItIsToldOnceAndDoneWithout) {
    startFromThere();
    ctl({"off"});
    ctl({"on"});
    nocturo_->signal(SIGTERM);
    EXPECT_EQ(nocturo_->wait(), 0);
    EXPECT_EQ(shown(), kAllOwn);
    const std::string& errors = nocturo_->errors();
    EXPECT_EQ(std::count(errors.begin(), errors.end(), '\n'), 1) << errors;
    EXPECT_NE(errors.find("cannot be had (No such file or directory)"), std::string::npos);

    startFromThere();
    kill(false);
    EXPECT_EQ(shown(), "iiii");
    ctl({"restore"});
    EXPECT_EQ(shown(), kAllOwn);
}

TEST_F(GuardElsewhere, OneThatDoesNotStayAliveIsGivenUp) {
    fs::copy_file("/bin/false", bin() / kGuard);
    startFromThere();
    EXPECT_TRUE(nocturo_->waitForError("it does not stay alive"));
    ctl({"off"});
    EXPECT_EQ(shown(), kAllOwn);
}

} // namespace

} // namespace nocturo::rig
