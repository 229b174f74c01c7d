// Displays with colour profiles, assigned as desktops do: on the root window, and through a real
// colord. Switching off and ending leave each display at its calibration, to the last bit.

#include "base/bus.h"
#include "base/event_loop.h"
#include "displays/calibration/profile_calibrations.h"
#include "nocturo_test.h"
#include "rig/color_profile.h"
#include "rig/sway.h"

using namespace nocturo;
using namespace nocturo::rig;

/// Calibrations and the profiles that hold them go by numbers.
struct ColorProfiles : NocturoOnX {
    ColorProfiles() : NocturoOnX(2) {}

    void start() {
        nocturo_ = session_.startNocturo();
        ctl({"effects", "only", "invert"});
        ctl({"off"});
    }
    void setProperty(const char* name, unsigned number) {
        client_.setRootBytes(name, colorProfile(calibration(number)));
    }
    bool shows(int display, const Channels& ramp) { return client_.ramp(output(display)) == ramp; }
    bool inverted(unsigned first, unsigned second) {
        return shows(0, reversed(calibration(first))) && shows(1, reversed(calibration(second)));
    }
    bool calibrated(unsigned first, unsigned second) {
        return shows(0, calibration(first)) && shows(1, calibration(second));
    }
};

TEST_F(ColorProfiles, OnTheRootWindowAreFollowed) {
    setProperty("_ICC_PROFILE", 1);
    setProperty("_ICC_PROFILE_1", 2);
    start();
    EXPECT_TRUE(waitUntil([&] { return calibrated(1, 2); }));
    ctl({"on"});
    EXPECT_TRUE(waitUntil([&] { return inverted(1, 2); }));
    setProperty("_ICC_PROFILE_1", 3);
    ctl({"effects", "add", "invert"}); // updates
    EXPECT_TRUE(waitUntil([&] { return shows(1, reversed(calibration(2))); }));
    ctl({"off"});
    EXPECT_TRUE(waitUntil([&] { return calibrated(1, 3); }));
    setProperty("_ICC_PROFILE", 4);
    ctl({"on"});
    EXPECT_TRUE(waitUntil([&] { return shows(0, reversed(calibration(4))); }));
    end();
    EXPECT_TRUE(calibrated(4, 3));
}

TEST_F(ColorProfiles, CostNothingWhenTheSystemBusIsSilent) {
    const auto bus = session_.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
    const std::string address = bus->readLine().value_or("");
    bus->signal(SIGSTOP); // the kernel still takes connections for it
    const auto before = std::chrono::steady_clock::now();
    EventLoop loop;
    const auto silent = Bus::connect(address, loop);
    ProfileCalibrations profiles(nullptr, silent.get());
    EXPECT_FALSE(profiles.calibration("DUMMY0", 256).settled);
    EXPECT_LT(std::chrono::steady_clock::now() - before, Milliseconds(200));
    EXPECT_FALSE(profiles.waitForAnswers(Milliseconds(10)));

    session_.environment()["DBUS_SYSTEM_BUS_ADDRESS"] = address;
    setProperty("_ICC_PROFILE", 1);
    setProperty("_ICC_PROFILE_1", 2);
    start();
    EXPECT_TRUE(waitUntil([&] { return calibrated(1, 2); }));
}

constexpr const char* kColord = "org.freedesktop.ColorManager";
constexpr const char* kColordPath = "/org/freedesktop/ColorManager";
constexpr const char* kDevice = "org.freedesktop.ColorManager.Device";
constexpr const char* kScope = "normal"; // outlives the connection that made it

struct ColorProfilesOfColord : ColorProfiles {
    // Its database is at a fixed place, so that place is another one for it.
    void SetUp() override {
        auto& bus = session_.systemBus();
        const char* script = "mount -t tmpfs none /var/lib/colord && for program in "
                             "/usr/libexec/colord /usr/lib/colord/colord /usr/lib/colord; do "
                             "[ ! -f $program ] || exec $program; done";
        colord_ = session_.start("unshare", {"--mount", "sh", "-c", script});
        if (!bus.waitForName(kColord, *colord_)) {
            GTEST_SKIP() << "colord cannot be run here: " << colord_->errors();
        }
    }

