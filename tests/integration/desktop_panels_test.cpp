// The status item in panels that people use: that it is seen, clicked and comes back.

#include "nocturo_test.h"
#include "x11/xcb_handles.h"

using namespace nocturo;
using namespace nocturo::rig;

/// A color as an X server of 24 bits holds it.
using Pixel = std::uint32_t;
constexpr Pixel kDark = 0x363636; // of the image, where no color is asked for

constexpr const char* kPortal = "org.freedesktop.portal.Desktop";
constexpr const char* kSettings = "org.freedesktop.portal.Settings";

struct DesktopPanels : NocturoOnX {
    DesktopPanels() : NocturoOnX(2) {
        session_.showWindows();
        // Nocturo may be installed here, and its icons with it.
        session_.environment()["XDG_DATA_DIRS"] = session_.runtimeDirectory();
        select("NDInvertEffect", "<key>ShowStatusItem</key><integer>1</integer>");
    }

    /// The pixels of that color in the corner where panels stand.
    int count(Pixel color) { return count(color, color); }
    int count(Pixel first, Pixel last) {
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(server_.get())).data->root;
        const auto cookie = xcb_get_image(server_.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, root, 0, 0, 100,
                                          32, 0x00ffffff);
        const XcbReply<xcb_get_image_reply_t> image(
            xcb_get_image_reply(server_.get(), cookie, nullptr));
        if (!image) {
            return -1;
        }
        const auto* pixels = reinterpret_cast<const Pixel*>(xcb_get_image_data(image.get()));
        const auto length = static_cast<std::size_t>(xcb_get_image_data_length(image.get()));
        return static_cast<int>(
            std::count_if(pixels, pixels + length / sizeof(Pixel),
                          [=](Pixel each) { return first <= each && each <= last; }));
    }

    /// The desktop's portal, which tells that windows are to be dark.
    std::unique_ptr<Process> startPortal() {
        auto portal = session_.startMock(session_.bus(), kPortal,
                                         {kPortal, "/org/freedesktop/portal/desktop", kSettings});
        mock("AddMethod", "sssss", kSettings, "Read", "ss", "v",
             "ret = dbus.UInt32(1, variant_level=2)");
        return portal;
    }
    template <typename... Arguments>
    void mock(const char* method, const char* types, Arguments... arguments) {
        session_.bus().call(kPortal, "/org/freedesktop/portal/desktop", "org.freedesktop.DBus.Mock",
                            method, types, arguments...);
    }

    void setTrayColor(std::uint16_t red, std::uint16_t green, std::uint16_t blue) {
        const auto cookie =
            xcb_get_selection_owner(server_.get(), client_.atom("_NET_SYSTEM_TRAY_S0"));
        const XcbReply<xcb_get_selection_owner_reply_t> tray(
            xcb_get_selection_owner_reply(server_.get(), cookie, nullptr));
        const std::array<std::uint32_t, 12> colors = {red, green, blue};
        ASSERT_NE(tray, nullptr);
        xcb_change_property(server_.get(), XCB_PROP_MODE_REPLACE, tray->owner,
                            client_.atom("_NET_SYSTEM_TRAY_COLORS"), XCB_ATOM_CARDINAL, 32,
                            colors.size(), colors.data());
        xcb_flush(server_.get());
    }

    std::unique_ptr<Process> startTrayer() {
        return session_.start("trayer", {"--edge", "top", "--align", "left", "--widthtype", "pixel",
                                         "--width", "100", "--height", "32", "--transparent",
                                         "true", "--alpha", "0", "--tint", "0"});
    }
    std::unique_ptr<Process> startLxqtPanel() {
        const std::string file = session_.runtimeDirectory() / "panel.conf";
        std::ofstream(file) << "panels=panel1\n[panel1]\nplugins=statusnotifier\nposition=Top\n"
                               "panelSize=32\niconSize=22\nalignment=-1\n"
                               "[statusnotifier]\ntype=statusnotifier\n";
        return session_.start("lxqt-panel", {"-c", file});
    }

    /// What the item tells panels to show of it.
    std::string toolTip() {
        const auto property = [&](const std::string& service, const std::string& path,
                                  const std::string& interface, const std::string& name) {
            return session_
                .run("gdbus", {"call", "--session", "-d", service, "-o", path, "-m",
                               "org.freedesktop.DBus.Properties.Get", interface, name})
                .output;
        };
        const std::string watcher = "org.kde.StatusNotifierWatcher";
        const std::string items =
            property(watcher, "/StatusNotifierWatcher", watcher, "RegisteredStatusNotifierItems");
        const auto start = items.find('\'') + 1; // (<[':1.7/StatusNotifierItem']>,)
        return property(items.substr(start, items.find('/') - start), "/StatusNotifierItem",
                        "org.kde.StatusNotifierItem", "ToolTip");
    }

    XcbConnection server_{xcb_connect(session_.server().display().c_str(), nullptr)};
};

