// The program as an application of the desktop, under mouse and keyboard: first launch, launchers,
// the preference window, documents.

#include "documents/effect_document_file.h"
#include "nocturo_test.h"

using namespace nocturo;
using namespace nocturo::rig;

constexpr const char* kName = "org.nocturo.Nocturo";
constexpr const char* kPath = "/org/nocturo/Nocturo";
constexpr const char* kApplication = "org.freedesktop.Application";
constexpr const char* kAlert = "^Nocturo$";

struct Application : NocturoOnX {
    Application() : NocturoOnX(2) { session_.showWindows(); }

    bool isInverted() {
        const auto red = client_.ramp(output(1))[0];
        return red.front() > red.back();
    }
    bool turns(bool inverted) {
        return waitUntil([&] { return isInverted() == inverted; });
    }
    void press(const std::string& keys) { xdotool({"key", keys}); }
    void accept(const std::string& alert) {
        xdotool({"mousemove", "--window", alert, "5", "5", "key", "Return"});
    }
    std::string writtenDocument() {
        const std::string file = session_.runtimeDirectory() / "mine ö.nocturo";
        EXPECT_TRUE(writeEffectDocument(file, {.invertScreen = true}));
        return file;
    }
    void refuses(const std::string& program, const std::vector<std::string>& arguments,
                 const std::string& sentence) {
        const RunResult refused = session_.run(program, arguments);
        EXPECT_EQ(refused.exit, 1);
        EXPECT_EQ(refused.errors, program + ": " + sentence + "\n");
    }
    void activateAction(const char* action) {
        session_.bus().call(kName, kPath, kApplication, "ActivateAction", "sava{sv}", action, 0, 0);
    }
};

TEST_F(Application, AFreshUserIsLedToThePreferencesWhichComeBack) {
    nocturo_ = session_.startNocturo();
    ASSERT_FALSE(windowCalled(kAlert).empty());
    ctl({"effects", "only", "invert"});
    EXPECT_TRUE(becomes("ii")) << shown(); // the question holds up nothing
    ctl({"restore"});
    EXPECT_TRUE(becomes("oo")) << shown();
    const auto watch = session_.start("nocturoctl", {"watch"});
    EXPECT_TRUE(waitUntil([&] { // until it listens, nothing can be heard
        ctl({"toggle"});
        return watch->readLine(Milliseconds(50)).has_value();
    }));
    end(); // which is no answer
    EXPECT_EQ(shown(), "oo");
    EXPECT_EQ(nocturo_->errors(), "");

    session_.writeSettings("");
    nocturo_ = session_.startNocturo();
    accept(windowCalled(kAlert));
    EXPECT_FALSE(windowCalled("Nocturo Preferences").empty());
    end(); // the window, with its own question about no effect, is not asked

    select("NDInvertEffect");
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
    select("NDInvertEffect", "<key>EffectActive</key><true/>");
    nocturo_ = session_.startNocturo();
    const std::string alert = windowCalled(kAlert);
    const auto before = status();
    using Command = std::vector<std::string>;
    for (const Command& command : {Command{"toggle"}, {"off"}, {"set", "UseHotKey", "true"}}) {
        refuses("nocturoctl", command,
                "Nocturo waits for the answer to the question that it shows.");
    }
    nocturo_->signal(SIGUSR2); // what switches off where there is no bus
    EXPECT_EQ(status(), before);
    EXPECT_TRUE(becomes("oo")) << shown();
    accept(alert);
    EXPECT_TRUE(becomes("ii"));
    end();

    nocturo_ = session_.startNocturo();
    EXPECT_TRUE(becomes("ii"));
    EXPECT_FALSE(isShown(kAlert));
}

TEST_F(Application, ARefusedDocumentOfTheFirstStartIsShownAndHoldsNothingUp) {
    select("NDInvertEffect");
    const std::string bad = session_.settingsFile();
    nocturo_ = session_.startNocturo({bad});
    EXPECT_FALSE(windowCalled(kAlert).empty());
    ctl({"toggle"});
    EXPECT_TRUE(becomes("oo")) << shown();
    end();
    EXPECT_EQ(nocturo_->errors(), "nocturo: \"" + bad + "\" is not an effect document.\n");
}

