// nocturoctl and the command line of nocturo, as users and scripts meet them.

#include "nocturo_test.h"

#include <iterator>
#include <sstream>

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
    const char* lines[] = {"nocturo --display-services=nonsense",
                           "nocturo --display-services=simulated:0",
                           "nocturo --display-services=simulated:17",
                           "nocturo --display-services=simulated:",
                           "nocturo --display-services",
                           "nocturo --nonsense",
                           "nocturoctl",
                           "nocturoctl nonsense",
                           "nocturoctl on now",
                           "nocturoctl status --xml",
                           "nocturoctl effects add",
                           "nocturoctl effects only nonsense",
                           "nocturoctl get Nonsense",
                           "nocturoctl set Nonsense 1",
                           "nocturoctl set UseHotKey 1",
                           "nocturoctl set HotKeyCode 1.5",
                           "nocturoctl set NDDimEffectLevel nan",
                           "nocturoctl set NDDimEffectLevel 1e99",
                           "nocturoctl set NDDimEffectLevel -0,5",
                           "nocturoctl set NDDimEffectLevel -1.01",
                           "nocturoctl set NDColorFilterEffectHue 361",
                           "nocturoctl set AffectedScreenSet 1,x",
                           "nocturoctl set AffectedScreenSet 2147483648",
                           "nocturoctl set NDGroupEffect NDGroupEffect",
                           "nocturoctl reset Nonsense"};
    for (const char* line : lines) {
        SCOPED_TRACE(line);
        std::istringstream words(line);
        std::string program;
        words >> program;
        const RunResult result =
            session_.run(program, {std::istream_iterator<std::string>(words), {}});
        EXPECT_EQ(result.exit, 2);
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(std::count(result.errors.begin(), result.errors.end(), '\n'), 1) << result.errors;
    }
}

TEST_F(Control, WithoutDisplaysOrNocturoItSaysWhatToDo) {
    const auto says = [&](const char* program, const Arguments& arguments, int exit,
                          const std::string& part) {
        const RunResult result = session_.run(program, arguments);
        EXPECT_EQ(result.exit, exit) << Json(arguments);
        EXPECT_NE((result.output + result.errors).find(part), std::string::npos)
            << Json(arguments) << result.output << result.errors;
    };
    says("nocturo", {}, 1, "--display-services=simulated");
    const std::string dead = session_.environment()["DISPLAY"] = freeDisplay();
    says("nocturo", {"--display-services=randr"}, 1, dead);
    says("nocturo", {"--help"}, 0, "Usage: nocturo");
    says("nocturo", {"--version"}, 0, "nocturo " NOCTURO_VERSION "\n");
    for (const Arguments& verb : {Arguments{"on"}, {"quit"}, {"watch"}, {"screens", "all"}}) {
        says("nocturoctl", verb, 3, "start it with");
    }
    says("nocturoctl", {"status", "--json"}, 3, "\"running\":false");
    for (const std::string verb : {"on", "off", "toggle", "status", "effects", "get", "set",
                                   "reset", "screens", "watch", "quit"}) {
        says("nocturoctl", {verb, "--help"}, 0, "Usage: nocturoctl " + verb);
    }
    session_.environment()["LANGUAGE"] = "de";
    says("nocturo", {"--help"}, 0, "Aufruf: nocturo ");
    says("nocturoctl", {"restore"}, 1, "nocturoctl: Der X-Server");
}

TEST_F(ControlOfRunning, SettingsGoThereAndBack) {
    const auto directory = session_.runtimeDirectory() / "nocturo";
    EXPECT_EQ(nocturo_->readLine(),
              "nocturo: Displays are simulated; their pictures are in " + directory.string() + ".");
    const Json before = status();
    EXPECT_EQ(before["displayServices"], "simulated");
    EXPECT_EQ(before["displays"].size(), 3U);
    EXPECT_EQ(before["settings"].size(), 16U);
    const struct {
        const char* key;
        const char* typed;
        std::string kept;
    } settings[] = {
        {"NDDimEffectLevel", "-0.3", "-0.3"},
        {"NDColorFilterEffectHue", "359.5", "359.5"},
        {"ShowStatusItem", "1", "1"},
        {"ActivateOnClick", "no", "false"},
        {"NDGroupEffect", "dim,NDInvertEffect", R"(["NDDimEffect","NDInvertEffect"])"},
        {"AffectedScreenSet", "7,1", "[1,7]"},
    };
    for (const auto& [key, typed, kept] : settings) {
        ctl({"set", key, typed});
        EXPECT_EQ(ctl({"get", key}).output, kept + "\n");
        EXPECT_EQ(status()["settings"][key].dump(), kept);
        ctl({"reset", key});
    }
    EXPECT_EQ(status(), before);
    EXPECT_NE(ctl({"status"}).output.find("SIM-3"), std::string::npos);
    EXPECT_NE(ctl({"effects"}).output.find("[ ]  dim"), std::string::npos);

    const auto pictureSize = [&] {
        return std::filesystem::file_size(directory / "display-2.png");
    };
    const auto plain = pictureSize();
    ctl({"effects", "only", "color-filter"});
    EXPECT_NE(pictureSize(), plain);

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

} // namespace

} // namespace nocturo::rig
