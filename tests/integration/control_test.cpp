// nocturoctl and the command line of nocturo, as users and scripts meet them.

#include "base/file_descriptor.h"
#include "nocturo_test.h"

#include <array>
#include <cstring>
#include <iterator>
#include <sstream>

#include <sys/inotify.h>
#include <unistd.h>

#include <systemd/sd-bus.h>

using namespace nocturo;
using namespace nocturo::rig;

using Json = nlohmann::json;
using Arguments = std::vector<std::string>;

struct Control : NocturoTest {
    Control() : NocturoTest(0) {}

    RunResult run(const std::string& line) {
        std::istringstream words(line);
        std::string program;
        words >> program;
        return session_.run(program, {std::istream_iterator<std::string>(words), {}});
    }
};

struct ControlOfRunning : Control {
    ControlOfRunning() { nocturo_ = session_.startNocturo({"--display-services=simulated:3"}); }
};

TEST_F(ControlOfRunning, SaysSoWhenItCannotWriteOrIsNotAnswered) {
    says("sh", {"-c", NOCTURO_BIN_DIR "/nocturoctl status > /dev/full"}, 1, "cannot be written");
    nocturo_->signal(SIGSTOP);
    const RunResult stopped = session_.run("nocturoctl", {"off"}, Milliseconds(7000));
    nocturo_->signal(SIGCONT);
    EXPECT_EQ(stopped.exit, 1);
    EXPECT_NE(stopped.errors.find("does not answer"), std::string::npos) << stopped.errors;
}

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
                           "nocturoctl reset Nonsense",
                           "nocturoctl temperature warm",
                           "nocturoctl dim dark",
                           "nocturoctl dim 101%",
                           "nocturoctl tint 400",
                           "nocturoctl tint 25 120%",
                           "nocturoctl effects none dim",
                           "nocturoctl set NDDimEffectLevel -101%",
                           "nocturoctl help nonsense",
                           "nocturoctl look save",
                           "nocturoctl look rename Mine",
                           "nocturoctl look move Mine first"};
    for (const char* line : lines) {
        SCOPED_TRACE(line);
        const RunResult result = run(line);
        EXPECT_EQ(result.exit, 2);
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(std::count(result.errors.begin(), result.errors.end(), '\n'), 1) << result.errors;
    }
}

