// What the desktop tells reaches the displays: a real X server and its screen saver, and stand-ins
// for the services of the session bus and the system bus.

#include "nocturo_test.h"

using namespace nocturo;
using namespace nocturo::rig;

constexpr const char* kMock = "org.freedesktop.DBus.Mock";
constexpr const char* kLogin = "org.freedesktop.login1";
constexpr const char* kLoginPath = "/org/freedesktop/login1";
constexpr const char* kLoginSession = "/org/freedesktop/login1/session/c1";
constexpr const char* kGnome = "org.gnome.ScreenSaver";

struct DesktopSources : NocturoOnX {
    DesktopSources() : NocturoOnX(2) {}

    /// Leaves the effect on, inverting, with nothing that applies it again by itself.
    void start() {
        select("NDInvertEffect", "<key>ContinuouslyApply</key><false/>");
        nocturo_ = session_.startNocturo();
        status(); // answered once everything is being followed
    }

    bool isOn() { return status()["active"]; }
    /// The effect pauses, or goes on, while the user's own choice stays.
    bool pauses() { return becomes("oo") && status()["settings"]["EffectActive"]; }
    bool goesOn() { return becomes("ii") && isOn(); }

    /// What another program, or a driver that wakes up, does.
    void overwrite(const char* output = "DUMMY1") {
        client_.setRamp(output, reversed(client_.ramp(output)));
    }
    /// Waits until Nocturo has taken in all that the server has sent so far: a window that goes is
    /// answered by applying the effect again.
    void letNocturoCatchUp() {
        overwrite();
        EXPECT_TRUE(waitUntil([&] {
            // A window that is gone before Nocturo looked at the list was never there for it.
            client_.setRootProperty("_NET_CLIENT_LIST", {101, 102});
            client_.setRootProperty("_NET_CLIENT_LIST", {101});
            return shown() == "ii";
        }));
    }

    /// A login manager that knows the session c1, which is locked or not from the start.
    std::unique_ptr<Process> startLoginManager() {
        auto mock =
            session_.startMock(session_.systemBus(), kLogin, {"--system", "--template", "logind"});
        session_.systemBus().call(kLogin, kLoginPath, kMock, "AddSession", "ssusb", "c1", "seat0",
                                  0U, "somebody", 1);
        return mock;
    }
    void setSessionProperty(const char* name, bool value) {
        session_.systemBus().call(kLogin, kLoginSession, kMock, "UpdateProperties", "sa{sv}",
                                  "org.freedesktop.login1.Session", 1, name, "b", int{value});
    }
    std::unique_ptr<Process> startGnomeSaver(bool active) {
        auto saver =
            session_.startMock(session_.bus(), kGnome, {"--template", "gnome_screensaver"});
        setGnomeActive(active);
        return saver;
    }
    void setGnomeActive(bool active) {
        session_.bus().call(kGnome, "/org/gnome/ScreenSaver", kGnome, "SetActive", "b",
                            int{active});
    }
};

TEST_F(DesktopSources, TheServersScreenSaverPausesTheEffect) {
    session_.run("xset", {"s", "activate"});
    start(); // it runs already
    EXPECT_TRUE(pauses());
    ctl({"on"}); // the user's word holds
    EXPECT_TRUE(becomes("ii")) << shown();
    session_.run("xset", {"s", "reset"});
    letNocturoCatchUp();
    EXPECT_TRUE(isOn());
    session_.run("xset", {"s", "activate"});
    EXPECT_TRUE(pauses());
    session_.run("xset", {"s", "reset"});
    EXPECT_TRUE(goesOn());

    ctl({"set", "NDDeactivateForScreenSaver", "false"});
    session_.run("xset", {"s", "activate"});
    letNocturoCatchUp();
    EXPECT_TRUE(isOn());
}

TEST_F(DesktopSources, XScreenSaverPausesTheEffect) {
    NEEDS("xscreensaver")
    start();
    writeText(session_.environment()["HOME"] + "/.xscreensaver",
              "mode: blank\nlock: False\nfade: False\n");
    const auto saver = session_.start("xscreensaver", {"-no-splash"});
    const auto does = [&](const char* command) {
        return waitUntil([&] { return session_.run("xscreensaver-command", {command}).exit == 0; });
    };
    ASSERT_TRUE(does("-time") && does("-activate")) << saver->errors();
    EXPECT_TRUE(pauses());
    EXPECT_TRUE(does("-deactivate"));
    EXPECT_TRUE(goesOn());

    client_.setRootProperty("_SCREENSAVER_STATUS", {client_.atom("LOCK"), 1, 2});
    EXPECT_TRUE(pauses());
    saver->signal(SIGKILL); // its property stays
    EXPECT_TRUE(goesOn());
    ctl({"quit"});
    nocturo_->wait();
    start();
    EXPECT_TRUE(goesOn());
    letNocturoCatchUp();
    EXPECT_TRUE(isOn());
}

