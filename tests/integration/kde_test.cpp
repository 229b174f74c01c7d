// The whole job in a session of KWin's kind, where an effect is the calibration of a color profile
// made for it: what the file of that profile holds, and whose profile an output has afterwards.

#include "nocturo_test.h"
#include "rig/color_profile.h"
#include "rig/compositor.h"

#include <sys/stat.h>

using namespace nocturo;
using namespace nocturo::rig;

using Kind = Compositor::Kind;
using Answer = Compositor::Answer;

Channels identity() {
    Channels channels;
    for (auto& channel : channels) {
        for (unsigned i = 0; i < 256; ++i) {
            channel.push_back(static_cast<std::uint16_t>(i * 257));
        }
    }
    return channels;
}

struct Kde : NocturoTest {
    Kde() : NocturoTest(0) {
        inheritOrphans();
        select("NDInvertEffect");
    }

    void startOn(Kind kind, std::vector<Compositor::Output> outputs = {{}}) {
        kwin_.emplace(kind, std::move(outputs));
        start();
    }
    void start() {
        session_.environment()["WAYLAND_DISPLAY"] = kwin_->display();
        nocturo_ = session_.startNocturo();
    }

    /// A profile of the user's.
    std::string profile(const std::string& name, std::string_view bytes) {
        const auto file = session_.runtimeDirectory() / name;
        writeText(file, bytes);
        return file;
    }
    std::string calibrated(unsigned number) {
        const auto bytes = colorProfile(calibration(number));
        return profile("calibrated" + std::to_string(number) + ".icc",
                       {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    }

    /// Whether the output comes to show that, by a profile that is not the user's.
    bool shows(const Channels& ramp, std::size_t output = 0) {
        return waitUntil([&] {
            const auto shown = kwin_->outputs().at(output);
            return shown.source == 1 && shown.path.find("nocturo-effect-") != std::string::npos &&
                   calibrationIn(shown.path) == ramp;
        });
    }
    bool has(const std::string& path, std::uint32_t source, std::size_t output = 0) {
        return waitUntil([&] {
            const auto kept = kwin_->outputs().at(output);
            return kept.path == path && kept.source == source;
        });
    }
    void kill(bool guardsToo) {
        EXPECT_TRUE(waitUntil([&] {
            return guardsOf(nocturo_->id(), {kProfileGuard, kSpare}).size() == 2;
        }));
        killWith(guardsToo ? kAnyGuard : std::vector<std::string>{});
        reapGuards();
        waitForTheBus();
    }
    std::string obstacle() { return status()["displays"][0]["obstacle"]; }

    std::optional<Compositor> kwin_;
};

TEST_F(Kde, ShowsTheEffectOnTheUsersCalibrationAndGivesTheProfileBack) {
    for (const Kind kind : {Kind::kwin, Kind::kwinWithRegistry}) {
        const std::string own = calibrated(1);
        startOn(kind, {{.name = "DP-1", .path = own, .source = 1}, {.name = "DP-2", .source = 2}});
        EXPECT_TRUE(shows(reversed(calibration(1))));
        EXPECT_TRUE(shows(reversed(identity()), 1));
        EXPECT_EQ(status()["displayServices"], "kde");
        EXPECT_TRUE(status()["displays"][0]["applied"]);
        const std::string other = calibrated(2);
        kwin_->change([&](auto& output) { output.path = other; });
        EXPECT_TRUE(shows(reversed(calibration(1)))); // an effect never jumps
        ctl({"off"});
        EXPECT_TRUE(has(other, 1) && has("", 2, 1)); // as soon as it has answered
        ctl({"on"});
        EXPECT_TRUE(shows(reversed(calibration(2))));

        end();
        EXPECT_TRUE(has(other, 1) && has("", 2, 1));
        EXPECT_EQ(kwin_->mostAtATime(), 1);
        EXPECT_TRUE(
            session_.run("ls", {session_.runtimeDirectory() / "nocturo"}).output.find("effect") ==
            std::string::npos);
    }
}

TEST_F(Kde, SendsOnlyTheNewestWhileKWinTakesItsTime) {
    startOn(Kind::kwinWithRegistry);
    ASSERT_TRUE(shows(reversed(identity())));
    kwin_->setAnswer(Answer::waits);
    const int before = kwin_->configurations();
    ctl({"effects", "only", "dim"});
    for (const std::string level : {"-0.1", "-0.2", "-0.3", "-0.4"}) {
        ctl({"set", "NDDimEffectLevel", level});
    }
    ctl({"effects", "only", "invert"});
    ctl({"effects", "add", "overexposure"});
    ctl({"effects", "only", "invert"});
    EXPECT_EQ(kwin_->configurations(), before + 1);
    kwin_->setAnswer(Answer::takes);
    EXPECT_TRUE(shows(reversed(identity())));
    EXPECT_LE(kwin_->configurations(), before + 2);
    EXPECT_EQ(kwin_->mostAtATime(), 1);
}

TEST_F(Kde, GivesTheProfileBackAfterKills) {
    const std::string own = calibrated(1);
    startOn(Kind::kwinWithRegistry, {{.path = own, .source = 1}});
    ASSERT_TRUE(shows(reversed(calibration(1))));
    kill(false);
    EXPECT_TRUE(has(own, 1));

    start();
    ASSERT_TRUE(shows(reversed(calibration(1))));
    kill(true);
    EXPECT_TRUE(shows(reversed(calibration(1))));
    ctl({"restore"});
    EXPECT_TRUE(has(own, 1));

    // With everything gone but what KWin and Nocturo keep on the disk, as after a power cut.
    start();
    ASSERT_TRUE(shows(reversed(calibration(1))));
    kill(true);
    const auto kept = kwin_->outputs();
    std::filesystem::remove_all(session_.runtimeDirectory() / "nocturo");
    kwin_.emplace(Kind::kwin, kept);
    session_.writeSettings("<key>EffectActive</key><false/>");
    start();
    EXPECT_TRUE(has(own, 1));
    const auto state = session_.settingsFile().parent_path() / "../../STATE/nocturo";
    EXPECT_TRUE(waitUntil([&] { return namesIn(state).empty(); }));
}

TEST_F(Kde, ChangesNothingOnAFullDisk) {
    const std::string own = calibrated(1);
    kwin_.emplace(Kind::kwin, std::vector<Compositor::Output>{{.path = own, .source = 1}});
    session_.environment()["WAYLAND_DISPLAY"] = kwin_->display();
    startOnFullDisk();
    EXPECT_TRUE(nocturo_->waitForError("No effect can be shown on DP-1: "));
    EXPECT_EQ(obstacle(), "refused");
    EXPECT_EQ(kwin_->configurations(), 0);
    freeDisk();
    ctl({"off"});
    ctl({"on"});
    EXPECT_TRUE(shows(reversed(calibration(1))));
    kill(false);
    EXPECT_TRUE(has(own, 1));
}

TEST_F(Kde, FollowsOutputsThatComeAndGoWithTheProfileThatTheyWereLeft) {
    for (const Kind kind : {Kind::kwin, Kind::kwinWithRegistry}) {
        const std::string own = calibrated(1);
        startOn(kind, {{}, {.name = "DP-2", .path = own, .source = 1}});
        ASSERT_TRUE(shows(reversed(calibration(1)), 1));
        const auto left = kwin_->outputs().back();
        kwin_->unplug();
        EXPECT_TRUE(waitUntil([&] { return status()["displays"].size() == 1; }));
        kwin_->plug({.name = "DP-3"});
        EXPECT_TRUE(shows(reversed(identity()), 1));
        kwin_->plug(left);
        EXPECT_TRUE(shows(reversed(calibration(1)), 2));
        kwin_->unplug();
        ctl({"off"});
        kwin_->plug(left); // KWin keeps what it had
        EXPECT_TRUE(has(own, 1, 2));
        end();
    }
}

TEST_F(Kde, TellsOfOutputsThatShowNothing) {
    startOn(Kind::kwin, {{.takesProfiles = false}});
    EXPECT_EQ(obstacle(), "takes-no-profile");
    EXPECT_EQ(kwin_->configurations(), 0);
    kwin_->change([](auto& output) { output.takesProfiles = output.highDynamicRange = true; });
    EXPECT_TRUE(waitUntil([&] { return obstacle() == "high-dynamic-range"; }));
    EXPECT_FALSE(status()["displays"][0]["applied"]);
    EXPECT_NE(ctl({"screens"}).output.find("in HDR mode"), std::string::npos);

    kwin_->change([](auto& output) { output.highDynamicRange = false; });
    for (const Answer answer : {Answer::refuses, Answer::takesNothing}) {
        ctl({"off"});
        kwin_->setAnswer(answer);
        ctl({"on"});
        EXPECT_TRUE(waitUntil([&] { return obstacle() == "refused"; }));
        EXPECT_FALSE(status()["displays"][0]["applied"]);
        kwin_->setAnswer(Answer::takes);
    }
    EXPECT_TRUE(nocturo_->waitForError("on DP-1: It is no good."));
    ctl({"off"});
    ctl({"on"});
    EXPECT_TRUE(shows(reversed(identity())));
    EXPECT_EQ(obstacle(), "");
}

TEST_F(Kde, TakesPlainColorsWhereTheUsersProfileIsOfNoUse) {
    std::string huge = calibrated(1);
    std::filesystem::resize_file(huge, std::uintmax_t{1} << 30U);
    const std::string pipe = session_.runtimeDirectory() / "pipe.icc";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    for (const std::string& own :
         {profile("junk.icc", std::string(5000, 'j')), huge, pipe, std::string("/nowhere.icc")}) {
        startOn(Kind::kwin, {{.path = own, .source = 1}});
        EXPECT_TRUE(shows(reversed(identity()))) << own;
        EXPECT_TRUE(nocturo_->waitForError("The color profile " + own + " is not used")) << own;
        end();
        EXPECT_TRUE(has(calibrationIn(own) ? own : "", calibrationIn(own) ? 1 : 0)) << own;
    }
}

TEST_F(Kde, SaysWhatToUseInPlasma5AndEndsWhereKWinHangsUp) {
    const Compositor plasma5(Kind::plasma5, {{}});
    session_.environment()["WAYLAND_DISPLAY"] = plasma5.display();
    says("nocturo", {}, 1, "choose its X11 session");

    startOn(Kind::kwin);
    ASSERT_TRUE(shows(reversed(identity())));
    kwin_->setAnswer(Answer::hangsUp);
    ctl({"effects", "only", "dim"});
    EXPECT_EQ(nocturo_->wait(), 1);
    EXPECT_NE(readText(session_.settingsFile()).find("NDDimEffect"), std::string::npos);
    kwin_->setAnswer(Answer::takes);
    EXPECT_TRUE(has("", 0));
}

TEST_F(Kde, DrivesNoOutputOfAnAbsurdRampSizeOrOfNone) {
    for (const std::uint32_t size : {0U, 1U, 1U << 31U}) {
        const Compositor compositor(Kind::wlr, {{}}, size);
        session_.environment()["WAYLAND_DISPLAY"] = compositor.display();
        nocturo_ = session_.startNocturo();
        EXPECT_TRUE(waitUntil([&] { return status()["displays"][0]["rampSize"] == 0; })) << size;
        EXPECT_FALSE(status()["displays"][0]["applied"]);
        EXPECT_EQ(compositor.configurations(), 0);
        end();
    }
    Compositor compositor(Kind::wlr, {{}});
    session_.environment()["WAYLAND_DISPLAY"] = compositor.display();
    compositor.setAnswer(Answer::waits);
    nocturo_ = session_.startNocturo();
    EXPECT_TRUE(waitUntil([&] { return obstacle() == "refused"; }));
    end();
    compositor.setAnswer(Answer::hangsUp);
    nocturo_ = session_.start("nocturo");
    EXPECT_EQ(nocturo_->wait(), 1);
    EXPECT_NE(nocturo_->errors().find("The display server has gone"), std::string::npos);
}
