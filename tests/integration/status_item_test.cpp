// The status item in real trays: one that embeds windows, and one that asks for the item over the
// bus. The desktop shows them before, after and again.

#include "rig/session.h"

#include <gtest/gtest.h>

#include <csignal>
#include <regex>

namespace nocturo::rig {

namespace {

class StatusItem : public testing::Test {
  protected:
    void SetUp() override {
        session_.showWindows();
        session_.writeSettings("<key>ShowStatusItem</key><integer>1</integer><key>NDGroupEffect"
                               "</key><array><string>NDInvertEffect</string></array>");
    }

    std::unique_ptr<Process> startTrayer() {
        return session_.start("trayer", {"--edge", "top", "--align", "left", "--widthtype", "pixel",
                                         "--width", "100", "--height", "32"});
    }

    /// Whether a window of Nocturo is embedded in trayer's panel.
    bool isEmbedded() {
        const RunResult tree = session_.run("xwininfo", {"-name", "panel", "-tree"});
        return tree.output.find("\"Nocturo\"") != std::string::npos;
    }

    bool effectIsOn() {
        const std::string status = session_.run("nocturoctl", {"status"}).output;
        return status.find("effect                  on") != std::string::npos;
    }
    bool effectBecomes(bool on) {
        return waitUntil([&] { return effectIsOn() == on; });
    }

    std::string ask(const std::string& service, const std::string& path, const std::string& method,
                    const std::vector<std::string>& arguments) {
        std::vector<std::string> words = {
            "call", "--address", session_.bus().address(), "-d", service, "-o", path, "-m", method};
        words.insert(words.end(), arguments.begin(), arguments.end());
        const RunResult result = session_.run("gdbus", words);
        EXPECT_EQ(result.exit, 0) << method << ": " << result.errors;
        return result.output;
    }

    /// The status menu as the bus shows it.
    std::string menu(const std::string& item) {
        return ask(item, "/MenuBar", "com.canonical.dbusmenu.GetLayout", {"0", "--", "-1", "[]"});
    }

    /// Presses the item of the menu whose label ends with these words.
    void press(const std::string& item, const std::string& label) {
        const std::string layout = menu(item);
        std::smatch found;
        ASSERT_TRUE(std::regex_search(
            layout, found, std::regex("<\\((\\d+), \\{[^}]*'label': <'[^']*" + label + "'>")))
            << layout;
        ask(item, "/MenuBar", "com.canonical.dbusmenu.Event",
            {found[1].str(), "clicked", "<''>", "0"});
    }

    Session session_{2};
};

TEST_F(StatusItem, IsEmbeddedWheneverThereIsATray) {
    const auto nocturo = session_.startNocturo();
    auto trayer = startTrayer(); // the panel is late
    ASSERT_TRUE(waitUntil([&] { return isEmbedded(); }));
    trayer->signal(SIGTERM);
    trayer->wait();
    trayer = startTrayer();
    ASSERT_TRUE(waitUntil([&] { return isEmbedded(); }));

    EXPECT_TRUE(effectBecomes(true));
    session_.run("xdotool", {"mousemove", "12", "16", "click", "2"});
    EXPECT_TRUE(effectBecomes(false));
    session_.run("xdotool", {"click", "1"});
    // The menu takes the keyboard; its first item switches.
    EXPECT_TRUE(waitUntil([&] {
        session_.run("xdotool", {"key", "Home", "Return"});
        return effectIsOn();
    }));

    session_.run("nocturoctl", {"set", "ShowStatusItem", "0"});
    EXPECT_TRUE(waitUntil([&] { return !isEmbedded(); }));
    session_.run("nocturoctl", {"set", "ShowStatusItem", "1"});
    EXPECT_TRUE(waitUntil([&] { return isEmbedded(); }));
    EXPECT_EQ(nocturo->errors(), "");
}

TEST_F(StatusItem, ItsMenuWorksOverTheBus) {
    const auto nocturo = session_.startNocturo();
    const auto start = [&] { return session_.start("tray_host"); };
    auto host = start();
    std::string item = host->readLine().value_or("");
    ASSERT_FALSE(item.empty());
    EXPECT_NE(menu(item).find("Deactivate Effect"), std::string::npos);
    press(item, "Deactivate Effect");
    EXPECT_TRUE(effectBecomes(false));
    press(item, "Activate Effect");
    EXPECT_TRUE(effectBecomes(true));
    ask(item, "/StatusNotifierItem", "org.kde.StatusNotifierItem.SecondaryActivate", {"0", "0"});
    EXPECT_TRUE(effectBecomes(false));
    press(item, "Screen 2");
    EXPECT_TRUE(waitUntil([&] {
        const std::string status = session_.run("nocturoctl", {"status"}).output;
        return status.find("[ ]  1") != std::string::npos;
    }));

    host->signal(SIGKILL);
    host->wait();
    host = start(); // the panel starts again
    item = host->readLine().value_or("");
    ASSERT_FALSE(item.empty());
    press(item, "Quit Nocturo");
    EXPECT_EQ(nocturo->wait(), 0);
    EXPECT_EQ(nocturo->errors(), "");
}

} // namespace

} // namespace nocturo::rig