TEST_F(Application, LaunchersStartAndDriveItAndHandItDocuments) {
    select("NDInvertEffect");
    session_.bus().offerService(kName, NOCTURO_BIN_DIR "/nocturo", session_.environment());
    const auto activate = [&] {
        session_.bus().call(kName, kPath, kApplication, "Activate", "a{sv}", 0);
    };
    activate(); // starts it, and toggles nothing
    EXPECT_TRUE(becomes("ii")) << shown();
    EXPECT_TRUE(waitUntil([&] { // once the bus has told that the launch is over
        activate();
        return shown() == "oo";
    }));
    activateAction("toggle");
    EXPECT_TRUE(becomes("ii")) << shown();
    // The dock's menu, whose first item switches.
    const char* menu = "/org/nocturo/Nocturo/LauncherMenu";
    const char* dbusmenu = "com.canonical.dbusmenu";
    const auto tell = [&](const char* method, const char* types, auto... arguments) {
        session_.bus().call(kName, menu, dbusmenu, method, types, arguments...);
    };
    tell("GetLayout", "iias", 0, -1, 0);
    tell("Event", "isvu", 1, "clicked", "s", "", 0);
    EXPECT_TRUE(becomes("oo"));
    EXPECT_THROW(tell("EventGroup", "a(i)", 1, 1), std::runtime_error); // and nothing more
    // On the menu itself, and on the first item.
    tell("EventGroup", "a(isvu)", 2, 0, "opened", "s", "", 0, 1, "clicked", "s", "", 0);
    EXPECT_TRUE(becomes("ii"));
    activateAction("toggle");
    EXPECT_TRUE(becomes("oo"));

    const std::string good = writtenDocument();
    const std::string bad = session_.settingsFile();
    const auto open = [&](const std::string& uri) {
        session_.bus().call(kName, kPath, kApplication, "Open", "asa{sv}", 1, uri.c_str(), 0);
    };
    ctl({"effects", "none"});
    open("file://localhost" + session_.runtimeDirectory().string() + "/mine%20%C3%B6.nocturo");
    EXPECT_EQ(status()["effects"], nlohmann::json::array({"NDInvertEffect"}));
    EXPECT_THROW(open("file:///none.nocturo"), std::runtime_error);
    EXPECT_EQ(session_.run("nocturo", {good}).exit, 0);
    refuses("nocturo", {good, bad}, "\"" + bad + "\" is not an effect document.");
    EXPECT_FALSE(windowCalled(kAlert).empty()) << "whoever opened it with a click sees no stderr";
    // None of these loads the window or switches, as a start without a document does.
    EXPECT_EQ(shown(), "oo");
    EXPECT_FALSE(isShown("Preferences"));
    XClient desktop(session_.server().display());
    desktop.startupMessages();
    session_.environment()["DESKTOP_STARTUP_ID"] = "a launcher's 1st_TIME42";
    EXPECT_EQ(session_.run("nocturo").exit, 0);
    std::string told;
    EXPECT_TRUE(waitUntil([&] {
        told += desktop.startupMessages();
        return told == "remove: ID=\"a launcher's 1st_TIME42\"";
    })) << told;
    EXPECT_TRUE(becomes("ii")) << shown();

    activateAction("preferences");
    EXPECT_FALSE(windowCalled("Nocturo Preferences").empty());
    activateAction("quit");
    EXPECT_TRUE(allOwnWithin());
    waitForTheBus();
}

