// Nocturo installed, as file managers and session managers find it.

#include "documents/effect_document_file.h"
#include "nocturo_test.h"

using namespace nocturo;
using namespace nocturo::rig;

struct DesktopSession : NocturoOnX {
    DesktopSession() : NocturoOnX(2) {
        session_.showWindows();
        succeed("cmake", {"--install", NOCTURO_BIN_DIR "/..", "--prefix", prefix_});
        Environment& environment = session_.environment();
        environment["PATH"] = prefix_ + "/bin:" + environment["PATH"];
        environment["XDG_DATA_DIRS"] = prefix_ + "/share:/usr/share";
        environment["XDG_CONFIG_DIRS"] = prefix_ + "/etc/xdg";
        select("NDInvertEffect");
    }

    void succeed(const std::string& program, const std::vector<std::string>& arguments) {
        const RunResult result = session_.run(program, arguments);
        EXPECT_EQ(result.exit, 0) << program << ": " << result.errors;
    }

    bool preferencesAreShown(Milliseconds time = kPatience) {
        return waitUntil([&] { return isShown("Nocturo Preferences"); }, time);
    }

    std::string prefix_ = session_.runtimeDirectory() / "installed";
};

TEST_F(DesktopSession, FileManagersOpenDocumentsInTheOneThatRuns) {
    const std::string document = session_.runtimeDirectory() / "mine.nocturo";
    ASSERT_TRUE(writeEffectDocument(document, {.dim = true, .dimLevel = 0.25F}));
    const auto effects = [&] { return status()["effects"]; };
    const nlohmann::json expected = {"NDDimEffect"};
    nocturo_ = session_.startNocturo();
    ASSERT_TRUE(becomes("ii"));
    ctl({"preferences"}); // which takes documents
    ASSERT_TRUE(preferencesAreShown());
    ASSERT_NE(effects(), expected);
    succeed("gio", {"open", document});
    EXPECT_TRUE(waitUntil([&] { return effects() == expected; })) << effects();
    EXPECT_TRUE(nocturo_->isRunning());
    EXPECT_EQ(nocturo_->errors(), "");
}

TEST_F(DesktopSession, LoggingOutAndInBringsEverythingBack) {
    NEEDS("mate-session")
    // Only what is started by itself: a panel that this machine has would be waited for first, in
    // vain without its window manager.
    session_.environment()["GSETTINGS_BACKEND"] = "keyfile";
    const auto configuration = session_.settingsFile().parent_path() / "../glib-2.0/settings";
    std::filesystem::create_directories(configuration);
    writeText(configuration / "keyfile", "[org/mate/desktop/session]\ndefault-session=@as []\n"
                                         "required-components-list=@as []\n");
    const auto logIn = [&] { return session_.start("mate-session"); };
    const auto logOut = [&](Process& desktop) {
        const std::string manager = "org.gnome.SessionManager";
        succeed("gdbus", {"call", "--session", "-d", manager, "-o", "/org/gnome/SessionManager",
                          "-m", manager + ".Logout", "1"}); // without a question
        EXPECT_EQ(desktop.wait(), 0);
        EXPECT_TRUE(allOwnWithin());
        waitForTheBus();
    };
    auto desktop = logIn(); // starts Nocturo
    ASSERT_TRUE(becomes("ii"));
    EXPECT_FALSE(preferencesAreShown(Milliseconds(0)));
    ctl({"preferences"});
    ASSERT_TRUE(preferencesAreShown());
    logOut(*desktop);

    desktop = logIn();
    EXPECT_TRUE(becomes("ii"));
    EXPECT_TRUE(preferencesAreShown());
    ctl({"set", "ActivateAtLaunch", "false"});
    ctl({"toggle"});
    logOut(*desktop);
    desktop = logIn();
    EXPECT_TRUE(preferencesAreShown());
    EXPECT_EQ(shown(), "oo"); // as it was left
    logOut(*desktop);
}
