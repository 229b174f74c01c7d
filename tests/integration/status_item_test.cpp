// The status item in real trays: one that embeds windows, and one that asks for the item over the
// bus. The desktop shows them before, after and again.

#include "nocturo_test.h"

#include <regex>

namespace nocturo::rig {

namespace {

class StatusItem : public NocturoOnX {
  protected:
    StatusItem() : NocturoOnX(2) {
        session_.showWindows();
        select("NDInvertEffect", "<key>ShowStatusItem</key><integer>1</integer>");
        nocturo_ = session_.startNocturo();
        status(); // answered once it has looked for a tray in vain
    }

    std::unique_ptr<Process> startTrayer() {
        return session_.start("trayer", {"--edge", "top", "--align", "left", "--widthtype", "pixel",
                                         "--width", "100", "--height", "32"});
    }

    /// Whether a window of Nocturo is, or soon is not, embedded in trayer's panel.
    bool embeddedBecomes(bool embedded) {
        return waitUntil([&] {
            const RunResult tree = session_.run("xwininfo", {"-name", "panel", "-tree"});
            return (tree.output.find("\"Nocturo\"") != std::string::npos) == embedded;
        });
    }

    std::string ask(const std::string& service, const std::string& path, const std::string& method,
                    const std::vector<std::string>& arguments) {
        std::vector<std::string> words = {"call", "--session", "-d", service,
                                          "-o",   path,        "-m", method};
        words.insert(words.end(), arguments.begin(), arguments.end());
        const RunResult result = session_.run("gdbus", words);
        EXPECT_EQ(result.exit, 0) << method << ": " << result.errors;
        return result.output;
    }

    /// Presses the item of the status menu whose label ends with these words.
    void press(const std::string& item, const std::string& label) {
        const std::string layout =
            ask(item, "/MenuBar", "com.canonical.dbusmenu.GetLayout", {"0", "--", "-1", "[]"});
        std::smatch found;
        ASSERT_TRUE(std::regex_search(
            layout, found, std::regex("<\\((\\d+), \\{[^}]*'label': <'[^']*" + label + "'>")))
            << layout;
        ask(item, "/MenuBar", "com.canonical.dbusmenu.Event",
            {found[1].str(), "clicked", "<''>", "0"});
    }
};

TEST_F(StatusItem, IsEmbeddedWheneverThereIsATray) {
    NEEDS("trayer")
    auto trayer = startTrayer(); // the panel is late
    ASSERT_TRUE(embeddedBecomes(true));
    trayer.reset();
    trayer = startTrayer();
    ASSERT_TRUE(embeddedBecomes(true));
    EXPECT_TRUE(becomes("ii"));
    xdotool({"mousemove", "12", "16", "click", "2"});
    EXPECT_TRUE(becomes("oo"));
    xdotool({"click", "1"});
    // The menu takes the keyboard; its first item switches.
    EXPECT_TRUE(waitUntil([&] {
        xdotool({"key", "Home", "Return"});
        return shown() == "ii";
    }));
    for (const bool isItemShown : {false, true}) {
        ctl({"set", "ShowStatusItem", isItemShown ? "1" : "0"});
        EXPECT_TRUE(embeddedBecomes(isItemShown));
    }
    EXPECT_EQ(nocturo_->errors(), "");
}

TEST_F(StatusItem, ItsMenuWorksOverTheBus) {
    auto host = session_.start("tray_host");
    const std::string item = host->readLine().value_or("");
    ASSERT_FALSE(item.empty());
    press(item, "Deactivate Effect");
    EXPECT_TRUE(becomes("oo"));
    press(item, "Activate Effect");
    EXPECT_TRUE(becomes("ii"));
    press(item, "Screen 2");
    EXPECT_TRUE(becomes("oi")); // now the only one
    ask(item, "/StatusNotifierItem", "org.kde.StatusNotifierItem.SecondaryActivate", {"0", "0"});
    EXPECT_TRUE(becomes("oo"));

    host.reset();
    host = session_.start("tray_host"); // the panel starts again
    press(host->readLine().value_or(""), "Quit Nocturo");
    EXPECT_EQ(nocturo_->wait(), 0);
    EXPECT_EQ(nocturo_->errors(), "");
}

} // namespace

} // namespace nocturo::rig
