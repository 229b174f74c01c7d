// nocturoctl restore, whatever has become of Nocturo and of what else there is.

#include "four_displays.h"

#include <iostream>
#include <random>

#include <unistd.h>

using namespace nocturo;
using namespace nocturo::rig;

namespace fs = std::filesystem;

struct Restore : FourDisplays {
    /// Whatever there is, it never takes long.
    RunResult restore(int exit = 0) {
        const auto start = std::chrono::steady_clock::now();
        RunResult result = session_.run("nocturoctl", {"restore"});
        longest_ = std::max(longest_, std::chrono::steady_clock::now() - start);
        EXPECT_LE(longest_, Milliseconds(3000));
        EXPECT_EQ(result.exit, exit) << result.errors;
        return result;
    }
    void restoreWhileTheGuardsDo(int rounds);
    ~Restore() override {
        std::cout << "restore took " << std::chrono::floor<Milliseconds>(longest_).count()
                  << " ms at most\n";
    }

    std::chrono::steady_clock::duration longest_{};
};

TEST_F(Restore, WorksInEverySituation) {
    const auto says = [&](const char* part) {
        const RunResult result = restore();
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
    {
        // Has the name on the bus, and says that it has done it.
        const auto another = session_.startNocturo({"--display-services=simulated"});
        EXPECT_EQ(shown(), kAllChanged);
        says("own colors back");
        EXPECT_EQ(shown(), kAllOwn);
    }
    waitForTheBus();

    const Channels anothers = reversed(own_[1]);
    client_.setRamp(output(0), anothers);
    says("nothing was done");
    EXPECT_EQ(client_.ramp(output(0)), anothers) << "it is not Nocturo's";
}

TEST_F(Restore, OrAnOptionKeepsTheNextStartSwitchedOff) {
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
    ctl({"restore"});
    startSays({}, "nocturo: Nocturo starts switched off, because nocturoctl restore gave the "
                  "displays back.");
    end();
    nocturo_ = session_.startNocturo();
    EXPECT_TRUE(becomes("iiii"));
}

TEST_F(Restore, NeedsNeitherBusDirectoryNorServer) {
    const auto leaveThemChanged = [&] {
        startChanging();
        kill(true);
        EXPECT_EQ(shown(), kAllChanged);
    };
    const auto environment = session_.environment();
    const fs::path anothers = session_.runtimeDirectory() / "anothers";
    fs::create_directory(anothers);
    // Only root can give it away; to all others "/root" is another's.
    const bool given = ::chown(anothers.c_str(), 12345, 12345) == 0;
    for (const std::string& directory :
         {std::string(), std::string("/proc/none"), std::string("/dev/null"),
          given ? anothers.string() : "/root"}) {
        leaveThemChanged();
        session_.environment()["XDG_RUNTIME_DIR"] = directory;
        session_.environment().erase("DBUS_SESSION_BUS_ADDRESS");
        restore();
        EXPECT_EQ(shown(), kAllOwn) << directory;
        session_.environment() = environment;
    }
    leaveThemChanged();
    session_.bus().signal(SIGSTOP);
    restore();
    EXPECT_EQ(shown(), kAllOwn);
    session_.bus().signal(SIGCONT);
    session_.server().signal(SIGSTOP);
    restore(1);
    session_.server().signal(SIGCONT);
}

void Restore::restoreWhileTheGuardsDo(int rounds) {
    std::mt19937 random{std::random_device{}()};
    std::uniform_int_distribution<int> moment(0, 8);
    for (int round = 0; round < rounds; ++round) {
        SCOPED_TRACE("round " + std::to_string(round));
        startChanging(); // a killed one may have left its choice unwritten
        const auto first = round % 2 == 0 ? session_.start("nocturoctl", {"restore"}) : nullptr;
        if (first != nullptr) {
            first->wait(Milliseconds(moment(random)));
        }
        killWith({});
        const RunResult result = restore();
        ASSERT_TRUE(allOwnWithin()) << shown() << result.output;
        reapGuards();
        waitForTheBus();
        EXPECT_EQ(shown(), kAllOwn);
    }
}

TEST_F(Restore, BesideTheGuardsLosesNoColors) {
    restoreWhileTheGuardsDo(5);
}

TEST_F(Restore, SoakFiveHundredTimesBesideTheGuardsLosesNoColors) {
    restoreWhileTheGuardsDo(500);
}
