// The preference window of the running program on a real X server, under mouse and keyboard.

#include "preferences/documents/effect_document_file.h"
#include "rig/session.h"

#include <gtest/gtest.h>

#include <fstream>

namespace nocturo::rig {
namespace {

class Preferences : public testing::Test {
  protected:
    RunResult ctl(const std::vector<std::string>& arguments) {
        return session_.run("nocturoctl", arguments);
    }
    bool isInverted() {
        const auto red = client_.ramp("DUMMY1")[0];
        return red.front() > red.back();
    }
    std::string windowCalled(const std::string& name) {
        std::string id =
            session_.run("xdotool", {"search", "--sync", "--onlyvisible", "--name", name}).output;
        return id.substr(0, id.find('\n'));
    }

    void SetUp() override {
        session_.showWindows();
        // With an effect selected, or the window would wait for an answer first.
        session_.writeSettings("<key>NDGroupEffect</key><array>"
                               "<string>NDHDTVLuminanceEffect</string></array>");
        nocturo_ = session_.startNocturo();
    }

    Session session_{2};
    XClient client_{session_.server().display()};
    std::unique_ptr<Process> nocturo_;
    std::filesystem::path file_ = session_.runtimeDirectory() / "mine.nocturo";
};

TEST_F(Preferences, AClickOnABoxAndItsMnemonicReachTheRamps) {
    ASSERT_EQ(ctl({"preferences"}).exit, 0);
    const std::string window = windowCalled("Nocturo Preferences");
    ASSERT_FALSE(window.empty());
    // The first box is somewhere below the title of its group, whatever the fonts.
    const auto clickAt = [&](int y) {
        session_.run("xdotool",
                     {"mousemove", "--window", window, "32", std::to_string(y), "click", "1"});
        return waitUntil([&] { return isInverted(); }, Milliseconds(300));
    };
    EXPECT_TRUE(clickAt(36) || clickAt(44) || clickAt(52) || clickAt(60));
    session_.run("xdotool", {"key", "alt+i"});
    EXPECT_TRUE(waitUntil([&] { return !isInverted(); }));
    session_.run("xdotool", {"key", "alt+i"});
    EXPECT_TRUE(waitUntil([&] { return isInverted(); }));
    session_.run("xdotool", {"key", "Escape"});
    EXPECT_TRUE(waitUntil([&] {
        return session_.run("xdotool", {"search", "--onlyvisible", "--name", "Preferences"})
            .output.empty();
    }));
}

TEST_F(Preferences, DocumentsAreOpenedAndSavedWithoutAWindow) {
    ASSERT_TRUE(writeEffectDocument(file_, {.invertScreen = true, .dimLevel = 0.25F}));
    EXPECT_EQ(ctl({"open", file_}).exit, 0);
    EXPECT_TRUE(isInverted());
    const auto saved = session_.runtimeDirectory() / "saved.nocturo";
    EXPECT_EQ(ctl({"save", saved}).exit, 0);
    EXPECT_EQ(readEffectDocument(saved), readEffectDocument(file_));

    std::ofstream(file_) << "no document";
    const RunResult refused = ctl({"open", file_});
    EXPECT_EQ(refused.exit, 1);
    EXPECT_EQ(refused.errors,
              "nocturoctl: \"" + file_.string() + "\" is not an effect document.\n");
    EXPECT_TRUE(isInverted());
    EXPECT_EQ(ctl({"save", "/proc/no.nocturo"}).exit, 1);
}

TEST_F(Preferences, PreviewsAreDrawnWithoutAWindow) {
    const auto picture = [&](const std::string& name) {
        const auto path = session_.runtimeDirectory() / name;
        EXPECT_EQ(ctl({"preview", "--png", path, "--display", "2"}).exit, 0);
        std::ifstream stream(path, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(stream), {});
    };
    ctl({"effects", "only", "dim"});
    const std::string dimmed = picture("dimmed.png");
    EXPECT_EQ(dimmed.substr(1, 3), "PNG");
    ctl({"effects", "only", "invert"});
    EXPECT_NE(picture("inverted.png"), dimmed);
    EXPECT_EQ(ctl({"preview", "--png", file_, "--display", "7"}).exit, 2);
}

} // namespace
} // namespace nocturo::rig
