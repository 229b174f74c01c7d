// Rules on a real X server with a real window manager and real windows.

#include "nocturo_test.h"
#include "rig/x_window.h"

using namespace nocturo;
using namespace nocturo::rig;

using namespace std::string_view_literals;

/// Two displays side by side, inverted while no rule says otherwise.
struct RulesOnX : NocturoOnX {
    RulesOnX() : NocturoOnX(2) {
        select("NDInvertEffect");
        nocturo_ = session_.startNocturo();
        ctl({"on"});
    }
    void startWindowManager() {
        manager_ = session_.start("openbox", {"--sm-disable"});
        ASSERT_TRUE(waitUntil([&] { return !client_.rootBytes(kManager).empty(); }));
    }
    /// On the second display.
    std::unique_ptr<XWindow> window(std::string_view program) {
        auto window = std::make_unique<XWindow>(session_.server().display(), program,
                                                XServer::kWidth + 50, 50);
        EXPECT_TRUE(manager_ == nullptr || waitUntil([&] { return isManaged(*window); }));
        return window;
    }
    /// What came while it started, openbox looks at when something else comes.
    bool isManaged(const XWindow& window) {
        client_.setRootProperty("_NUDGE", {1});
        const auto bytes = client_.rootBytes("_NET_CLIENT_LIST");
        std::vector<xcb_window_t> managed(bytes.size() / sizeof(xcb_window_t));
        std::memcpy(managed.data(), bytes.data(), managed.size() * sizeof(xcb_window_t));
        return std::find(managed.begin(), managed.end(), window.id()) != managed.end();
    }
    static constexpr const char* kManager = "_NET_SUPPORTING_WM_CHECK";

    std::unique_ptr<Process> manager_;
};

TEST_F(RulesOnX, HoldWhileAWindowFillsItsDisplayOrAProgramIsInFront) {
    NEEDS("openbox");
    startWindowManager();
    ctl({"rules", "add", "fullscreen", "off"});
    ctl({"rules", "add", "program", "Two words", "off"});
    auto film = window("film\0Film"sv);
    EXPECT_TRUE(becomes("ii"));
    film->setFullscreen(true);
    EXPECT_TRUE(becomes("io"));
    EXPECT_EQ(ctl({"status"})
                  .output.find("On: Invert on all screens. DUMMY1: Off; by the rule "
                               "\"fullscreen off\"\n"),
              0U);
    EXPECT_EQ(ctl({"rules"}).output, "  1  fullscreen off  (a window fills DUMMY1)\n"
                                     "  2  program \"Two words\" off\n");
    EXPECT_EQ(status()["displays"][1]["ruler"], "rule");
    film->setFullscreen(false);
    EXPECT_TRUE(becomes("ii"));
    film->setFullscreen(true);
    EXPECT_TRUE(becomes("io"));

    auto editor = window("a\0two WORDS"sv);
    EXPECT_TRUE(becomes("oo"));
    film->activate();
    EXPECT_TRUE(becomes("io"));
    film.reset();
    EXPECT_TRUE(becomes("oo"));
    editor.reset();
    EXPECT_TRUE(becomes("ii"));
    says("nocturoctl", {"rules", "add", "program", "mpv", "No such look"}, 2, "No such look");
}

