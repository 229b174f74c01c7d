// The whole job on a real X server: what nocturoctl asks for is what the server's ramps hold, also
// when displays come and go.

#include "expected/expected_curves.h"
#include "nocturo_test.h"

#include <random>

using namespace nocturo;
using namespace nocturo::rig;

using Json = nlohmann::json;

Channels channelsOf(const expected::Curve& curve) {
    Channels channels;
    for (std::size_t i = 0; i < channels.size(); ++i) {
        channels[i].assign(curve.ramp[i].begin(), curve.ramp[i].end());
    }
    return channels;
}

/// Every display has its own: the first is the one that the expected curves start from.
Channels ownRamp(int display) {
    Channels own = channelsOf(expected::plain);
    own[0][255] = static_cast<std::uint16_t>(own[0][255] + display);
    return own;
}

struct MainJob : NocturoOnX {
    static constexpr int kDisplays = 4;

    MainJob() : NocturoOnX(kDisplays) {
        for (int display = 0; display < kDisplays; ++display) {
            reset(display);
        }
        nocturo_ = session_.startNocturo();
        ctl({"effects", "only", "invert"});
    }

    /// As a driver does when a display is switched on.
    void reset(int display) { setOwn(display, ownRamp(display)); }
    void dockAndUndock(int rounds);

    XServer& server_ = session_.server();
};

TEST_F(MainJob, InvertsTheAffectedScreensAndGivesThemBack) {
    EXPECT_TRUE(becomes("iiii")) << shown();
    ctl({"toggle"});
    EXPECT_TRUE(becomes("oooo")) << shown();
    ctl({"toggle"});
    ctl({"screens", "toggle", "2"});
    EXPECT_TRUE(becomes("oioo")) << shown();
    ctl({"screens", "toggle", "DUMMY3"});
    EXPECT_TRUE(becomes("oioi")) << shown();
    const Json display = status()["displays"][1];
    EXPECT_TRUE(display["affected"] && display["applied"] && !display["main"]);
    ctl({"screens", "toggle", std::to_string(display["id"].get<unsigned>())});
    EXPECT_TRUE(becomes("oooi")) << shown();
    ctl({"screens", "all"});
    EXPECT_TRUE(becomes("iiii")) << shown();
    EXPECT_EQ(status()["affectedScreenSet"], Json::array());
    EXPECT_EQ(session_.run("nocturoctl", {"screens", "toggle", "DUMMY9"}).exit, 2);
    ctl({"quit"});
    EXPECT_EQ(nocturo_->wait(), 0);
    EXPECT_EQ(shown(), "oooo");
}

TEST_F(MainJob, EveryEffectIsExactToTheLastOfSixteenBits) {
    ctl({"effects", "only", "overexposure"});
    ctl({"effects", "add", "invert", "dim", "NDColorFilterEffect", "hdtv-luminance"});
    ctl({"set", "NDDimEffectLevel", "-0.3"});
    ctl({"set", "NDColorFilterEffectHue", "200.5"});
    ctl({"set", "NDColorFilterEffectVividness", "0.7"});
    EXPECT_TRUE(
        waitUntil([&] { return client_.ramp(output(0)) == channelsOf(expected::allFive); }));
}

// Re-application every 6 seconds is off, so whatever is put right was put right because the server
// told.
TEST_F(MainJob, FollowsDisplaysThatChangeComeAndGo) {
    ctl({"set", "ContinuouslyApply", "false"});
    server_.run("xrandr", {"--fb", "5120x480", "--output", "DUMMY1", "--mode", "640x400"});
    reset(1);
    EXPECT_TRUE(becomes("iiii"));
    server_.switchOff(2);
    reset(2);
    server_.switchOn(2);
    EXPECT_TRUE(becomes("iiii"));

    server_.switchOff(1);
    server_.switchOff(3);
    ctl({"off"});
    EXPECT_TRUE(becomes("oooo")) << shown();
    ctl({"on"});
    EXPECT_TRUE(becomes("ioio")) << shown();
    server_.switchOn(1);
    server_.switchOn(3);
    EXPECT_TRUE(becomes("iiii"));

    const Channels own = ownRamp(100);
    server_.switchOn(6); // never seen before
    client_.setRamp(output(6), own);
    EXPECT_TRUE(waitUntil([&] { return client_.ramp(output(6)) == reversed(own); }));
    end();
    EXPECT_EQ(shown(), "oooo");
    EXPECT_EQ(nocturo_->errors(), kNoEffectSentence);
}

