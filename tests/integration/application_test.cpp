// The program as an application of the desktop: first launch, documents, launchers, windows that
// come back.

#include "nocturo_test.h"
#include "preferences/documents/effect_document_file.h"

namespace nocturo::rig {

namespace {

constexpr const char* kName = "org.nocturo.Nocturo";
constexpr const char* kPath = "/org/nocturo/Nocturo";
constexpr const char* kApplication = "org.freedesktop.Application";
constexpr const char* kAlert = "^Nocturo$";

class Application : public NocturoOnX {
  protected:
    Application() : NocturoOnX(2) { session_.showWindows(); }

    void selectInvert() {
        session_.writeSettings(
            "<key>NDGroupEffect</key><array><string>NDInvertEffect</string></array>");
    }
    /// Ends it, which is no answer to what it asks.
    void end() {
        nocturo_->signal(SIGTERM);
        EXPECT_EQ(nocturo_->wait(), 0);
        EXPECT_EQ(shown(), "oo");
    }
    void accept(const std::string& alert) {
        xdotool({"mousemove", "--window", alert, "5", "5", "key", "Return"});
    }
    std::string writtenDocument() {
        const std::string file = session_.runtimeDirectory() / "mine.nocturo";
        EXPECT_TRUE(writeEffectDocument(file, {.invertScreen = true}));
        return file;
    }
    void activateAction(const char* action) {
        session_.bus().call(kName, kPath, kApplication, "ActivateAction", "sava{sv}", action, 0, 0);
    }
};

TEST_F(Application, AFreshUserIsLedToThePreferencesWhichComeBack) {
    nocturo_ = session_.startNocturo();
    ASSERT_FALSE(windowCalled(kAlert).empty());
    ctl({"effects", "only", "invert"});
    EXPECT_EQ(shown(), "ii"); // the question holds up nothing
    ctl({"restore"});
    EXPECT_EQ(shown(), "oo");
    ctl({"toggle"});
    end();
    EXPECT_EQ(nocturo_->errors(), "");

    session_.writeSettings("");
    nocturo_ = session_.startNocturo();
    accept(windowCalled(kAlert));
    EXPECT_FALSE(windowCalled("Nocturo Preferences").empty());
    end(); // the window, with its own question about no effect, is not asked

    selectInvert();
    nocturo_ = session_.startNocturo();
    const std::string window = windowCalled("Nocturo Preferences");
    xdotool({"windowfocus", "--sync", window, "key", "ctrl+w"});
    ASSERT_TRUE(waitUntil([&] { return !isShown("Preferences"); }));
    end();

    nocturo_ = session_.startNocturo();
    activateAction("about"); // answered after the launch, and so after what came back
    EXPECT_FALSE(isShown("Preferences"));
}

TEST_F(Application, FluxIsWarnedOfBeforeAnythingIsTouched) {
    const std::filesystem::path entries =
        session_.environment().at("XDG_DATA_HOME") + "/applications";
    std::filesystem::create_directories(entries);
    writeText(entries / "fluxgui.desktop", "[Desktop Entry]\nType=Application\nName=f.lux\n");
    selectInvert();
    nocturo_ = session_.startNocturo();
    ASSERT_FALSE(windowCalled(kAlert).empty());
    ctl({"toggle"});
    EXPECT_EQ(shown(), "oo");
    end();

    nocturo_ = session_.startNocturo();
    accept(windowCalled(kAlert));
    EXPECT_TRUE(becomes("ii"));
    end();

    nocturo_ = session_.startNocturo();
    EXPECT_TRUE(becomes("ii"));
    EXPECT_FALSE(isShown(kAlert));
}

TEST_F(Application, LaunchersStartAndDriveItAndHandItDocuments) {
    selectInvert();
    session_.bus().offerService(kName, NOCTURO_BIN_DIR "/nocturo", session_.environment());
    const auto activate = [&] {
        session_.bus().call(kName, kPath, kApplication, "Activate", "a{sv}", 0);
    };
    activate(); // starts it, and toggles nothing
    EXPECT_EQ(shown(), "ii");
    EXPECT_TRUE(waitUntil([&] { // once the bus has told that the launch is over
        activate();
        return shown() == "oo";
    }));
    activateAction("toggle");
    EXPECT_EQ(shown(), "ii");
    // The dock's menu, whose first item switches.
    const char* menu = "/org/nocturo/Nocturo/LauncherMenu";
    const char* dbusmenu = "com.canonical.dbusmenu";
    session_.bus().call(kName, menu, dbusmenu, "GetLayout", "iias", 0, -1, 0);
    session_.bus().call(kName, menu, dbusmenu, "Event", "isvu", 1, "clicked", "s", "", 0);
    EXPECT_TRUE(becomes("oo"));

    const std::string good = writtenDocument();
    const std::string bad = session_.settingsFile();
    const auto open = [&](const std::string& uri) {
        session_.bus().call(kName, kPath, kApplication, "Open", "asa{sv}", 1, uri.c_str(), 0);
    };
    open("file://" + good);
    EXPECT_THROW(open("file:///none.nocturo"), std::runtime_error);
    EXPECT_EQ(session_.run("nocturo", {good}).exit, 0);
    const RunResult refused = session_.run("nocturo", {good, bad});
    EXPECT_EQ(refused.exit, 1);
    EXPECT_EQ(refused.errors, "nocturo: \"" + bad + "\" is not an effect document.\n");
    // None of these loads the window or switches, as a start without a document does.
    EXPECT_EQ(shown(), "oo");
    EXPECT_FALSE(isShown("Preferences"));
    EXPECT_EQ(session_.run("nocturo").exit, 0);
    EXPECT_EQ(shown(), "ii");

    activateAction("preferences");
    EXPECT_FALSE(windowCalled("Nocturo Preferences").empty());
    activateAction("quit");
    EXPECT_TRUE(allOwnWithin());
    waitForTheBus();
}

} // namespace

} // namespace nocturo::rig
