// Pauses and the schedule, of a Nocturo that runs.

#include "nocturo_test.h"

using namespace nocturo::rig;

struct Ruling : NocturoTest {
    Ruling() : NocturoTest(0) {
        select("NDInvertEffect");
        start();
    }
    void start() { nocturo_ = session_.startNocturo({"--display-services=simulated:2"}); }
    std::string ruler() { return status()["ruler"]; }
};

TEST_F(Ruling, APauseEndsByTheClockAndOutlivesARestart) {
    ctl({"pause", "1s"});
    EXPECT_TRUE(waitUntil([&] { return status()["active"] == true; }));
    ctl({"pause", "until", "tomorrow"});
    end();
    start();
    EXPECT_EQ(ruler(), "pause");
    EXPECT_EQ(ctl({"status"}).output.find("Paused until "), 0U);
    EXPECT_EQ(status()["active"], false);
    EXPECT_EQ(status()["settings"]["EffectActive"], true) << "the user's";
    ctl({"pause", "cancel"});
    EXPECT_EQ(status()["active"], true);
    says("nocturoctl", {"pause", "until", "25:61"}, 2, "25:61");
}

TEST_F(Ruling, APauseLastsAsLongAsACommand) {
    const auto paused =
        session_.run("nocturoctl", {"pause", "while", "sh", "-c",
                                    NOCTURO_BIN_DIR "/nocturoctl status --json; exit 7", "--help"});
    EXPECT_EQ(paused.exit, 7);
    EXPECT_EQ(nlohmann::json::parse(paused.output)["paused"], true);
    EXPECT_EQ(nlohmann::json::parse(paused.output)["rule"].get<std::string>().find("sh -c "), 0U);
    EXPECT_TRUE(waitUntil([&] { return ruler() == "settings"; }));
    EXPECT_EQ(session_.run("nocturoctl", {"pause", "while", "/no/such"}).exit, 1);

    const auto film = session_.start("nocturoctl", {"pause", "while", "sleep", "1000"});
    EXPECT_TRUE(waitUntil([&] { return ruler() == "pause"; }));
    end();
    start();
    EXPECT_TRUE(waitUntil([&] { return ruler() == "pause"; })) << "it goes on asking";
    film->signal(SIGKILL);
    EXPECT_TRUE(waitUntil([&] { return ruler() == "settings"; }));
    EXPECT_EQ(status()["active"], true);
}

TEST_F(Ruling, TheScheduleRulesOverTheSettings) {
    ctl({"schedule", "add", "00:00", "red", "night", "vision"});
    nocturo_.reset(); // killed; what was said to be done is on the disk
    waitForTheBus();
    start();
    EXPECT_NE(ctl({"schedule"}).output.find("not in use"), std::string::npos);
    ctl({"schedule", "on"});
    EXPECT_EQ(status()["ruledLook"], "Red night vision");
    EXPECT_EQ(
        ctl({"status"}).output.find("On: Red night vision on all screens; by the schedule until "),
        0U);
    ctl({"toggle"});
    EXPECT_EQ(ruler(), "hand");
    ctl({"schedule", "add", "00:00", "off"}); // the later one of two counts
    EXPECT_EQ(status()["active"], false);
    EXPECT_EQ(ruler(), "schedule");
    EXPECT_EQ(status()["settings"]["EffectActive"], false) << "the hand's";
    const auto next = nlohmann::json::parse(ctl({"schedule", "next", "--json"}).output);
    EXPECT_EQ(next["point"], "00:00 off");
    ctl({"schedule", "remove", "2"});
    EXPECT_EQ(ruler(), "schedule");
    EXPECT_EQ(status()["active"], true);
    for (const char* wrong : {"25:61 off", "07:00 No such look"}) {
        EXPECT_EQ(session_.run("nocturoctl", {"schedule", "add", wrong}).exit, 2) << wrong;
    }
    EXPECT_EQ(session_.run("nocturoctl", {"set", "SchedulePlace", "91N 0E"}).exit, 2);
    ctl({"set", "SchedulePlace", "52.5 13.4"});
    EXPECT_EQ(status()["settings"]["SchedulePlace"], "52.5 13.4");
    ctl({"schedule", "off"});
    EXPECT_EQ(ruler(), "settings");
    std::filesystem::remove(session_.settingsFile());
    std::filesystem::create_symlink("/proc/nowhere/settings.plist", session_.settingsFile());
    says("nocturoctl", {"rules", "off"}, 1, "cannot be saved to ");
}

TEST_F(Ruling, ADisplayHasALookOfItsOwn) {
    ctl({"screens", "look", "SIM-2", "night", "reading"});
    end();
    start();
    const std::string second = std::to_string(status()["displays"][1]["id"].get<unsigned>());
    EXPECT_EQ(status()["displays"][1]["ruledLook"], "Night reading");
    EXPECT_EQ(status()["displays"][0]["ruledLook"], "");
    EXPECT_NE(ctl({"status"}).output.find("SIM-2: Night reading, its own look"), std::string::npos);
    EXPECT_NE(ctl({"screens"}).output.find("Night reading\n"), std::string::npos);
    says("nocturoctl", {"screens", "look", "SIM-2", "No such look"}, 2, "No such look");
    says("nocturoctl", {"set", "DisplayLooks", "0 Night reading"}, 2, "0 Night reading");
    end();
    nocturo_ = session_.startNocturo({"--display-services=simulated:1"});
    ctl({"screens", "only", "1"});
    EXPECT_NE(ctl({"screens"}).output.find("not connected  Night reading\n"), std::string::npos);
    ctl({"screens", "look", "SIM-2", "just", "dimmer"}); // which is not there
    ctl({"screens", "look", second, "-"});
    EXPECT_EQ(ctl({"get", "DisplayLooks"}).output, "[]\n");
}