// Three of four displays leave and come back at once, while another client writes ramps, its own or
// nonsense, to those that are there and those that are not.
void MainJob::dockAndUndock(int rounds) {
    ctl({"set", "ContinuouslyApply", "false"});
    std::mt19937 random(4);
    const auto overwrite = [&] {
        const int display = static_cast<int>(random() % kDisplays);
        client_.setRamp(output(display), ownRamp(static_cast<int>(random() % 200)));
    };
    for (int round = 0; round < rounds; ++round) {
        for (int display = 1; display < kDisplays; ++display) {
            server_.switchOff(display);
            overwrite();
        }
        for (int display = 1; display < kDisplays; ++display) {
            overwrite();
            server_.switchOn(display);
            reset(display);
        }
        ASSERT_TRUE(becomes("iiii")) << round << ": " << shown();
    }
    end();
    EXPECT_EQ(shown(), "oooo");
    EXPECT_EQ(nocturo_->errors(), kNoEffectSentence);
}

TEST_F(MainJob, ADockEndsRightWhateverOthersWriteMeanwhile) {
    dockAndUndock(5);
}

TEST_F(MainJob, SoakADockEndsRightTwoHundredTimes) {
    dockAndUndock(200);
}

TEST_F(MainJob, EndsCleanlyOnSignalsStartsAsItWasLeftAndOnlyOnce) {
    ctl({"set", "ActivateAtLaunch", "false"});
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        EXPECT_TRUE(becomes("iiii")) << shown();
        end(number);
        EXPECT_EQ(shown(), "oooo");
        nocturo_ = session_.startNocturo();
        EXPECT_TRUE(status()["active"]);
    }
    const RunResult second = session_.run("nocturo"); // re-opens the first: toggled
    EXPECT_EQ(second.exit, 0);
    EXPECT_EQ(second.output, "nocturo: Nocturo is already running.\n");
    EXPECT_FALSE(status()["active"]);
    end();
    nocturo_ = session_.startNocturo();
    EXPECT_FALSE(status()["active"]);
    ctl({"set", "ActivateOnClick", "false"});
    session_.run("nocturo");
    EXPECT_FALSE(status()["active"]);
}

TEST_F(MainJob, WithoutASessionBusALockHoldsTheSameRule) {
    end();
    session_.environment().erase("DBUS_SESSION_BUS_ADDRESS");
    nocturo_ = session_.start("nocturo");
    ASSERT_TRUE(becomes("iiii"));
    EXPECT_EQ(session_.run("nocturo").exit, 0);
    EXPECT_TRUE(becomes("oooo")); // re-opened: toggled
    EXPECT_EQ(session_.run("nocturoctl", {"on"}).exit, 3);
    nocturo_->signal(SIGKILL);
    nocturo_->wait();
    nocturo_ = session_.start("nocturo"); // a lock does not outlive its holder
    EXPECT_TRUE(becomes("iiii")) << nocturo_->errors();
}

TEST_F(MainJob, FollowsItsSettingsFileAndWritesItInTime) {
    const auto contains = [&](const char* part) {
        return readText(session_.settingsFile()).find(part) != std::string::npos;
    };
    ctl({"off"});
    ASSERT_TRUE(waitUntil([&] { return contains("<key>EffectActive</key>\n\t<false/>"); },
                          Milliseconds(3000)));
    select("NDInvertEffect", "<key>Somebody's</key><real>0.25</real>"
                             "<key>EffectActive</key><true/>");
    ASSERT_TRUE(waitUntil([&] { return status()["settings"]["EffectActive"] == true; }))
        << nocturo_->errors() << readText(session_.settingsFile());
    ctl({"set", "ShowStatusItem", "7"});
    ctl({"quit"});
    nocturo_->wait();
    for (const char* part :
         {"Somebody's", "<key>EffectActive</key>\n\t<true/>", "<integer>7</integer>"}) {
        EXPECT_TRUE(contains(part)) << part;
    }
}

TEST_F(MainJob, TenThousandTogglesLeaveNoTrace) {
    const auto grownBy = [&](int toggles) {
        const long before = kilobytesOf("Private_Dirty:");
        const RunResult result =
            session_.run("caller", {"toggle", std::to_string(toggles)}, Milliseconds(100000));
        EXPECT_EQ(result.exit, 0) << result.errors;
        return kilobytesOf("Private_Dirty:") - before;
    };
    grownBy(500); // caches fill
    // A queue grows once on a busy machine; what leaks grows again.
    EXPECT_TRUE(grownBy(10000) <= 1024 || grownBy(10000) <= 1024);
    EXPECT_TRUE(becomes("iiii")) << shown();
    ctl({"off"});
    EXPECT_TRUE(becomes("oooo")) << shown();
}