TEST_F(RulesOnX, AreHurtByNothingThatWindowsSay) {
    NEEDS("openbox");
    ctl({"rules", "add", "fullscreen", "off"});
    ctl({"rules", "add", "program", "liar", "off"});
    EXPECT_NE(ctl({"rules"}).output.find("does not tell"), std::string::npos);
    std::vector<std::uint32_t> stack(100000);
    for (std::size_t i = 0; i < stack.size(); ++i) {
        stack[i] = static_cast<std::uint32_t>(i * 77);
    }
    const auto lying = window("liar"sv);
    XWindow& liar = *lying;
    liar.setProperty("_NET_WM_STATE", "STRING", 8, 3, "abc");
    liar.setProperty("_NET_WM_WINDOW_TYPE", "CARDINAL", 16, 2, "abcd");
    liar.setProperty("_NET_WM_DESKTOP", "ATOM", 8, 1, "a");
    stack.push_back(liar.id());
    client_.setRootProperty(kManager, {1});
    client_.setRootProperty("_NET_CLIENT_LIST_STACKING", stack);
    client_.setRootProperty("_NET_ACTIVE_WINDOW", {liar.id()});
    EXPECT_TRUE(becomes("oo")) << "the name needs no end";
    liar.setProperty("WM_CLASS", "STRING", 32, 1, "liar");
    client_.setRootProperty("_NET_ACTIVE_WINDOW", {0xFFFFFFFF});
    EXPECT_TRUE(becomes("ii"));
    liar.place(-30000, -30000, 65535, 65535);
    EXPECT_TRUE(becomes("oo")) << "it does fill them";
    const std::array maximized = {client_.atom("_NET_WM_STATE_MAXIMIZED_VERT"),
                                  client_.atom("_NET_WM_STATE_MAXIMIZED_HORZ")};
    liar.setProperty("_NET_WM_STATE", "ATOM", 32, 2, maximized.data());
    EXPECT_TRUE(becomes("ii"));
    liar.setProperty("_NET_WM_STATE", "STRING", 8, 3, "abc");
    EXPECT_TRUE(becomes("oo"));
    const std::array dialog = {client_.atom("_NET_WM_WINDOW_TYPE_DIALOG"),
                               client_.atom("_NET_WM_WINDOW_TYPE_NORMAL")};
    liar.setProperty("_NET_WM_WINDOW_TYPE", "ATOM", 32, 2, dialog.data());
    EXPECT_TRUE(becomes("ii")) << "as Qt says it";
    liar.setProperty("_NET_WM_WINDOW_TYPE", "STRING", 8, 3, "abc");
    EXPECT_TRUE(becomes("oo"));
    liar.place(0, 0, 1, 1);
    EXPECT_TRUE(becomes("ii"));
    for (int i = 0; i < 50; ++i) {
        const auto brief = window("liar"sv);
        client_.setRootProperty("_NET_CLIENT_LIST_STACKING", {brief->id(), liar.id()});
        client_.setRootProperty("_NET_ACTIVE_WINDOW", {brief->id()});
    }
    client_.setRootProperty("_NET_ACTIVE_WINDOW", {0});
    EXPECT_TRUE(becomes("ii"));
    ctl({"rules", "move", "1", "2"});
    EXPECT_LT(ctl({"rules"}).output.find("liar off"), ctl({"rules"}).output.find("fullscreen off"));
    says("nocturoctl", {"rules", "move", "3", "1"}, 2, "There is no rule 3.");
    ctl({"rules", "remove", "2"});
    ctl({"rules", "off"});
    EXPECT_NE(ctl({"rules"}).output.find("not in use"), std::string::npos);
}

TEST_F(RulesOnX, HoldWhileAGameAsksForTheMachine) {
    constexpr const char* kService = "com.feralinteractive.GameMode";
    constexpr const char* kPath = "/com/feralinteractive/GameMode";
    constexpr const char* kMock = "org.freedesktop.DBus.Mock";
    ctl({"rules", "add", "game", "off"});
    auto gameMode = session_.startMock(session_.bus(), kService, {kService, kPath, kService});
    const auto setGames = [&](int count) {
        session_.bus().call(kService, kPath, kMock, "UpdateProperties", "sa{sv}", kService, 1,
                            "ClientCount", "i", count);
    };
    session_.bus().call(kService, kPath, kMock, "AddProperty", "ssv", kService, "ClientCount", "i",
                        0);
    setGames(1);
    EXPECT_TRUE(becomes("oo"));
    EXPECT_EQ(ctl({"status"}).output.find("Off; by the rule \"game off\"\n"), 0U);
    setGames(-1);
    EXPECT_TRUE(becomes("ii"));
    setGames(2);
    EXPECT_TRUE(becomes("oo"));
    gameMode->signal(SIGSTOP); // and others say without end that it has changed
    const auto bus = session_.bus().connect();
    for (int i = 0; i < 2000; ++i) {
        sd_bus_message* news = nullptr;
        sd_bus_message_new_signal(bus.get(), &news, kPath, "org.freedesktop.DBus.Properties",
                                  "PropertiesChanged");
        sd_bus_message_set_destination(news, "org.nocturo.Nocturo");
        sd_bus_send(bus.get(), news, nullptr);
        sd_bus_message_unref(news);
    }
    sd_bus_flush(bus.get());
    EXPECT_EQ(status()["ruler"], "rule") << "the bus still takes calls";
    gameMode.reset();
    EXPECT_TRUE(becomes("ii"));

    NEEDS("gamemoded");
    const auto daemon = session_.start("gamemoded");
    ASSERT_TRUE(session_.bus().waitForName(kService, *daemon));
    const auto game = session_.start("sleep", {"1000"});
    const auto tell = [&](const char* method) {
        const auto process = static_cast<int>(game->id());
        session_.bus().call(kService, kPath, kService, method, "i", process);
    };
    tell("RegisterGame");
    EXPECT_TRUE(becomes("oo"));
    tell("UnregisterGame");
    EXPECT_TRUE(becomes("ii"));
}