TEST_F(Application, ThePreferenceWindowTakesClicksMnemonicsAndAHotKey) {
    session_.server().setLayout("us");
    select("NDHDTVLuminanceEffect");
    nocturo_ = session_.startNocturo();
    ctl({"preferences"});
    const std::string window = windowCalled("Nocturo Preferences");
    // The first look, which inverts, is somewhere below the title of its group, whatever the fonts.
    const auto clickAt = [&](int y) {
        xdotool({"mousemove", "--window", window, "44", std::to_string(y), "click", "1"});
        return waitUntil([&] { return isInverted(); }, Milliseconds(300));
    };
    EXPECT_TRUE(clickAt(110) || clickAt(118) || clickAt(126) || clickAt(134) || clickAt(142));
    press("alt+i");
    EXPECT_TRUE(turns(false));

    const auto hotKeyBecomes = [&](const char* text) {
        return waitUntil([&] {
            const auto hotKey = status()["hotKey"];
            return hotKey.is_object() && hotKey["text"] == text;
        });
    };
    press("ctrl+Tab"); // to the other page
    press("alt+k");    // the box of the hot key, whose field waits for one then
    ASSERT_TRUE(waitUntil([&] { return status()["settings"]["UseHotKey"] == true; }));
    for (const char* key : {"k", "Tab", "space"}) { // neither hot keys nor ways out of the field
        press(key);
    }
    press("alt+i"); // otherwise the mnemonic of a box
    EXPECT_TRUE(hotKeyBecomes("⌥I"));
    press("Return"); // once more, where whatever else changes does not claim the old one
    EXPECT_TRUE(waitUntil([&] { return status()["hotKey"]["registered"] == false; }));
    ctl({"set", "NDDimEffectLevel", "-0.3"});
    press("alt+i");
    EXPECT_FALSE(isInverted());
    press("Return");
    press("ctrl+w"); // otherwise closes the window
    EXPECT_TRUE(hotKeyBecomes("⌃W"));
    EXPECT_TRUE(isShown("Preferences"));
    press("ctrl+shift+Tab"); // back
    press("alt+i");
    EXPECT_TRUE(turns(true));
    press("ctrl+w"); // what is registered now is nobody else's
    EXPECT_TRUE(turns(false));
    EXPECT_TRUE(isShown("Preferences"));
    press("Escape");
    EXPECT_TRUE(waitUntil([&] { return !isShown("Preferences"); }));
}

TEST_F(Application, DocumentsNeedNoWindowAndQtComesWithThePreview) {
    const auto namesQt = [](const std::string& text) {
        return text.find("libQt") != std::string::npos;
    };
    EXPECT_FALSE(namesQt(session_.run("ldd", {NOCTURO_BIN_DIR "/nocturo"}).output));
    select("NDHDTVLuminanceEffect");
    nocturo_ = session_.startNocturo();
    const auto hasQt = [&] {
        return namesQt(readText("/proc/" + std::to_string(nocturo_->id()) + "/maps"));
    };
    const auto file = session_.runtimeDirectory() / "mine ö.nocturo";
    ASSERT_TRUE(writeEffectDocument(file, {.invertScreen = true, .dimLevel = 0.25F}));
    ctl({"open", file});
    EXPECT_TRUE(isInverted());
    const auto saved = session_.runtimeDirectory() / "saved.nocturo";
    ctl({"save", saved});
    EXPECT_EQ(readEffectDocument(saved), readEffectDocument(file));
    says("nocturoctl", {"save", "/proc/no.nocturo"}, 1, "No such file");
    ctl({"set", "UseHotKey", "true"});
    ctl({"toggle"});
    ctl({"toggle"});

    writeText(file, "no document");
    refuses("nocturoctl", {"open", file}, "\"" + file.string() + "\" is not an effect document.");
    EXPECT_TRUE(isInverted());
    EXPECT_FALSE(hasQt());

    const auto picture = [&] {
        ctl({"preview", "--png", file, "--display", "2"});
        return readText(file);
    };
    const std::string inverted = picture();
    EXPECT_EQ(inverted.substr(1, 3), "PNG");
    EXPECT_TRUE(hasQt());
    ctl({"effects", "only", "dim"});
    EXPECT_NE(picture(), inverted);
    EXPECT_EQ(session_.run("nocturoctl", {"preview", "--png", file, "--display", "7"}).exit, 2);
}

TEST_F(Application, WithoutItsLibraryItSaysWhatWindowsComeWith) {
    const std::filesystem::path alone = session_.runtimeDirectory() / "alone";
    std::filesystem::create_directory(alone);
    for (const char* program : {"nocturo", "nocturo-guard"}) {
        std::filesystem::copy(std::filesystem::path(NOCTURO_BIN_DIR) / program, alone / program);
    }
    nocturo_ = session_.start(alone / "nocturo");
    EXPECT_TRUE(waitUntil([&] { return session_.run("nocturoctl", {"status"}).exit == 0; }));
    const std::string sentence =
        "Windows come with the package nocturo-desktop, which is not installed.";
    EXPECT_EQ(nocturo_->errors(), "nocturo.app: " + sentence + "\n" + kNoEffectSentence);
    ctl({"open", writtenDocument()});
    EXPECT_TRUE(becomes("ii"));
    refuses("nocturoctl", {"preferences"}, sentence);
    end();
}
