#include "nocturo_test.h"
#include "rig/sway.h"

using namespace nocturo;
using namespace nocturo::rig;

/// The module of ours that is installed for a bar, in that bar.
struct Bars : NocturoTest {
    Bars() : NocturoTest(1) {
        session_.environment()["PATH"] =
            std::filesystem::path(NOCTURO_PROGRAMS).string() + ":" + std::getenv("PATH");
        select("NDInvertEffect");
        nocturo_ = session_.startNocturo({"--display-services=simulated"});
    }

    std::string configuration(const std::string& text) {
        const auto file = session_.runtimeDirectory() / "bar";
        writeText(file, text);
        return file;
    }
    static std::string module(const std::string& file) { return NOCTURO_BARS "/" + file; }
};

TEST_F(Bars, LinesTellTheStateInEachBarsWords) {
    const auto bar = session_.start("nocturoctl", {"status", "--bar", "--follow"});
    ctl({"look", "save", "<Mine> & more"});
    ctl({"dim", "30%"});
    ctl({"screens", "only", "1"});
    EXPECT_EQ(ctl({"status", "--bar=polybar"}).output, "Invert, Dim \u221230 %\n");
    ctl({"quit"});
    EXPECT_EQ(nocturo_->wait(), 0);
    nocturo_ = session_.startNocturo({"--display-services=simulated"});
    ctl({"off"});
    const auto line = [](const std::string& text, const std::string& state, int percentage,
                         const std::string& toolTip) {
        return R"({"text":")" + text + R"(","alt":")" + state + R"(","class":")" + state +
               R"(","percentage":)" + std::to_string(percentage) + R"(,"tooltip":")" + toolTip +
               "\"}";
    };
    for (const std::string& expected :
         {line("&lt;Mine&gt; &amp; more", "on", 100, "On: Invert on all screens"),
          line("Invert, Dim \u221230 %", "on", 70, "On: Invert, Dim \u221230 % on SIM-1"),
          line("", "stopped", 100, "Nocturo is not running."),
          line("Off", "off", 100, "Off. When on: Invert, Dim \u221230 %")}) {
        std::optional<std::string> next;
        do {
            next = bar->readLine();
        } while (next && *next != expected);
        EXPECT_TRUE(next) << expected << bar->output();
    }
}

TEST_F(Bars, Polybar) {
    NEEDS("polybar");
    const std::string settings = configuration("include-file = " + module("polybar.ini") +
                                               "\n[bar/ours]\nmodules-left = nocturo\n");
    const auto bar = session_.start("polybar", {"--stdout", "--config=" + settings, "ours"});
    const auto shows = [&](const std::string& text) {
        return waitUntil(
            [&] { return bar->output().find(":}" + text + "%{A}") != std::string::npos; });
    };
    EXPECT_TRUE(shows("Invert")) << bar->output();
    ctl({"off"});
    EXPECT_TRUE(shows("Off")) << bar->output();
}

TEST_F(Bars, Waybar) {
    NEEDS("waybar");
    NEEDS("grim");
    if (!Sway::whyMissing().empty()) {
        GTEST_SKIP() << Sway::whyMissing();
    }
    Sway sway;
    session_.environment()["WAYLAND_DISPLAY"] = sway.display();
    const std::string picture = session_.runtimeDirectory() / "picture.ppm";
    const auto changesFrom = [&](const std::string& before) {
        std::string now;
        EXPECT_TRUE(waitUntil([&] {
            EXPECT_EQ(session_.run("grim", {"-t", "ppm", picture}).exit, 0);
            now = readText(picture);
            return now != before;
        }));
        return now;
    };
    const std::string empty = changesFrom("");
    const auto bar = session_.start(
        "waybar",
        {"--config", configuration(R"({"modules-left": ["custom/nocturo"], "include": [")" +
                                   module("waybar.jsonc") + "\"]}")});
    std::string shown = changesFrom(empty);
    for (const char* verb : {"off", "on"}) { // the first change may be what comes into the new bar
        ctl({verb});
        shown = changesFrom(shown);
    }
    EXPECT_EQ(bar->errors().find("[error]"), std::string::npos) << bar->errors();
}