    /// Makes a profile the one of the display on a connector, which is announced if it is new.
    void assign(const std::string& connector, unsigned number) {
        auto& bus = session_.systemBus();
        std::string& device = devices_[connector];
        if (device.empty()) {
            device = bus.call(kColord, kColordPath, kColord, "CreateDevice", "ssa{ss}",
                              connector.c_str(), kScope, 3, "Kind", "display", "Colorspace", "rgb",
                              "XRANDR_name", connector.c_str());
        }
        const std::string path = file(number);
        const std::string profile =
            bus.call(kColord, kColordPath, kColord, "CreateProfile", "ssa{ss}", path.c_str(),
                     kScope, 1, "Filename", path.c_str());
        bus.call(kColord, device.c_str(), kDevice, "AddProfile", "so", "hard", profile.c_str());
        bus.call(kColord, device.c_str(), kDevice, "MakeProfileDefault", "o", profile.c_str());
    }
    std::filesystem::path file(unsigned number) const {
        const auto path = session_.runtimeDirectory() / (std::to_string(number) + ".icc");
        const auto bytes = colorProfile(calibration(number));
        writeText(path, {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
        return path;
    }
    /// Switches off until it shows that what colord said has arrived.
    bool offEndsCalibrated(unsigned first, unsigned second) {
        return waitUntil([&] {
            ctl({"off"});
            return calibrated(first, second);
        });
    }

    std::unique_ptr<Process> colord_;
    std::map<std::string, std::string> devices_; // object paths by connector
};

TEST_F(ColorProfilesOfColord, AreWhatEffectsStartFromUnderWayland) {
    if (const std::string why = Sway::whyMissing(); !why.empty()) {
        GTEST_SKIP() << why;
    }
    const Sway sway(1, 256);
    session_.environment()["WAYLAND_DISPLAY"] = sway.display();
    assign("HEADLESS-1", 2);
    select("NDInvertEffect");
    nocturo_ = session_.startNocturo();
    const auto holds = [&](const std::optional<Channels>& ramp) {
        return waitUntil([&] { return sway.ramp("HEADLESS-1") == ramp; });
    };
    EXPECT_TRUE(holds(reversed(calibration(2))));
    ctl({"off"});
    EXPECT_TRUE(holds(std::nullopt)); // as it was
    ctl({"on"});
    EXPECT_TRUE(holds(reversed(calibration(2))));
}

TEST_F(ColorProfilesOfColord, HoldWhenNocturoIsKilled) {
    setProperty("_ICC_PROFILE", 1);
    assign("DUMMY1", 2);
    start();
    ASSERT_TRUE(offEndsCalibrated(1, 2));
    ctl({"on"});
    kill(false);
    EXPECT_TRUE(waitUntil([&] { return calibrated(1, 2); }));

    const auto switchOn = [&] {
        nocturo_ = session_.startNocturo();
        ctl({"effects", "only", "invert"}); // a killed one may have left the choice unwritten
        ctl({"on"});
        EXPECT_TRUE(waitUntil([&] { return inverted(1, 2); })); // of what it found
    };
    const auto loseTheJournal = [&] {
        switchOn();
        kill(true);
        damageJournal();
    };
    loseTheJournal();
    EXPECT_NE(ctl({"restore"}).output.find("those of their color profiles"), std::string::npos);
    EXPECT_TRUE(calibrated(1, 2));
    loseTheJournal();
    switchOn();
    EXPECT_TRUE(nocturo_->waitForError("is missing or damaged"));
    ctl({"off"});
    EXPECT_TRUE(waitUntil([&] { return calibrated(1, 2); }));
}

TEST_F(ColorProfilesOfColord, ComeFirst) {
    setProperty("_ICC_PROFILE", 9);
    setProperty("_ICC_PROFILE_1", 2);
    assign("DUMMY0", 1);
    start();
    EXPECT_TRUE(offEndsCalibrated(1, 2));
    ctl({"on"});
    assign("DUMMY1", 3);
    EXPECT_TRUE(offEndsCalibrated(1, 3));
    ctl({"on"});
    EXPECT_TRUE(waitUntil([&] { return inverted(1, 3); }));
    assign("DUMMY0", 5);
    EXPECT_TRUE(shows(0, reversed(calibration(1)))) << "a running effect keeps its curve";
    EXPECT_TRUE(offEndsCalibrated(5, 3));
    session_.systemBus().call(kColord, kColordPath, kColord, "DeleteDevice", "o",
                              std::exchange(devices_["DUMMY0"], {}).c_str());
    EXPECT_TRUE(offEndsCalibrated(9, 3));
    assign("DUMMY0", 6);
    EXPECT_TRUE(offEndsCalibrated(6, 3));
    ctl({"on"});
    end();
    EXPECT_TRUE(calibrated(6, 3));
    EXPECT_EQ(nocturo_->errors(), kNoEffectSentence);
}

TEST_F(ColorProfilesOfColord, ThatAreBrokenAreRefusedWithASentence) {
    const auto path = file(1);
    assign("DUMMY0", 1);
    std::filesystem::resize_file(path, 400);
    client_.setRootBytes("_ICC_PROFILE", {1, 2, 3});
    setProperty("_ICC_PROFILE_1", 2);
    start();
    ASSERT_TRUE(nocturo_->waitForError("1.icc is not used"));
    ctl({"on"});
    ctl({"off"});
    EXPECT_TRUE(waitUntil([&] { return shows(0, own_[0]); }));
    EXPECT_TRUE(waitUntil([&] { return shows(1, calibration(2)); }));
    const std::string& said = nocturo_->errors();
    EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 3) << said; // and no effect
    EXPECT_NE(said.find("_ICC_PROFILE is not used"), std::string::npos) << said;
}
