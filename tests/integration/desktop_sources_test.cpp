// What the desktop tells reaches the displays: a real X server and its screen saver, and stand-ins
// for the services of the session bus and the system bus.

#include "nocturo_test.h"

namespace nocturo::rig {

namespace {

using Json = nlohmann::json;

constexpr const char* kMock = "org.freedesktop.DBus.Mock";
constexpr const char* kLogin = "org.freedesktop.login1";
constexpr const char* kLoginSession = "/org/freedesktop/login1/session/c1";

/// A session on an X server, or in simulation, whose desktop tells of things.
template <class Base>
class DesktopSources : public Base {
  protected:
    using Base::Base;
    using Base::ctl;
    using Base::session_;
    using Base::status;

    bool isOn() { return status()["active"]; }
    bool isSavedOn() { return status()["settings"]["EffectActive"]; }
    bool turns(bool on) {
        return waitUntil([&] { return isOn() == on; });
    }

    /// A login manager that knows the session c1, which is locked or not from the start.
    std::unique_ptr<Process> startLoginManager() {
        auto mock =
            session_.startMock(session_.systemBus(), kLogin, {"--system", "--template", "logind"});
        session_.systemBus().call(kLogin, "/org/freedesktop/login1", kMock, "AddSession", "ssusb",
                                  "c1", "seat0", 0U, "somebody", 1);
        return mock;
    }
    void setSessionProperty(const char* name, bool value) {
        session_.systemBus().call(kLogin, kLoginSession, kMock, "UpdateProperties", "sa{sv}",
                                  "org.freedesktop.login1.Session", 1, name, "b", int{value});
    }
};

class OnX : public DesktopSources<NocturoOnX> {
  protected:
    OnX() : DesktopSources(2) {}

