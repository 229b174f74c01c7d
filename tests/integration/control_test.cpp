// nocturoctl and the command line of nocturo, as users and scripts meet them.

#include "base/file_descriptor.h"
#include "nocturo_test.h"

#include <array>
#include <cstring>
#include <functional>
#include <iostream>
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

/// Answers in Nocturo's name what `answer` appends to each reply.
class OddNocturo {
  public:
    using Answer = std::function<void(sd_bus_message* reply)>;

    explicit OddNocturo(const SessionBus& bus) : bus_(bus.connect()) {
        sd_bus_add_filter(bus_.get(), nullptr, handle, this);
        EXPECT_GE(sd_bus_request_name(bus_.get(), "org.nocturo.Nocturo", 0), 0);
    }

    RunResult answer(Session& session, const Arguments& arguments, Answer answer) {
        answer_ = std::move(answer);
        const auto caller = session.start("nocturoctl", arguments);
        while (caller->isRunning()) {
            sd_bus_wait(bus_.get(), 2000);
            sd_bus_process(bus_.get(), nullptr);
        }
        return {caller->wait().value_or(-1), caller->output(), caller->errors()};
    }

  private:
    static int handle(sd_bus_message* call, void* self, sd_bus_error* /*error*/) {
        sd_bus_message* reply = nullptr;
        if (sd_bus_message_is_method_call(call, nullptr, nullptr) == 0 ||
            sd_bus_message_new_method_return(call, &reply) < 0) {
            return 0;
        }
        static_cast<OddNocturo*>(self)->answer_(reply);
        sd_bus_send(nullptr, reply, nullptr);
        sd_bus_message_unref(reply);
        return 1;
    }

    SessionBus::Bus bus_;
    Answer answer_;
};

/// What GetAll answers, but that the display is called so and "Effects" is what `effects` appends.
void appendProperties(sd_bus_message* reply, const char* name,
                      const std::function<void()>& effects) {
    sd_bus_message_open_container(reply, 'a', "{sv}");
    sd_bus_message_append(reply, "{sv}{sv}{sv}{sv}{sv}", "Active", "b", 1, "DisplayServices", "s",
                          "odd", "DimLevel", "d", 0.0, "ColorFilterHue", "d", 0.0,
                          "ColorFilterVividness", "d", 0.0);
    sd_bus_message_append(reply, "{sv}{sv}{sv}{sv}{sv}", "AffectedScreenSet", "ax", 0, "HotKey",
                          "a{sv}", 0, "Settings", "a{sv}", 0, "Disturbances", "u", 0U, "Disturber",
                          "s", "");
    sd_bus_message_append(reply, "{sv}", "Displays", "aa{sv}", 1, 7, "number", "i", 1, "id", "u",
                          7U, "name", "s", name, "main", "b", 1, "rampSize", "u", 256U, "affected",
                          "b", 1, "applied", "b", 0);
    sd_bus_message_append(reply, "{sv}", "", "v", "g", "a{sv}"); // a later Nocturo may tell more
    effects();
    sd_bus_message_close_container(reply);
}

TEST_F(Control, OddAnswersAreTakenAsSuch) {
    OddNocturo odd(session_.bus());
    const auto effects = [](sd_bus_message* reply, auto... value) {
        return [=] { sd_bus_message_append(reply, "{sv}", "Effects", value...); };
    };
    const OddNocturo::Answer answers[] = {
        [](sd_bus_message*) {},
        [](sd_bus_message* reply) { sd_bus_message_append(reply, "s", "yes"); },
        [](sd_bus_message* reply) { sd_bus_message_append(reply, "a{sv}", 0); },
        [&](sd_bus_message* reply) { appendProperties(reply, "x", [] {}); },
        [&](sd_bus_message* reply) { appendProperties(reply, "x", effects(reply, "s", "dim")); },
        [&](sd_bus_message* reply) { appendProperties(reply, "x", effects(reply, "as", 0)); },
        [&](sd_bus_message* reply) { appendProperties(reply, "x", effects(reply, "ai", 1, 5)); },
    };
    for (const Arguments& verb : {Arguments{"status"},
                                  {"status", "--json"},
                                  {"effects"},
                                  {"screens"},
                                  {"hotkey"},
                                  {"watch"},
                                  {"screens", "toggle", "1"},
                                  {"preview", "--png", "/dev/null"}}) {
        for (std::size_t i = 0; i < std::size(answers); ++i) {
            SCOPED_TRACE(verb.back() + std::to_string(i));
            if (i == 5) {
                continue; // all is well there
            }
            const RunResult result = odd.answer(session_, verb, answers[i]);
            EXPECT_EQ(result.exit, 1);
            EXPECT_EQ(result.output, "");
            EXPECT_EQ(result.errors, "nocturoctl: Nocturo answered something that this version "
                                     "does not understand.\n");
        }
    }
    const std::string name = odd.answer(session_, {"screens"},
                                        [&](sd_bus_message* reply) {
                                            appendProperties(reply, "\033]0;\302\233\b\303\251",
                                                             effects(reply, "as", 0));
                                        })
                                 .output;
    EXPECT_NE(name.find("\\u001b]0;\\u009b\\u0008\303\251"), std::string::npos) << name;
}

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
    EXPECT_EQ(before["settings"].size(), 23U);
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

struct BusTrouble : NocturoOnX {
    BusTrouble() : NocturoOnX(2) { select("NDInvertEffect"); }
    ~BusTrouble() override { session_.bus().signal(SIGCONT); }

