// The whole job with the interfaces of GNOME Shell and Cinnamon. A real mutter on an X server
// changes that server's ramps; what newer shells add, and what none should answer, comes from a
// stand-in.

#include "nocturo_test.h"

#include <regex>

using namespace nocturo;
using namespace nocturo::rig;

namespace fs = std::filesystem;

constexpr const char* kGnome = "--display-services=gnome";
constexpr const char* kDisplays = "org.gnome.Mutter.DisplayConfig";

/// The journals that are kept.
std::vector<std::string> journalsIn(const Session& session) {
    auto names = namesIn(session.runtimeDirectory() / "nocturo");
    std::erase_if(names, [](const auto& name) { return !name.starts_with("ramps@"); });
    return names;
}

struct Mutter : NocturoOnX {
    Mutter() : NocturoOnX(2) {}
    void SetUp() override {
        NEEDS("mutter");
        for (std::size_t i = 0; i < 2; ++i) {
            Channels own = own_[i];
            std::swap(own[0][9], own[1][9 + i]); // so that neither is the identity
            own[0][10] += 3;
            setOwn(static_cast<int>(i), own);
        }
        ASSERT_TRUE(waitUntil([&] { // now and then it crashes before it is there
            mutter_ = session_.start("mutter", {"--x11"});
            return session_.bus().waitForName(kDisplays, *mutter_);
        })) << mutter_->errors();
        select("NDInvertEffect");
        nocturo_ = session_.startNocturo({kGnome});
    }

    std::unique_ptr<Process> mutter_;
};

TEST_F(Mutter, GivesBackWhatItInvertedHoweverItEnds) {
    EXPECT_TRUE(becomes("ii")) << shown();
    EXPECT_EQ(status()["displayServices"], "gnome");
    EXPECT_EQ(status()["displays"][1]["name"], "DUMMY1");
    EXPECT_EQ(journalsIn(session_).size(), 1U);
    ctl({"off"});
    EXPECT_TRUE(becomes("oo")) << shown(); // mutter tells the server in its own time
    EXPECT_TRUE(journalsIn(session_).empty());
    ctl({"on"});
    EXPECT_TRUE(becomes("ii"));
    kill(false);
    EXPECT_TRUE(allOwnWithin());
    reapGuards();
    EXPECT_TRUE(journalsIn(session_).empty());

    nocturo_ = session_.startNocturo({kGnome});
    EXPECT_TRUE(becomes("ii"));
    EXPECT_TRUE(waitUntil([&] { // both guards are there
        return childrenNamed(nocturo_->id(), "display-keeper").size() == 1;
    }));
    kill(true);
    EXPECT_EQ(shown(), "ii");
    const fs::path journal = session_.runtimeDirectory() / "nocturo" / journalsIn(session_).at(0);
    fs::copy_file(journal, session_.runtimeDirectory() / "kept");
    EXPECT_EQ(ctl({"restore"}).output.find("The displays have their own colors back"), 0U);
    EXPECT_TRUE(becomes("oo")) << shown();
    fs::copy_file(session_.runtimeDirectory() / "kept", journal); // as if nobody had repaired
    setOwn(0, reversed(own_[0]));
    nocturo_ = session_.startNocturo({kGnome});
    EXPECT_TRUE(becomes("oi")) << "what the journal has was inverted";
    end();
    own_[0] = reversed(own_[0]);
    EXPECT_TRUE(becomes("oo")) << shown();
}

TEST_F(Mutter, WritesAgainWhatTheNightLightOrANewDisplayOverwrites) {
    const auto nightLight =
        session_.startMock(session_.bus(), "org.gnome.SettingsDaemon.Color",
                           {"org.gnome.SettingsDaemon.Color", "/org/gnome/SettingsDaemon/Color",
                            "org.gnome.SettingsDaemon.Color"});
    EXPECT_TRUE(becomes("ii"));
    client_.setRamp(output(1), own_[1]);
    session_.bus().call("org.gnome.SettingsDaemon.Color", "/org/gnome/SettingsDaemon/Color",
                        "org.freedesktop.DBus.Mock", "EmitSignal", "sssav",
                        "org.freedesktop.DBus.Properties", "PropertiesChanged", "sa{sv}as", 3, "s",
                        "org.gnome.SettingsDaemon.Color", "a{sv}", 1, "Temperature", "u", 3000,
                        "as", 0);
    EXPECT_TRUE(becomes("ii")) << shown();

    // Every change makes the serial number that the calls have to name a stale one.
    session_.server().switchOn(2);
    own_.push_back(own_[0]);
    EXPECT_TRUE(waitUntil([&] { return status()["displays"].size() == 3; }));
    ctl({"off"});
    EXPECT_TRUE(becomes("oo?")) << shown();
    session_.server().switchOff(1);
    ctl({"on"});
    EXPECT_TRUE(waitUntil([&] { return status()["displays"].size() == 2; }));
    EXPECT_TRUE(waitUntil([&] { return shown().front() == 'i'; })) << shown();
}

/// A stand-in that speaks as a shell does.
struct Shell : NocturoTest {
    Shell() : NocturoTest(0) {
        inheritOrphans();
        select("NDInvertEffect");
    }

