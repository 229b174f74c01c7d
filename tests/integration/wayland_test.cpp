// The whole job in a session of a real Wayland compositor: what nocturoctl asks for is what its
// outputs hold, and they have its own ramps again however Nocturo ends.

#include "nocturo_test.h"
#include "rig/sway.h"

using namespace nocturo;
using namespace nocturo::rig;

constexpr const char* kFirst = "HEADLESS-1";
constexpr const char* kSecond = "HEADLESS-2";

struct Wayland : NocturoTest {
    Wayland() : NocturoTest(0) {}
    void SetUp() override {
        if (const std::string why = Sway::whyMissing(); !why.empty()) {
            GTEST_SKIP() << why;
        }
        sway_.emplace(2, 4096);
        session_.environment()["WAYLAND_DISPLAY"] = sway_->display();
        session_.environment()["XDG_CURRENT_DESKTOP"] = "sway";
        select("NDInvertEffect");
        nocturo_ = session_.startNocturo();
    }

    /// "i" for an output that shows what is inverted, "o" for one with the compositor's own ramp.
    bool becomes(const std::string& state) {
        return waitUntil([&] {
            std::string shown;
            for (const char* output : {kFirst, kSecond}) {
                const auto ramp = sway_->ramp(output);
                shown += !ramp                                                   ? 'o'
                         : (*ramp)[0].front() == 65535 && (*ramp)[0].back() == 0 ? 'i'
                                                                                 : '?';
            }
            return shown == state;
        });
    }

    std::optional<Sway> sway_;
};

TEST_F(Wayland, InvertsTheAffectedScreensAndGivesThemBackHoweverItEnds) {
    EXPECT_TRUE(becomes("ii"));
    EXPECT_EQ(sway_->ramp(kFirst)->front().size(), 4096U);
    EXPECT_EQ(status()["displayServices"], "wlr");
    EXPECT_EQ(status()["displays"][0]["rampSize"], 4096);
    ctl({"off", "--fade", "1"});
    EXPECT_TRUE(becomes("??"));
    EXPECT_TRUE(becomes("oo"));
    ctl({"on", "--fade", "0.1"});
    EXPECT_TRUE(becomes("ii"));
    ctl({"off"});
    EXPECT_TRUE(becomes("oo"));
    ctl({"screens", "toggle", "2"});
    ctl({"on"});
    EXPECT_TRUE(becomes("oi"));
    EXPECT_TRUE(waitUntil([&] {
        return readText(session_.settingsFile()).find("AffectedScreenSet") != std::string::npos;
    }));
    nocturo_->signal(SIGKILL);
    EXPECT_TRUE(becomes("oo"));
    nocturo_ = session_.startNocturo();
    EXPECT_TRUE(becomes("oi"));
    end();
    EXPECT_TRUE(becomes("oo"));
}

TEST_F(Wayland, FollowsOutputsAndTellsOfOneThatAnotherProgramHas) {
    NEEDS("gammastep");
    NEEDS("wlsunset");
    EXPECT_TRUE(becomes("ii"));
    for (int output = 3; output <= 10; ++output) {
        sway_->tell({"create_output"});
    }
    EXPECT_TRUE(waitUntil([&] { return sway_->ramp("HEADLESS-10").has_value(); }));
    for (int leaving = 2; leaving <= 10; ++leaving) {
        sway_->tell({"output", "HEADLESS-" + std::to_string(leaving), "disable"});
    }
    EXPECT_TRUE(waitUntil([&] { return status()["displays"].size() == 1; }));
    const std::pair<std::string, std::vector<std::string>> others[] = {
        {"gammastep", {"-m", "wayland", "-P", "-O", "3500"}},
        {"wlsunset", {"-l", "0", "-L", "0", "-t", "3500", "-T", "3600"}}};
    for (const auto& [program, arguments] : others) {
        const auto other = session_.start(program, arguments);
        EXPECT_TRUE(waitUntil([&] { return status()["displays"][0]["heldByOther"] == true; }));
        EXPECT_FALSE(status()["displays"][0]["applied"]);
        EXPECT_EQ(ctl({"status"}).output.find("On: Invert on all screens, but not on HEADLESS-1\n"),
                  0U);
        ctl({"off"});
        ctl({"on"});
        EXPECT_TRUE(becomes("io")) << program;
    }
    EXPECT_EQ(status()["displays"][0]["heldByOther"], false);
}

TEST_F(Wayland, FollowsRulesForItsWindows) {
    end();
    session_.environment()["QT_QPA_PLATFORM"] = "wayland";
    nocturo_ = session_.startNocturo();
    ctl({"rules", "add", "fullscreen", "off"});
    const std::string window = "[app_id=\".*\"]"; // the one that there is
    sway_->tell({"for_window", window, "fullscreen", "enable"});
    sway_->tell({"focus", "output", kSecond});
    EXPECT_TRUE(becomes("ii"));
    ctl({"preferences"});
    EXPECT_TRUE(becomes("io"));
    sway_->tell({window, "fullscreen", "disable"});
    EXPECT_TRUE(becomes("ii"));
    ctl({"rules", "add", "program", "org.nocturo.Nocturo", "off"});
    EXPECT_TRUE(becomes("oo"));
    sway_->tell({window, "kill"});
    EXPECT_TRUE(becomes("ii"));
}

TEST_F(Wayland, GivesTheLineForADesktopThatGrantsNoHotKey) {
    ctl({"hotkey", "set", "ctrl+super+k"}); // by the keymap
    ctl({"hotkey", "enable"});
    EXPECT_TRUE(waitUntil([&] {
        return ctl({"hotkey"}).output.find("\nbindsym Ctrl+Mod4+k exec nocturoctl toggle\n") !=
               std::string::npos;
    }));
}

TEST_F(Wayland, BringsAWindowToTheFrontWithTheTokenOfWhoAsksForIt) {
    end();
    session_.environment()["QT_QPA_PLATFORM"] = "wayland";
    session_.environment()["WAYLAND_DEBUG"] = "client";
    nocturo_ = session_.startNocturo();
    session_.environment()["XDG_ACTIVATION_TOKEN"] = "of-a-key";
    for (const char* window : {"preferences", "about"}) {
        ctl({window});
    }
    EXPECT_TRUE(waitUntil([&] {
        const std::string sent = nocturo_->errors();
        const auto first = sent.find(".activate(\"of-a-key\"");
        return first != std::string::npos &&
               sent.find(".activate(\"of-a-key\"", first + 1) != std::string::npos;
    }));
}

TEST_F(Wayland, EndsWithTheCompositorAndKeepsTheSettings) {
    for (const bool hasWindows : {false, true}) { // which end with the compositor first
        if (hasWindows) {
            session_.environment()["QT_QPA_PLATFORM"] = "wayland";
            SetUp();
            ctl({"preferences"});
        }
        EXPECT_TRUE(becomes("ii"));
        ctl({"effects", "add", "dim"});
        sway_->kill();
        EXPECT_EQ(nocturo_->wait(), 1);
        EXPECT_TRUE(hasWindows || nocturo_->waitForError("The display server has gone"));
        EXPECT_NE(readText(session_.settingsFile()).find("NDDimEffect"), std::string::npos);
    }
}