TEST_F(DesktopSources, TheEndOfAnApplicationAndWakingUpHaveTheEffectAppliedAgain) {
    const auto login = startLoginManager();
    session_.environment()["XDG_SESSION_ID"] = "c1";
    start();
    // Without a window manager, names on the session bus tell.
    const std::vector<std::string> someName = {"org.example.Player", "/", "org.example.Player"};
    auto player = session_.startMock(session_.bus(), someName[0], someName);
    overwrite();
    player.reset();
    EXPECT_TRUE(becomes("ii"));
    letNocturoCatchUp();

    setSessionProperty("Active", false);
    overwrite();
    setSessionProperty("Active", true);
    EXPECT_TRUE(becomes("ii"));
    overwrite();
    session_.systemBus().call(kLogin, kLoginPath, kMock, "EmitSignal", "sssav",
                              "org.freedesktop.login1.Manager", "PrepareForSleep", "b", 1, "b", 0);
    EXPECT_TRUE(becomes("ii"));
    overwrite(); // the driver comes late
    EXPECT_TRUE(becomes("ii", Milliseconds(3100)));
}

TEST_F(DesktopSources, AProgramThatFightsIsCountedAndNamed) {
    const Milliseconds tick(6500);
    start();
    EXPECT_EQ(status()["disturbances"], 0);
    EXPECT_EQ(ctl({"status"}).output.find("changes the colors"), std::string::npos);
    const char* name = "org.gnome.SettingsDaemon.Color";
    const char* path = "/org/gnome/SettingsDaemon/Color";
    const auto nightLight = session_.startMock(session_.bus(), name, {name, path, name});
    session_.bus().call(name, path, kMock, "AddProperty", "ssv", name, "NightLightActive", "b", 1);
    ctl({"set", "ContinuouslyApply", "true"});
    overwrite("DUMMY0");
    overwrite("DUMMY1");
    EXPECT_TRUE(waitUntil([&] { return status()["disturber"] == "Night Light"; }, tick));
    EXPECT_EQ(status()["disturbances"], 2);
    EXPECT_EQ(shown(), "ii");

    const std::filesystem::path redshift = session_.runtimeDirectory() / "redshift";
    std::filesystem::create_symlink("/bin/sleep", redshift);
    const auto fighter = session_.start(redshift, {"60"});
    overwrite();
    EXPECT_TRUE(waitUntil([&] { return status()["disturber"] == "redshift"; }, tick));
    const std::string said = ctl({"status"}).output;
    EXPECT_NE(said.find("redshift changes the colors too: found 3 times since Nocturo was started"),
              std::string::npos);
}

TEST_F(DesktopSources, ScreenSaversOfTheSessionBusPauseTheEffect) {
    auto saver = startGnomeSaver(true);
    start(); // it was active already
    EXPECT_TRUE(pauses());
    setGnomeActive(false);
    EXPECT_TRUE(goesOn());
    setGnomeActive(true);
    EXPECT_TRUE(pauses());
    saver.reset(); // a saver that is gone covers nothing
    EXPECT_TRUE(goesOn());
    saver = startGnomeSaver(true);
    EXPECT_TRUE(pauses());
    saver.reset();
    EXPECT_TRUE(goesOn());

    // One that speaks from two paths is counted once.
    const char* kde = "org.freedesktop.ScreenSaver";
    const char* other = "/org/freedesktop/ScreenSaver";
    saver = session_.startMock(session_.bus(), kde, {kde, "/ScreenSaver", kde});
    session_.bus().call(kde, "/ScreenSaver", kMock, "AddObject", "ssa{sv}a(ssss)", other, kde, 0,
                        0);
    const auto activeChanged = [&](const char* path, bool active) {
        session_.bus().call(kde, path, kMock, "EmitSignal", "sssav", kde, "ActiveChanged", "b", 1,
                            "b", int{active});
    };
    activeChanged("/ScreenSaver", true);
    EXPECT_TRUE(pauses());
    ctl({"on"});
    activeChanged(other, true);
    EXPECT_TRUE(isOn());
    activeChanged("/ScreenSaver", false);
    activeChanged(other, false);
    EXPECT_TRUE(isOn());
    activeChanged(other, true);
    EXPECT_TRUE(pauses());
}

TEST_F(DesktopSources, ALockedSessionPausesWhereNothingElseTells) {
    // The server's own screen saver would tell, too.
    session_.environment().erase("DISPLAY");
    const auto turns = [&](bool on) { return waitUntil([&] { return isOn() == on; }); };
    auto login = startLoginManager();
    // This process belongs to no session, so the user's graphical one is meant.
    session_.systemBus().call(kLogin, kLoginPath, kMock, "AddObject", "ssa{sv}a(ssss)",
                              "/org/freedesktop/login1/user/self", "org.freedesktop.login1.User", 1,
                              "Display", "(so)", "c1", kLoginSession, 0);
    setSessionProperty("LockedHint", true);
    nocturo_ = session_.startNocturo({"--display-services=simulated:1"});
    EXPECT_TRUE(turns(false)); // it was locked already
    setSessionProperty("LockedHint", false);
    EXPECT_TRUE(turns(true));

    const auto saver = startGnomeSaver(true);
    EXPECT_TRUE(turns(false));
    setGnomeActive(false);
    EXPECT_TRUE(turns(true));
    setSessionProperty("LockedHint", true);
    setSessionProperty("Active", false); // comes after the lock on the same bus
    setGnomeActive(false);
    EXPECT_TRUE(isOn());
}
