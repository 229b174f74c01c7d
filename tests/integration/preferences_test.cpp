// The preference window of the running program on a real X server, under mouse and keyboard, and
// what it works with.

#include "nocturo_test.h"
#include "preferences/documents/effect_document_file.h"

namespace nocturo::rig {
namespace {

class Preferences : public NocturoOnX {
  protected:
    Preferences() : NocturoOnX(2) {
        session_.showWindows();
        session_.server().setLayout("us");
        // With an effect selected, or the window would wait for an answer first.
        session_.writeSettings("<key>NDGroupEffect</key><array>"
                               "<string>NDHDTVLuminanceEffect</string></array>");
        nocturo_ = session_.startNocturo();
    }

    bool isInverted() {
        const auto red = client_.ramp("DUMMY1")[0];
        return red.front() > red.back();
    }
    bool turns(bool inverted) {
        return waitUntil([&] { return isInverted() == inverted; });
    }
    void press(const std::string& keys) { xdotool({"key", keys}); }
    bool hotKeyBecomes(const char* text) {
        return waitUntil([&] {
            const auto hotKey = status()["hotKey"];
            return hotKey.is_object() && hotKey["text"] == text;
        });
    }
};

TEST_F(Preferences, AClickOnABoxAndItsMnemonicReachTheRamps) {
    ctl({"preferences"});
    const std::string window = windowCalled("Nocturo Preferences");
    ASSERT_FALSE(window.empty());
    // The first box is somewhere below the title of its group, whatever the fonts.
    const auto clickAt = [&](int y) {
        xdotool({"mousemove", "--window", window, "32", std::to_string(y), "click", "1"});
        return waitUntil([&] { return isInverted(); }, Milliseconds(300));
    };
    EXPECT_TRUE(clickAt(36) || clickAt(44) || clickAt(52) || clickAt(60));
    press("alt+i");
    EXPECT_TRUE(turns(false));
    press("alt+i");
    EXPECT_TRUE(turns(true));
    press("Escape");
    EXPECT_TRUE(waitUntil([&] { return !isShown("Preferences"); }));
}

TEST_F(Preferences, TheHotKeyFieldRecordsWhatOtherwiseIsTheWindowsOwn) {
    ctl({"preferences"});
    ASSERT_FALSE(windowCalled("Nocturo Preferences").empty());
    press("alt+k"); // the box, whose field waits for a hot key then
    ASSERT_TRUE(waitUntil([&] { return status()["settings"]["UseHotKey"] == true; }));
    for (const char* key : {"k", "Tab", "space"}) { // neither keys nor ways out of the field
        press(key);
    }
    press("alt+i"); // the mnemonic of a box
    EXPECT_TRUE(hotKeyBecomes("⌥I"));
    EXPECT_FALSE(isInverted());
    press("Return"); // once more
    press("ctrl+w"); // what closes the window
    EXPECT_TRUE(hotKeyBecomes("⌃W"));
    EXPECT_TRUE(isShown("Preferences"));
    press("alt+i");
    EXPECT_TRUE(turns(true));
    press("ctrl+w"); // what is registered now comes from any window
    EXPECT_TRUE(turns(false));
    EXPECT_TRUE(isShown("Preferences"));
}

TEST_F(Preferences, DocumentsAndPreviewsNeedNoWindow) {
    const auto file = session_.runtimeDirectory() / "mine.nocturo";
    ASSERT_TRUE(writeEffectDocument(file, {.invertScreen = true, .dimLevel = 0.25F}));
    ctl({"open", file});
    EXPECT_TRUE(isInverted());
    const auto saved = session_.runtimeDirectory() / "saved.nocturo";
    ctl({"save", saved});
    EXPECT_EQ(readEffectDocument(saved), readEffectDocument(file));
    EXPECT_EQ(session_.run("nocturoctl", {"save", "/proc/no.nocturo"}).exit, 1);

    writeText(file, "no document");
    const RunResult refused = session_.run("nocturoctl", {"open", file});
    EXPECT_EQ(refused.exit, 1);
    EXPECT_EQ(refused.errors, "nocturoctl: \"" + file.string() + "\" is not an effect document.\n");
    EXPECT_TRUE(isInverted());

    const auto picture = [&] {
        ctl({"preview", "--png", file, "--display", "2"});
        return readText(file);
    };
    const std::string inverted = picture();
    EXPECT_EQ(inverted.substr(1, 3), "PNG");
    ctl({"effects", "only", "dim"});
    EXPECT_NE(picture(), inverted);
    EXPECT_EQ(session_.run("nocturoctl", {"preview", "--png", file, "--display", "7"}).exit, 2);
}

} // namespace
} // namespace nocturo::rig