TEST_F(Control, WithoutDisplaysOrNocturoItSaysWhatToDo) {
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
    EXPECT_EQ(before["settings"].size(), 24U);
    const struct {
        const char* key;
        const char* typed;
        std::string kept;
    } settings[] = {
        {"NDDimEffectLevel", "-0.3", "-0.3"},
        {"NDDimEffectLevel", "\u221230 %", "-0.3"},
        {"NDColorFilterEffectHue", "359.5", "359.5"},
        {"ShowStatusItem", "1", "1"},
        {"ActivateOnClick", "no", "false"},
        {"NDGroupEffect", "dim,NDInvertEffect", R"(["NDDimEffect","NDInvertEffect"])"},
        {"AffectedScreenSet", "7,1", "[1,7]"},
    };
    for (const auto& [key, typed, kept] : settings) {
        ctl({"set", key, typed, "--force"});
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

// What each of these lines does to members of the status, in order, one after the other.
TEST_F(ControlOfRunning, EachVerbDoesWhatItSays) {
    const struct {
        const char* line;
        const char* member;
        const char* becomes;
    } steps[] = {
        {"effects add color-filter", "temperature", "3500"},
        {"temperature 2700", "temperature", "2700"},
        {"temperature +250", "temperature", "2950"},
        {"temperature -30000", "temperature", "1000"},
        {"set NDColorFilterEffectHue 200", "temperature", "0"},
        {"effects only invert", "effects", R"(["NDInvertEffect"])"},
        {"look Just dimmer", "effects", R"(["NDDimEffect"])"},
        {"look save Mine", "look", R"("Mine")"},
        {"look rename Mine Dusk", "look", R"("Dusk")"},
        {"look delete Dusk", "look", R"("Just dimmer")"},
        {"look back", "effects", R"(["NDInvertEffect"])"},
        {"temperature -250", "temperature", "6250"},
        {"dim 30%", "dimLevel", "-0.3"},
        {"dim -5", "dimLevel", "-0.35"},
        {"dim +200%", "dimLevel", "1.0"},
        {"dim =-0.5%", "dimLevel", "-0.005"},
        {"effects remove dim", "effects", R"(["NDInvertEffect","NDColorFilterEffect"])"},
        {"dim -10%", "dimLevel", "-0.1"},
        {"step NDDimEffectLevel -5%", "dimLevel", "-0.15"},
        {"step NDColorFilterEffectVividness +9", "colorFilterVividness", "1.0"},
        {"tint 25 40%", "colorFilterVividness", "0.4"},
        {"tint -50 +5%", "colorFilterHue", "335.0"},
        {"effects none", "effects", "[]"},
        {"effects toggle Invert DIM", "effects", R"(["NDInvertEffect","NDDimEffect"])"},
        {"effects toggle dim", "effects", R"(["NDInvertEffect"])"},
        {"temperature 6500K", "effects", R"(["NDInvertEffect","NDColorFilterEffect"])"},
    };
    for (const auto& [line, member, becomes] : steps) {
        EXPECT_EQ(run("nocturoctl " + std::string(line)).exit, 0) << line;
        EXPECT_EQ(status()[member].dump(), becomes) << line;
    }
    EXPECT_EQ(ctl({"temperature"}).output, "6500 K\n");
    const auto begins = [&](const std::string& sentence) {
        const std::string report = ctl({"status"}).output;
        EXPECT_EQ(report.substr(0, report.find('\n')), sentence);
    };
    ctl({"dim", "12.5%"});
    begins("On: Invert, Dim \u221212.5 %, 6500 K on all screens");
    ctl({"screens", "remove", "SIM-1"});
    begins("On: Invert, Dim \u221212.5 %, 6500 K on SIM-2, SIM-3");
    ctl({"screens", "only", "1", "2"});
    ctl({"screens", "remove", "2"});
    ctl({"screens", "add", "3"});
    ctl({"effects", "only", "overexposure"});
    begins("On: Overexpose on SIM-1, SIM-3");
    ctl({"effects", "none"});
    begins("On, but no effect is chosen");
    ctl({"off"});
    begins("Off. Choose effects, then switch on");
    EXPECT_EQ(ctl({"status"}).output.find("NDGroupEffect"), std::string::npos);
    EXPECT_NE(ctl({"status", "--all"}).output.find("NDGroupEffect"), std::string::npos);
    for (const char* refused :
         {"screens only 4", "screens remove 1 3", "set AffectedScreenSet 2", "step UseHotKey +1"}) {
        EXPECT_EQ(run("nocturoctl " + std::string(refused)).exit, 2) << refused;
    }
    says("nocturoctl", {"open", "/nowhere"}, 1, "no such file");
    end();
    nocturo_ = session_.startNocturo({"--display-services=simulated:2"});
    EXPECT_EQ(status()["absentDisplays"][0]["name"], "SIM-3");
    says("nocturoctl", {"screens"}, 0, "SIM-3    not connected\n");
}

TEST_F(ControlOfRunning, CallersAtOnceLoseNoChange) {
    ctl({"tint", "0", "50%"});
    std::vector<std::unique_ptr<Process>> callers;
    for (int i = 0; i < 4; ++i) {
        callers.push_back(session_.start("nocturoctl", {"tint", "+25"}));
        callers.push_back(session_.start("nocturoctl", {"effects", "toggle", "invert"}));
    }
    for (const std::string display : {"1", "2"}) {
        callers.push_back(session_.start("nocturoctl", {"screens", "remove", display}));
    }
    for (const auto& caller : callers) {
        EXPECT_EQ(caller->wait(), 0) << caller->errors();
    }
    const Json after = status();
    EXPECT_EQ(after["colorFilterHue"], 100.0);
    EXPECT_EQ(after["effects"], Json::array({"NDColorFilterEffect"}));
    EXPECT_EQ(after["affectedScreenSet"], Json::array({after["displays"][2]["id"]}));
    EXPECT_EQ(ctl({"tint", "-50", "+5%"}).output, "50.0\u00B0  55 %\n");
}

// Nothing between two combinations of effects is ever on a display.
TEST_F(ControlOfRunning, ALookOrADocumentIsOneWriteADisplay) {
    const auto directory = session_.runtimeDirectory() / "nocturo";
    const FileDescriptor events(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
    ::inotify_add_watch(events.get(), directory.c_str(), IN_MOVED_TO);
    const auto picturesSince = [&] {
        std::array<char, 65536> buffer{};
        const ssize_t size = ::read(events.get(), buffer.data(), buffer.size());
        int count = 0;
        for (ssize_t at = 0; at < size;) {
            inotify_event event{};
            std::memcpy(&event, buffer.data() + at, sizeof event);
            count += std::string(buffer.data() + at + sizeof event).starts_with("display-") ? 1 : 0;
            at += static_cast<ssize_t>(sizeof event + event.len);
        }
        return count;
    };
    const std::string document = directory / "evening.nocturo";
    ctl({"look", "Night", "reading"});
    ctl({"save", document});
    for (const Arguments& line : {Arguments{"look", "Red night vision"},
                                  {"look", "back"},
                                  {"look", "next"},
                                  {"open", document},
                                  {"preferences"},
                                  {"look", "Paper tint"},
                                  {"open", document}}) {
        picturesSince();
        ctl(line);
        EXPECT_EQ(picturesSince(), line[0] == "preferences" ? 0 : 3) << Json(line);
    }
    EXPECT_EQ(ctl({"look"}).output, "Night reading\n");
    EXPECT_EQ(status()["look"], "Night reading");
}

TEST_F(ControlOfRunning, SpeaksTheUsersLanguageInAlignedColumns) {
    const Json before = status();
    session_.environment()["LANGUAGE"] = "ja";
    const std::string screens = ctl({"screens"}).output;
    EXPECT_EQ(screens.find("       番号  名前   識別子"), 0U) << screens;
    EXPECT_NE(screens.find("\n  [x]  1     SIM-1  "), std::string::npos) << screens;
    EXPECT_EQ(session_.run("nocturoctl", {"look", "none"}).errors,
              "nocturoctl: 「none」というルックはありません。\n");
    EXPECT_EQ(session_.run("nocturo", {"/none"}).errors,
              "nocturo: 「/none」は効果のドキュメントではありません。\n");
    EXPECT_EQ(status(), before) << "programs read this, not people";
}

TEST_F(ControlOfRunning, WatchTellsEachChange) {
    const auto watch = session_.start("nocturoctl", {"watch"});
    std::optional<std::string> line = watch->readLine();
    ASSERT_TRUE(line);
    EXPECT_EQ(Json::parse(*line), status());
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

TEST_F(ControlOfRunning, ManySlowDocumentsHoldNobodyUp) {
    const std::string document = session_.runtimeDirectory() / "slow.nocturo";
    std::string lists;
    for (int i = 0; i < 9000; ++i) {
        lists += "<array/>";
    }
    writeText(document, "<plist version=\"1.0\"><array>" + lists + "</array></plist>");
    const auto opening = session_.start("nocturo", Arguments(500, document));
    int answered = 0;
    for (; opening->isRunning(); ++answered) {
        ctl({"get", "UseHotKey"});
    }
    EXPECT_GT(answered, 5);
    EXPECT_TRUE(opening->errors().ends_with("and 490 more\n")) << opening->errors();
    EXPECT_EQ(session_.run("nocturo", Arguments(1001, document)).errors,
              "nocturo: No more than 1000 documents can be opened at once.\n");
}

TEST_F(ControlOfRunning, WhoReadsNoAnswersIsHeardLessAndLess) {
    const auto ignored = [](sd_bus_message*, void*, sd_bus_error*) { return 0; };
    const auto bus = session_.bus().connect();
    ctl({"dim", "=-100%"});
    ctl({"off"}); // nothing is drawn
    for (int burst = 0; burst < 8; ++burst) {
        nocturo_->signal(SIGSTOP); // so that all of them wait when it goes on
        for (int call = 0; call < 150; ++call) {
            sd_bus_call_method_async(bus.get(), nullptr, "org.nocturo.Nocturo",
                                     "/org/nocturo/Nocturo", "org.nocturo.Nocturo1", "StepDim",
                                     ignored, nullptr, "d", 0.001);
        }
        sd_bus_call_method(bus.get(), "org.freedesktop.DBus", "/org/freedesktop/DBus",
                           "org.freedesktop.DBus", "GetId", nullptr, nullptr, ""); // after them
        nocturo_->signal(SIGCONT);
        status();
    }
    EXPECT_LT(status()["dimLevel"], -0.75) << "100, 50, 25 and so on of 1200";
}