    std::vector<std::unique_ptr<Process>> floods(const Arguments& kinds) {
        std::vector<std::unique_ptr<Process>> started;
        for (const std::string& kind : kinds) {
            started.push_back(session_.start("caller", {kind}));
        }
        return started;
    }

    /// Others call it without end for so long, and once more while it is to end.
    void flood(Milliseconds time) {
        nocturo_ = session_.startNocturo();
        ctl({"status"});
        const long before = kilobytesOf("Rss:");
        auto others = floods({"toggle", "ask", "open"});
        EXPECT_FALSE(nocturo_->wait(time)) << "it ended by itself";
        others.clear();
        // Behind what waits in the bus's own queue, of however many calls a busy machine sent.
        EXPECT_TRUE(waitUntil([&] { return session_.run("nocturoctl", {"on"}).exit == 0; },
                              5 * kPatience + time))
            << "deaf for longer than it was called";
        EXPECT_TRUE(becomes("ii"));
        EXPECT_TRUE(waitUntil([&] { return kilobytesOf("Rss:") <= before * 11 / 10; }))
            << before << kilobytesOf("Rss:");
        others = floods({"ask", "open"});
        EXPECT_FALSE(nocturo_->wait(Milliseconds(500)));
        std::cout << "Rss " << before << " kB, afterwards " << kilobytesOf("Rss:") << " kB; ";
        nocturo_->signal(SIGTERM);
        const auto start = std::chrono::steady_clock::now();
        EXPECT_TRUE(allOwnWithin(Milliseconds(200)));
        std::cout << "SIGTERM gave the displays back in "
                  << (std::chrono::steady_clock::now() - start) / Milliseconds(1) << " ms\n";
        EXPECT_EQ(nocturo_->wait(), 0);
    }

    /// So many changes while a hook does not end and those who follow are not read.
    void neglect(int changes) {
        nocturo_ = session_.startNocturo();
        const auto hook = session_.settingsFile().parent_path() / "hooks/endless";
        std::filesystem::create_directory(hook.parent_path());
        writeText(hook, "#!/bin/sh\nexec sleep 1000\n");
        std::filesystem::permissions(hook, std::filesystem::perms::owner_all);
        const auto watch = session_.start("nocturoctl", {"watch"});
        const auto bar = session_.start("nocturoctl", {"status", "--bar", "--follow"});
        ctl({"off"});
        std::vector<pid_t> hooks;
        const auto isRunning = [&] {
            hooks = childrenNamed(nocturo_->id(), "sleep");
            return hooks.size() == 1;
        };
        EXPECT_TRUE(waitUntil(isRunning));
        const long before = kilobytesOf("Rss:");
        EXPECT_EQ(
            session_.run("caller", {"toggle", std::to_string(changes + 1)}, 6 * kPatience).exit, 0);
        EXPECT_TRUE(becomes("ii", Milliseconds(200)));
        EXPECT_LE(kilobytesOf("Rss:"), before * 11 / 10);
        EXPECT_TRUE(isRunning());
        ::kill(hooks.at(0), SIGKILL);
        end();
    }
};

TEST_F(BusTrouble, HooksAndReadersThatNeverEndCostNothing) {
    neglect(1000);
}

TEST_F(BusTrouble, SoakOfTenThousandNeglectedChanges) {
    neglect(10000);
}

TEST_F(BusTrouble, MindsSignalsAndGivesBackWhatItTook) {
    flood(Milliseconds(1000));
}

TEST_F(BusTrouble, SoakOfAMinute) {
    flood(Milliseconds(60000));
}

TEST_F(BusTrouble, BusThatHangsDelaysNothing) {
    session_.bus().signal(SIGSTOP);
    nocturo_ = session_.start("nocturo");
    EXPECT_TRUE(becomes("ii", Milliseconds(1000)));
    EXPECT_EQ(session_.run("nocturo").exit, 0); // a second start, told by the lock
    EXPECT_TRUE(allOwnWithin());
    EXPECT_EQ(session_.run("nocturo").exit, 0);
    EXPECT_TRUE(becomes("ii"));
    session_.bus().signal(SIGCONT);
    EXPECT_TRUE(waitUntil([&] { return session_.run("nocturoctl", {"status"}).exit == 0; }));
    session_.bus().signal(SIGSTOP);
    nocturo_->signal(SIGTERM);
    EXPECT_TRUE(allOwnWithin(Milliseconds(200)));
    EXPECT_EQ(nocturo_->wait(Milliseconds(1000)), 0);
}

TEST_F(BusTrouble, BusThatRestartsIsJoinedAgain) {
    nocturo_ = session_.startNocturo();
    for (const char* now : {"oo", "ii"}) {
        session_.bus().end();
        session_.bus().start();
        EXPECT_TRUE(waitUntil([&] { return session_.run("nocturoctl", {"toggle"}).exit == 0; }));
        EXPECT_TRUE(becomes(now)) << shown();
    }
}

TEST_F(BusTrouble, OneNocturoDrivesTheDisplays) {
    nocturo_ = session_.startNocturo();
    ASSERT_TRUE(becomes("ii"));
    ctl({"off"});
    const SessionBus other;
    session_.environment()["DBUS_SESSION_BUS_ADDRESS"] = other.address();
    session_.environment()["XDG_RUNTIME_DIR"] = session_.environment()["HOME"];
    says("nocturo", {}, 1, "Another Nocturo");
    EXPECT_TRUE(allOwnWithin(Milliseconds(0)));
    nocturo_->signal(SIGKILL); // which the server hears of a little later
    nocturo_ = session_.start("nocturo");
    EXPECT_TRUE(becomes("ii"));
}
