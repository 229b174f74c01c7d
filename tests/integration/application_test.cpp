// The program as an application of the desktop: first launch, documents, launchers, windows that
// come back.

#include "nocturo_test.h"
#include "preferences/documents/effect_document_file.h"

namespace nocturo::rig {

namespace {

constexpr const char* kName = "org.nocturo.Nocturo";
constexpr const char* kPath = "/org/nocturo/Nocturo";
constexpr const char* kApplication = "org.freedesktop.Application";

class Application : public NocturoOnX {
  protected:
    Application() : NocturoOnX(2) { session_.showWindows(); }

    void selectInvert() {
        session_.writeSettings(
            "<key>NDGroupEffect</key><array><string>NDInvertEffect</string></array>");
    }
    std::string windowCalled(const std::string& name) {
        const std::string ids =
            session_.run("xdotool", {"search", "--sync", "--onlyvisible", "--name", name}).output;
        return ids.substr(0, ids.find('\n'));
    }
    bool isShown(const std::string& name) {
        return !session_.run("xdotool", {"search", "--onlyvisible", "--name", name}).output.empty();
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

TEST_F(Application, AQuestionAtTheLaunchHoldsUpNothing) {
    nocturo_ = session_.startNocturo();
    const std::string alert = windowCalled("^Nocturo$");
    ASSERT_FALSE(alert.empty());
    ctl({"effects", "only", "invert"});
    EXPECT_EQ(shown(), "ii"); // the effect is on already
    ctl({"restore"});
    EXPECT_EQ(shown(), "oo");
    ctl({"toggle"});
    nocturo_->signal(SIGTERM);
    EXPECT_EQ(nocturo_->wait(), 0);
    EXPECT_EQ(shown(), "oo");
    EXPECT_EQ(nocturo_->errors(), "");
}

TEST_F(Application, AFreshUserIsLedToThePreferencesWhichComeBack) {
    nocturo_ = session_.startNocturo();
    const std::string alert = windowCalled("^Nocturo$");
    ASSERT_FALSE(alert.empty());
    session_.run("xdotool", {"mousemove", "--window", alert, "5", "5", "key", "Return"});
    EXPECT_FALSE(windowCalled("Nocturo Preferences").empty());
    nocturo_->signal(SIGTERM); // the window, with its own question about no effect, is not asked
    ASSERT_EQ(nocturo_->wait(), 0);

    selectInvert();
    nocturo_ = session_.startNocturo();
    const std::string window = windowCalled("Nocturo Preferences");
    session_.run("xdotool", {"windowfocus", "--sync", window, "key", "ctrl+w"});
    ASSERT_TRUE(waitUntil([&] { return !isShown("Preferences"); }));
    nocturo_->signal(SIGTERM);
    ASSERT_EQ(nocturo_->wait(), 0);

    nocturo_ = session_.startNocturo();
    activateAction("about"); // answered after the launch, and so after what came back
    EXPECT_FALSE(isShown("Preferences"));
}

TEST_F(Application, FluxIsWarnedOfBeforeAnythingIsTouched) {
    const std::filesystem::path entries =
        session_.environment().at("XDG_DATA_HOME") + "/applications";
    std::filesystem::create_directories(entries);
    std::ofstream(entries / "fluxgui.desktop") << "[Desktop Entry]\nType=Application\nName=f.lux\n";
    selectInvert();
    nocturo_ = session_.startNocturo();
    ASSERT_FALSE(windowCalled("^Nocturo$").empty());
    ctl({"toggle"});
    EXPECT_EQ(shown(), "oo");
    nocturo_->signal(SIGTERM); // which is no answer
    ASSERT_EQ(nocturo_->wait(), 0);

    nocturo_ = session_.startNocturo();
    const std::string alert = windowCalled("^Nocturo$");
    session_.run("xdotool", {"mousemove", "--window", alert, "5", "5", "key", "Return"});
    EXPECT_TRUE(becomes("ii"));
    ctl({"quit"});
    ASSERT_EQ(nocturo_->wait(), 0);

    nocturo_ = session_.startNocturo();
    EXPECT_TRUE(becomes("ii"));
    EXPECT_FALSE(isShown("^Nocturo$"));
}

TEST_F(Application, DocumentsGoToTheOneThatRuns) {
    selectInvert();
    nocturo_ = session_.startNocturo();
    ASSERT_TRUE(becomes("ii"));
    const std::string good = writtenDocument();
    EXPECT_EQ(session_.run("nocturo", {good}).exit, 0);
    const std::string bad = session_.settingsFile();
    const RunResult refused = session_.run("nocturo", {good, bad});
    EXPECT_EQ(refused.exit, 1);
    EXPECT_EQ(refused.errors, "nocturo: \"" + bad + "\" is not an effect document.\n");
    // Whoever opened it with a click sees no standard error.
    const std::string message = windowCalled("^Nocturo$");
    session_.run("xdotool", {"mousemove", "--window", message, "5", "5", "key", "Return"});
    EXPECT_TRUE(waitUntil([&] { return !isShown("^Nocturo$"); }));
    // Neither loads the window nor switches.
    EXPECT_EQ(shown(), "ii");
    EXPECT_FALSE(isShown("Preferences"));
    EXPECT_EQ(session_.run("nocturo").exit, 0); // what a start without a document does
    EXPECT_EQ(shown(), "oo");
    EXPECT_EQ(nocturo_->errors(), "");
}

TEST_F(Application, ARefusedDocumentOfTheFirstStartIsShownAndHoldsNothingUp) {
    selectInvert();
    const std::string bad = session_.settingsFile();
    nocturo_ = session_.startNocturo({bad});
    EXPECT_FALSE(windowCalled("^Nocturo$").empty());
    ctl({"toggle"});
    EXPECT_EQ(shown(), "oo");
    ctl({"quit"});
    EXPECT_EQ(nocturo_->wait(), 0);
    EXPECT_EQ(nocturo_->errors(), "nocturo: \"" + bad + "\" is not an effect document.\n");
}

TEST_F(Application, LaunchersStartAndDriveIt) {
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
    activateAction("preferences");
    EXPECT_FALSE(windowCalled("Nocturo Preferences").empty());
    const std::string uri = "file://" + writtenDocument();
    session_.bus().call(kName, kPath, kApplication, "Open", "asa{sv}", 1, uri.c_str(), 0);
    EXPECT_THROW(session_.bus().call(kName, kPath, kApplication, "Open", "asa{sv}", 1,
                                     "file:///none.nocturo", 0),
                 std::runtime_error);
    activateAction("toggle");
    activateAction("quit");
    EXPECT_TRUE(allOwnWithin());
    waitForTheBus();
}

} // namespace

} // namespace nocturo::rig