TEST_F(DesktopPanels, ATrayWindowChoosesTheColorOfTheImage) {
    NEEDS("trayer")
    const auto trayer = startTrayer();
    nocturo_ = session_.startNocturo();
    EXPECT_TRUE(waitUntil([&] { return count(kDark) > 50 && count(0xffffff) > 20; }));
    setTrayColor(0xffff, 0, 0x8080);
    EXPECT_TRUE(waitUntil([&] { return count(0xff0080) > 100; }));
    EXPECT_EQ(count(kDark), 0);
    setTrayColor(0, 0xffff, 0);
    EXPECT_TRUE(waitUntil([&] { return count(0x00ff00) > 100; }));
}

TEST_F(DesktopPanels, ATrayWindowHoldsTheItemWheneverThereIsOne) {
    NEEDS("trayer")
    const auto embeddedBecomes = [&](bool embedded) {
        return waitUntil([&] {
            const RunResult tree = session_.run("xwininfo", {"-name", "panel", "-tree"});
            return (tree.output.find("\"Nocturo\"") != std::string::npos) == embedded;
        });
    };
    nocturo_ = session_.startNocturo();
    status(); // answered once it has looked for a tray in vain
    auto trayer = startTrayer();
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

TEST_F(DesktopPanels, LxqtShowsTheItemBeforeAfterAndAgain) {
    NEEDS("lxqt-panel")
    const auto isShown = [&] { return count(kDark) > 20; };
    const auto click = [&](const char* button) {
        xdotool({"mousemove", "15", "15", "click", button});
    };
    nocturo_ = session_.startNocturo();
    ASSERT_TRUE(becomes("ii"));
    auto panel = startLxqtPanel(); // late, as at a log-in
    ASSERT_TRUE(waitUntil(isShown));
    click("5"); // the wheel
    EXPECT_TRUE(waitUntil([&] { return status()["dimLevel"] == -0.05; }));
    EXPECT_TRUE(waitUntil([&] { return toolTip().find("On: Invert, Dim \u22125 %") + 1 != 0; }));
    ctl({"effects", "only", "invert"});
    click("2");
    EXPECT_TRUE(becomes("oo"));

    for (const bool busToo : {false, true}) {
        panel->signal(SIGKILL);
        panel->wait();
        ASSERT_EQ(count(kDark), 0);
        if (busToo) {
            session_.bus().end();
            session_.bus().start();
        }
        panel = startLxqtPanel();
        ASSERT_TRUE(waitUntil(isShown)) << busToo;
    }
    click("3");
    EXPECT_TRUE(waitUntil([&] { // the last item of its menu quits
        xdotool({"key", "Up", "Return"});
        return !nocturo_->isRunning();
    }));
    ASSERT_EQ(nocturo_->wait(), 0);
    EXPECT_TRUE(waitUntil([&] { return count(kDark) == 0; }));

    nocturo_ = session_.startNocturo(); // after the panel
    ASSERT_TRUE(waitUntil(isShown));
    // The panel's own menu, of what the item tells it; its first item switches.
    click("3");
    EXPECT_TRUE(waitUntil([&] {
        xdotool({"key", "Home", "Return"});
        return shown() == "ii";
    }));
    // Version 1 of the panel leaves it to the item to show its menu at the pointer.
    if (session_.run("lxqt-panel", {"--version"}).output.find(" 1.") != std::string::npos) {
        EXPECT_TRUE(waitUntil([&] {
            click("1");
            xdotool({"mousemove", "60", "30", "click", "1"});
            return shown() == "oo";
        }));
    }
    EXPECT_EQ(nocturo_->errors(), "");
}

TEST_F(DesktopPanels, WindowsAreDarkWhileTheDesktopIs) {
    const auto portal = startPortal();
    nocturo_ = session_.startNocturo();
    ctl({"preferences"});
    xdotool({"windowmove", windowCalled("Nocturo Preferences"), "0", "0"});
    EXPECT_TRUE(waitUntil([&] { return count(0x202020, 0x404040) > 500; }));
    mock("EmitSignal", "sssav", kSettings, "SettingChanged", "ssv", 3, "s",
         "org.freedesktop.appearance", "s", "color-scheme", "u", 2U);
    EXPECT_TRUE(waitUntil([&] { return count(0xe0e0e0, 0xffffff) > 500; }));
}