    void startShell(const std::string& options, const char* displays = kDisplays) {
        displays_ = displays;
        shell_ = session_.start("/usr/bin/python3", {NOCTURO_SHELL_STAND_IN, options});
        ASSERT_TRUE(session_.bus().waitForName(displays, *shell_)) << shell_->errors();
    }
    void startWith(const std::string& options, const char* displays = kDisplays) {
        startShell(options, displays);
        nocturo_ = session_.startNocturo({kGnome});
    }
    std::string ask(const std::string& method) {
        std::string path = "/" + displays_;
        std::replace(path.begin(), path.end(), '.', '/');
        return session_
            .run("gdbus",
                 {"call", "--session", "-d", displays_, "-o", path, "-m", displays_ + '.' + method})
            .output;
    }
    bool becomes(const std::string& letters) {
        return waitUntil([&] { return ask("Shown") == "('" + letters + "',)\n"; });
    }
    nlohmann::json display(const char* member) { return status()["displays"][1][member]; }

    /// What it says when it ends because of its displays.
    std::string refusal() {
        const RunResult result = session_.run("nocturo", {kGnome});
        EXPECT_EQ(result.exit, 1);
        return result.errors;
    }

    std::string displays_;
    std::unique_ptr<Process> shell_;
};

TEST_F(Shell, LendsMonitorsAndTakesThemBackByItself) {
    startWith(R"({"lends": "ok", "lut": 1024})");
    EXPECT_TRUE(becomes("II"));
    EXPECT_EQ(display("rampSize"), 1024);
    EXPECT_TRUE(journalsIn(session_).empty());
    EXPECT_TRUE(childrenNamed(nocturo_->id(), "nocturo-bus-guard").empty());
    ask("Change");
    EXPECT_TRUE(becomes("II"));
    ctl({"off"});
    EXPECT_TRUE(becomes("oo"));
    ctl({"on"});
    EXPECT_TRUE(becomes("II"));
    ask("TakeBack"); // so soon that they are not asked for again at once
    EXPECT_TRUE(becomes("oo"));
    ctl({"off"});
    ctl({"on"});
    EXPECT_TRUE(becomes("II"));
    nocturo_->signal(SIGKILL);
    EXPECT_TRUE(becomes("oo"));
}

TEST_F(Shell, LendsNoMonitorThatAnotherProgramHas) {
    startWith(R"({"lends": "busy"})");
    EXPECT_EQ(display("heldByOther"), true);
    EXPECT_TRUE(becomes("oo"));
}

TEST_F(Shell, IsWrittenDirectlyWhereItLendsNone) {
    startWith(R"({"lends": "never", "ramps": "none"})");
    EXPECT_TRUE(becomes("ii"));
    EXPECT_EQ(display("rampSize"), 4096);
    EXPECT_EQ(journalsIn(session_).size(), 1U);
    EXPECT_TRUE(
        waitUntil([&] { return childrenNamed(nocturo_->id(), "display-keeper").size() == 1; }));
    end();

    startWith(R"({"names": "cinnamon"})", "org.cinnamon.Muffin.DisplayConfig");
    EXPECT_TRUE(becomes("ii"));
    end();
    EXPECT_TRUE(becomes("oo"));
}

TEST_F(Shell, IsChangedAllTheSameOnAFullDisk) {
    startShell("{}");
    startOnFullDisk(kGnome);
    EXPECT_TRUE(becomes("ii"));
    EXPECT_TRUE(nocturo_->waitForError("if Nocturo is killed, the displays keep its effect"));
    EXPECT_TRUE(journalsIn(session_).empty());
    freeDisk();
    ctl({"effects", "only", "dim"});
    EXPECT_EQ(journalsIn(session_).size(), 1U);
    nocturo_->signal(SIGKILL);
    EXPECT_TRUE(becomes("oo"));
    reapGuards();
}

TEST_F(Shell, MayHangWithoutHangingAnybodyElse) {
    startWith("{}");
    EXPECT_TRUE(becomes("ii"));
    shell_->signal(SIGSTOP);
    ctl({"off"});
    ctl({"on"});
    ctl({"off"});
    shell_->signal(SIGCONT);
    EXPECT_TRUE(becomes("oo"));
    ctl({"on"});
    EXPECT_TRUE(becomes("ii"));
    shell_->signal(SIGSTOP);
    end();
    shell_->signal(SIGCONT);
    EXPECT_TRUE(becomes("oo")); // by the guard
    EXPECT_TRUE(waitUntil([&] { return journalsIn(session_).empty(); }));
}

TEST_F(Shell, IsFoundAgainOnABusThatRestarts) {
    startWith("{}");
    EXPECT_TRUE(becomes("ii"));
    shell_->signal(SIGKILL);
    shell_->wait();
    session_.bus().end();
    session_.bus().start();
    startShell("{}");
    EXPECT_TRUE(becomes("ii"));
    end();
    EXPECT_TRUE(becomes("oo"));
}

TEST_F(Shell, MayAnswerWhatNobodyExpects) {
    for (const char* odd : {R"({"ramps": "uneven"})", R"({"size": 1})", R"({"outputs": 0})"}) {
        startWith(odd);
        for (const auto& told : status()["displays"]) {
            EXPECT_EQ(told["rampSize"], 0) << odd;
        }
        end();
    }
    startShell(R"({"words": true})");
    EXPECT_EQ(refusal().find("nocturo: GNOME does not tell Nocturo of its displays."), 0U);
    startShell(R"({"vendor": "MetaProducts Inc."})");
    EXPECT_EQ(refusal().find("nocturo: GNOME offers Nocturo no way to change"), 0U);
    shell_.reset();
    EXPECT_EQ(refusal().find("nocturo: Neither GNOME nor Cinnamon is on the session bus."), 0U);
}
