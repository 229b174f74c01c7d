// nocturoctl and the command line of nocturo, as users and scripts meet them.

#include "nocturo_test.h"

namespace nocturo::rig {

namespace {

using Json = nlohmann::json;
using Arguments = std::vector<std::string>;

class Control : public NocturoTest {
  protected:
    Control() : NocturoTest(0) {}
};

class ControlOfRunning : public Control {
  protected:
    ControlOfRunning() { nocturo_ = session_.startNocturo({"--display-services=simulated:3"}); }
};

TEST_F(Control, WrongCommandLinesAreUsageErrors) {
    const std::pair<const char*, Arguments> lines[] = {
        {"nocturo", {"--display-services=nonsense"}},
        {"nocturo", {"--display-services=simulated:0"}},
        {"nocturo", {"--display-services=simulated:17"}},
        {"nocturo", {"--display-services=simulated:"}},
        {"nocturo", {"--display-services"}},
        {"nocturo", {"--nonsense"}},
        {"nocturoctl", {}},
        {"nocturoctl", {"nonsense"}},
        {"nocturoctl", {"on", "now"}},
        {"nocturoctl", {"status", "--xml"}},
        {"nocturoctl", {"effects", "add"}},
        {"nocturoctl", {"effects", "only", "nonsense"}},
        {"nocturoctl", {"get", "Nonsense"}},
        {"nocturoctl", {"set", "Nonsense", "1"}},
        {"nocturoctl", {"set", "UseHotKey", "1"}},
        {"nocturoctl", {"set", "HotKeyCode", "1.5"}},
        {"nocturoctl", {"set", "NDDimEffectLevel", "nan"}},
        {"nocturoctl", {"set", "NDDimEffectLevel", "1e99"}},
        {"nocturoctl", {"set", "NDDimEffectLevel", "-0,5"}},
        {"nocturoctl", {"set", "AffectedScreenSet", "1,x"}},
        {"nocturoctl", {"reset", "Nonsense"}},
    };
    for (const auto& [program, arguments] : lines) {
        const RunResult result = session_.run(program, arguments);
        SCOPED_TRACE(program + Json(arguments).dump());
        EXPECT_EQ(result.exit, 2);
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(std::count(result.errors.begin(), result.errors.end(), '\n'), 1) << result.errors;
    }
}

TEST_F(Control, WithoutDisplaysOrNocturoItSaysWhatToDo) {
    const RunResult noServer = session_.run("nocturo");
    EXPECT_EQ(noServer.exit, 1);
    EXPECT_NE(noServer.errors.find("--display-services=simulated"), std::string::npos);
    session_.environment()["DISPLAY"] = freeDisplay();
    const RunResult deadServer = session_.run("nocturo", {"--display-services=randr"});
    EXPECT_EQ(deadServer.exit, 1);
    EXPECT_NE(deadServer.errors.find(session_.environment()["DISPLAY"]), std::string::npos);

    for (const Arguments& verb : {Arguments{"on"}, {"quit"}, {"watch"}, {"screens", "all"}}) {
        const RunResult result = session_.run("nocturoctl", verb);
        EXPECT_EQ(result.exit, 3) << verb.front();
        EXPECT_NE(result.errors.find("start it with"), std::string::npos);
    }
    const RunResult status = session_.run("nocturoctl", {"status", "--json"});
    EXPECT_EQ(status.exit, 3);
    EXPECT_EQ(Json::parse(status.output), Json({{"running", false}}));
    for (const char* verb : {"on", "off", "toggle", "status", "effects", "get", "set", "reset",
                             "screens", "watch", "quit"}) {
        const RunResult help = session_.run("nocturoctl", {verb, "--help"});
        EXPECT_EQ(help.exit, 0);
        EXPECT_EQ(help.output.find(std::string("Usage: nocturoctl ") + verb), 0U);
    }
    EXPECT_EQ(session_.run("nocturo", {"--help"}).exit, 0);
    EXPECT_EQ(session_.run("nocturo", {"--version"}).output, "nocturo " NOCTURO_VERSION "\n");
    session_.environment()["LANGUAGE"] = "de";
    EXPECT_EQ(session_.run("nocturo", {"--help"}).output.find("Aufruf: nocturo "), 0U);
    EXPECT_EQ(session_.run("nocturoctl", {"restore"}).errors.find("nocturoctl: Der X-Server"), 0U);
}

TEST_F(ControlOfRunning, SettingsGoThereAndBack) {
    const Json before = status();
    EXPECT_EQ(before["displayServices"], "simulated");
    EXPECT_EQ(before["displays"].size(), 3U);
    EXPECT_EQ(before["settings"].size(), 16U);
    const std::pair<std::string, std::string> values[] = {
        {"NDDimEffectLevel", "-0.3"},
        {"NDColorFilterEffectHue", "359.5"},
        {"ShowStatusItem", "1"},
        {"ActivateOnClick", "false"},
        {"NDGroupEffect", R"(["NDDimEffect","NDInvertEffect"])"},
        {"AffectedScreenSet", "[1,7]"},
    };
    ctl({"set", "NDDimEffectLevel", "-0.3"});
    ctl({"set", "NDColorFilterEffectHue", "359.5"});
    ctl({"set", "ShowStatusItem", "1"});
    ctl({"set", "ActivateOnClick", "no"});
    ctl({"set", "NDGroupEffect", "dim,NDInvertEffect"});
    ctl({"set", "AffectedScreenSet", "7,1"});
    for (const auto& [key, value] : values) {
        EXPECT_EQ(ctl({"get", key}).output, value + "\n");
        EXPECT_EQ(status()["settings"][key].dump(), value);
        ctl({"reset", key});
    }
    EXPECT_EQ(status(), before);
    EXPECT_NE(ctl({"status"}).output.find("SIM-3"), std::string::npos);
    EXPECT_NE(ctl({"effects"}).output.find("[ ]  dim"), std::string::npos);

    // What nocturoctl would not let through is refused by Nocturo itself.
    const RunResult direct =
        session_.run("dbus-send", {"--session", "--print-reply", "--dest=org.nocturo.Nocturo",
                                   "/org/nocturo/Nocturo", "org.nocturo.Nocturo1.SetSetting",
                                   "string:UseHotKey", "variant:double:1"});
    EXPECT_NE(direct.errors.find("org.nocturo.Error.InvalidArgument"), std::string::npos);
}

TEST_F(ControlOfRunning, SpeaksTheUsersLanguageInAlignedColumns) {
    const Json before = status();
    session_.environment()["LANGUAGE"] = "ja";
    const std::string screens = ctl({"screens"}).output;
    EXPECT_EQ(screens.find("       番号  名前   識別子"), 0U) << screens;
    EXPECT_NE(screens.find("\n  [x]  1     SIM-1  "), std::string::npos) << screens;
    EXPECT_EQ(status(), before) << "programs read this, not people";
}

TEST_F(ControlOfRunning, WatchTellsEachChange) {
    const auto watch = session_.start("nocturoctl", {"watch"});
    std::optional<std::string> line;
    while (!line && watch->isRunning()) { // until it listens, nothing can be heard
        ctl({"toggle"});
        line = watch->readLine(Milliseconds(50));
    }
    ctl({"off"});
    ctl({"set", "NDDimEffectLevel", "0.25"});
    const Json change = {{"dimLevel", 0.25}, {"settings", {{"NDDimEffectLevel", 0.25}}}};
    while (line && Json::parse(*line) != change) {
        line = watch->readLine();
    }
    EXPECT_TRUE(line);
    ctl({"quit"});
    EXPECT_EQ(watch->wait(), 0);
    EXPECT_EQ(nocturo_->wait(), 0);
}

TEST_F(ControlOfRunning, SimulatedDisplaysDrawWhatTheyShow) {
    const auto directory = session_.runtimeDirectory() / "nocturo";
    const auto picture = directory / "display-2.png";
    EXPECT_EQ(nocturo_->readLine(),
              "nocturo: Displays are simulated; their pictures are in " + directory.string() + ".");
    ctl({"off"});
    ASSERT_TRUE(std::filesystem::exists(picture));
    const auto plainSize = std::filesystem::file_size(picture);
    ctl({"effects", "only", "color-filter"});
    ctl({"on"});
    EXPECT_NE(std::filesystem::file_size(picture), plainSize);
}

} // namespace

} // namespace nocturo::rig