    /// Leaves the effect on, inverting, with nothing that applies it again by itself.
    void start() {
        nocturo_ = session_.startNocturo();
        ctl({"set", "ContinuouslyApply", "false"});
        ctl({"effects", "only", "invert"});
        ctl({"on"});
        ASSERT_EQ(shown(), "ii");
    }

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
};

class Simulated : public DesktopSources<NocturoTest> {
  protected:
    Simulated() : DesktopSources(0) {}
    /// Returns when the first call is answered, which is once everything is being followed.
    void start() {
        nocturo_ = session_.startNocturo({"--display-services=simulated:1"});
        status();
    }
};

TEST_F(OnX, TheServersScreenSaverPausesTheEffect) {
    start();
    session_.run("xset", {"s", "activate"});
    EXPECT_TRUE(becomes("oo"));
    EXPECT_FALSE(isOn());
    EXPECT_TRUE(isSavedOn());
    session_.run("xset", {"s", "reset"});
    EXPECT_TRUE(becomes("ii"));
    EXPECT_TRUE(isSavedOn());

    ctl({"set", "NDDeactivateForScreenSaver", "false"});
    session_.run("xset", {"s", "activate"});
    letNocturoCatchUp();
    EXPECT_TRUE(isOn());
    EXPECT_EQ(shown(), "ii");
}

TEST_F(OnX, AScreenSaverThatRunsAtTheStartCounts) {
    start();
    ctl({"quit"});
    nocturo_->wait();
    session_.run("xset", {"s", "activate"});
    nocturo_ = session_.startNocturo();
    EXPECT_TRUE(becomes("oo"));
    EXPECT_TRUE(isSavedOn());
    ctl({"on"}); // the user's word holds
    EXPECT_EQ(shown(), "ii");
    session_.run("xset", {"s", "reset"});
    letNocturoCatchUp();
    EXPECT_TRUE(isOn());
}

TEST_F(OnX, XScreenSaverPausesTheEffect) {
    start();
    std::ofstream(std::filesystem::path(session_.environment()["HOME"]) / ".xscreensaver")
        << "mode: blank\nlock: False\nfade: False\n";
    const auto saver = session_.start("xscreensaver", {"-no-splash"});
    const auto command = [&](const char* word) {
        return session_.run("xscreensaver-command", {word}).exit == 0;
    };
    ASSERT_TRUE(waitUntil([&] { return command("-time"); })) << saver->errors();
    ASSERT_TRUE(waitUntil([&] { return command("-activate"); })) << saver->errors();
    EXPECT_TRUE(becomes("oo"));
    EXPECT_TRUE(isSavedOn());
    command("-deactivate");
    EXPECT_TRUE(becomes("ii"));

    const char* property = "_SCREENSAVER_STATUS";
    client_.setRootProperty(property, {client_.atom("LOCK"), 1, 2});
    EXPECT_TRUE(becomes("oo"));
    saver->signal(SIGKILL); // its property stays
    EXPECT_TRUE(becomes("ii"));
    ctl({"quit"});
    nocturo_->wait();
    nocturo_ = session_.startNocturo();
    EXPECT_TRUE(becomes("ii"));
    letNocturoCatchUp();
    EXPECT_TRUE(isOn());
}

TEST_F(OnX, AnApplicationThatQuitsHasTheEffectAppliedAgain) {
    start();
    // Without a window manager, names on the session bus tell.
    const std::vector<std::string> someName = {"org.example.Player", "/", "org.example.Player"};
    auto player = session_.startMock(session_.bus(), someName[0], someName);
    overwrite();
    player.reset();
    EXPECT_TRUE(becomes("ii"));
    letNocturoCatchUp();
}

TEST_F(OnX, WakingUpAndComingToTheFrontHaveTheEffectAppliedAgain) {
    const auto login = startLoginManager();
    session_.environment()["XDG_SESSION_ID"] = "c1";
    start();
    setSessionProperty("Active", false);
    overwrite();
    setSessionProperty("Active", true);
    EXPECT_TRUE(becomes("ii"));

    overwrite();
    session_.systemBus().call(kLogin, "/org/freedesktop/login1", kMock, "EmitSignal", "sssav",
                              "org.freedesktop.login1.Manager", "PrepareForSleep", "b", 1, "b", 0);
    EXPECT_TRUE(becomes("ii"));
    overwrite(); // the driver comes late
    EXPECT_TRUE(becomes("ii", Milliseconds(3100)));
}

TEST_F(OnX, AProgramThatFightsIsCountedAndNamed) {
    start();
    EXPECT_EQ(status()["disturbances"], 0);
    EXPECT_EQ(ctl({"status"}).output.find("changes the colors"), std::string::npos);
    const char* name = "org.gnome.SettingsDaemon.Color";
    const auto nightLight =
        session_.startMock(session_.bus(), name, {name, "/org/gnome/SettingsDaemon/Color", name});
    session_.bus().call(name, "/org/gnome/SettingsDaemon/Color", kMock, "AddProperty", "ssv", name,
                        "NightLightActive", "b", 1);
    ctl({"set", "ContinuouslyApply", "true"});
    overwrite("DUMMY0");
    overwrite("DUMMY1");
    const Milliseconds tick(6500);
    EXPECT_TRUE(waitUntil([&] { return status()["disturber"] == "Night Light"; }, tick));
    EXPECT_EQ(status()["disturbances"], 2);
    EXPECT_EQ(shown(), "ii");

    const std::filesystem::path redshift = session_.runtimeDirectory() / "redshift";
    std::filesystem::create_symlink("/bin/sleep", redshift);
    const auto fighter = session_.start(redshift, {"60"});
    overwrite();
    EXPECT_TRUE(waitUntil([&] { return status()["disturber"] == "redshift"; }, tick));
    EXPECT_EQ(status()["disturbances"], 3);
    EXPECT_NE(ctl({"status"})
                  .output.find(
                      "redshift changes the colors too: found 3 times since Nocturo was started."),
              std::string::npos);
}

TEST_F(Simulated, ScreenSaversOfTheSessionBusPauseTheEffect) {
    const char* gnome = "org.gnome.ScreenSaver";
    const auto setActive = [&](bool active) {
        session_.bus().call(gnome, "/org/gnome/ScreenSaver", gnome, "SetActive", "b", int{active});
    };
    auto saver = session_.startMock(session_.bus(), gnome, {"--template", "gnome_screensaver"});
    setActive(true);
    start();
    EXPECT_TRUE(turns(false)); // it was active already
    EXPECT_TRUE(isSavedOn());
    setActive(false);
    EXPECT_TRUE(turns(true));
    setActive(true);
    EXPECT_TRUE(turns(false));
    saver.reset(); // a saver that is gone covers nothing
    EXPECT_TRUE(turns(true));
    saver = session_.startMock(session_.bus(), gnome, {"--template", "gnome_screensaver"});
    setActive(true);
    EXPECT_TRUE(turns(false));
}

TEST_F(Simulated, ASaverThatSpeaksFromTwoPathsIsCountedOnce) {
    const char* kde = "org.freedesktop.ScreenSaver";
    const auto saver = session_.startMock(session_.bus(), kde, {kde, "/ScreenSaver", kde});
    session_.bus().call(kde, "/ScreenSaver", kMock, "AddObject", "ssa{sv}a(ssss)",
                        "/org/freedesktop/ScreenSaver", kde, 0, 0);
    const auto activeChanged = [&](const char* path, bool active) {
        session_.bus().call(kde, path, kMock, "EmitSignal", "sssav", kde, "ActiveChanged", "b", 1,
                            "b", int{active});
    };
    start();
    activeChanged("/ScreenSaver", true);
    EXPECT_TRUE(turns(false));
    ctl({"on"});
    activeChanged("/org/freedesktop/ScreenSaver", true);
    EXPECT_TRUE(isOn());
    activeChanged("/ScreenSaver", false);
    activeChanged("/org/freedesktop/ScreenSaver", false);
    EXPECT_TRUE(isOn());
    activeChanged("/org/freedesktop/ScreenSaver", true);
    EXPECT_TRUE(turns(false));
}

TEST_F(Simulated, ALockedSessionPausesWhereNothingElseTells) {
    auto login = startLoginManager();
    // This process belongs to no session, so the user's graphical one is meant.
    session_.systemBus().call(kLogin, "/org/freedesktop/login1", kMock, "AddObject",
                              "ssa{sv}a(ssss)", "/org/freedesktop/login1/user/self",
                              "org.freedesktop.login1.User", 1, "Display", "(so)", "c1",
                              kLoginSession, 0);
    setSessionProperty("LockedHint", true);
    start();
    EXPECT_TRUE(turns(false)); // it was locked already
    setSessionProperty("LockedHint", false);
    EXPECT_TRUE(turns(true));

    const char* gnome = "org.gnome.ScreenSaver";
    const auto saver =
        session_.startMock(session_.bus(), gnome, {"--template", "gnome_screensaver"});
    session_.bus().call(gnome, "/org/gnome/ScreenSaver", gnome, "SetActive", "b", 1);
    EXPECT_TRUE(turns(false));
    session_.bus().call(gnome, "/org/gnome/ScreenSaver", gnome, "SetActive", "b", 0);
    EXPECT_TRUE(turns(true));
    setSessionProperty("LockedHint", true);
    // Comes after the lock on the same bus.
    setSessionProperty("Active", false);
    session_.bus().call(gnome, "/org/gnome/ScreenSaver", gnome, "SetActive", "b", 0);
    EXPECT_TRUE(isOn());
}

} // namespace

} // namespace nocturo::rig
