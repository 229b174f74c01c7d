// The hot key service of Wayland desktops against a portal that answers as it is told to: late,
// with refusals, with nonsense, or not any more.

#include "base/bus_dictionary.h"
#include "base/event_loop.h"
#include "hotkeys/keyboard/keyboard_layout.h"
#include "hotkeys/keyboard/modifier_flags.h"
#include "hotkeys/portal/key_trigger.h"
#include "hotkeys/portal/portal_hot_key_service.h"
#include "rig/session_bus.h"
#include "rig/wait.h"
#include "unit/temporary_directory.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>

#include <poll.h>

using namespace nocturo;

using State = HotKeyGrant::State;
using Told = std::vector<std::string>;

constexpr const char* kShortcuts = "org.freedesktop.portal.GlobalShortcuts";
constexpr std::uint16_t kF5 = 96;

/// What a portal does with one call; true when it has answered.
using Answer = std::function<bool(sd_bus_message* call)>;

class Portal {
  public:
    Portal(const std::string& address, EventLoop& loop) : bus_(Bus::connect(address, loop)) {
        sd_bus_add_filter(bus_->handle(), nullptr, serve, this);
        EXPECT_EQ(bus_->claimName(kPortal, 5000), Bus::Claim::granted);
    }

    Told calls; // the methods called, with the key that is wished
    std::uint32_t version = 2;
    std::map<std::string, Answer> answers; // instead of the usual ones

    /// Answers the call that came last, with entries as sd_bus_message_append takes them.
    template <typename... Entry>
    void respond(std::uint32_t code, Entry... entry) {
        signal(request_.c_str(), "org.freedesktop.portal.Request", "Response", "ua{sv}", code,
               static_cast<int>(sizeof...(entry) / 3), entry...);
    }
    template <typename... Arguments>
    void signal(const char* path, const char* interface, const char* name, const char* types,
                Arguments... arguments) {
        sd_bus_emit_signal(bus_->handle(), path, interface, name, types, arguments...);
    }
    void shortcut(const char* name, std::uint64_t time) {
        signal(kPortalPath, kShortcuts, name, "osta{sv}", session.c_str(), "toggle", time, 1,
               "activation_token", "s", "token");
    }
    void grant(const char* trigger) {
        signal(request_.c_str(), "org.freedesktop.portal.Request", "Response", "ua{sv}", 0, 2,
               "extra", "i", 7, "shortcuts", "a(sa{sv})", 1, "toggle", 2, "description", "s",
               "Toggle", "trigger_description", "s", trigger);
    }
    void grantSession() {
        signal(request_.c_str(), "org.freedesktop.portal.Request", "Response", "ua{sv}", 0, 2,
               "session_handle", "s", session.c_str(), "extra", "i", 7);
    }
    static bool refuse(sd_bus_message* call) {
        return sd_bus_reply_method_errorf(call, "org.freedesktop.portal.Error.NotAllowed",
                                          "An app id is required") >= 0;
    }

    std::string session;

  private:
    static int serve(sd_bus_message* call, void* self, sd_bus_error* /*error*/) {
        return sd_bus_message_is_method_call(call, nullptr, nullptr) > 0
                   ? static_cast<Portal*>(self)->serve(call)
                   : 0;
    }
    int serve(sd_bus_message* call) {
        const std::string method = sd_bus_message_get_member(call);
        calls.push_back(method);
        if (const auto answer = answers.find(method); answer != answers.end()) {
            return static_cast<int>(answer->second(call));
        }
        if (method == "Get") {
            sd_bus_reply_method_return(call, "v", "u", version);
        } else if (method == "CreateSession" || method == "BindShortcuts") {
            readOptions(call, method);
            sd_bus_reply_method_return(call, "o", request_.c_str());
        } else if (sd_bus_message_get_expect_reply(call) > 0) {
            sd_bus_reply_method_return(call, nullptr);
        }
        return 1;
    }
    void readOptions(sd_bus_message* call, const std::string& method) {
        std::string sender = sd_bus_message_get_sender(call) + 1;
        std::replace(sender.begin(), sender.end(), '.', '_');
        session = std::string(kPortalPath) + "/session/" + sender + "/nocturo";
        if (method == "BindShortcuts") {
            sd_bus_message_skip(call, "o");
            sd_bus_message_enter_container(call, 'a', "(sa{sv})");
            sd_bus_message_enter_container(call, 'r', "sa{sv}");
            sd_bus_message_skip(call, "s");
            forEachEntry(call, [&](std::string_view key) {
                const std::string text = readTextVariant(call);
                calls.back() += key == "preferred_trigger" ? " " + text : "";
            });
            sd_bus_message_exit_container(call);
            sd_bus_message_exit_container(call);
            sd_bus_message_skip(call, "s");
        }
        forEachEntry(call, [&](std::string_view key) {
            const std::string text = readTextVariant(call);
            if (key == "handle_token") {
                request_ = std::string(kPortalPath) + "/request/" + sender + "/" + text;
            }
        });
    }

    std::string request_;
    std::unique_ptr<Bus> bus_;
};

struct Layout : KeyboardLayout {
    std::string textForKeyDown(std::uint16_t /*key*/, std::uint32_t /*state*/) override {
        return {};
    }
    std::string keySymName(std::uint16_t key) override { return key == kF5 ? "F5" : ""; }
};

struct PortalHotKeys : testing::Test {
    PortalHotKeys() {
        portal.emplace(bus.address(), loop);
        start();
    }
    /// As at the beginning of a session.
    void start() {
        service.reset();
        service.emplace(PortalHotKeyService::Surroundings{
            connection.get(), loop, &layout, GrantedHotKeys(directory / "state.plist", "sway"),
            [] {}});
        service->setHandlers(
            [this](const auto& event) {
                told.push_back("release " + std::to_string(event.hotKeyID.id));
            },
            [this](const auto& event) {
                told.push_back("press " + std::to_string(event.hotKeyID.id));
            });
    }
    void claim() {
        portal->calls.clear();
        handle = *service->registerHotKey(kF5, controlKey | cmdKey, {1, 5});
    }
    void claimAndBind() {
        service->launchDidFinish();
        claim();
        createsSessionAndBinds();
    }
    void createsSession() {
        EXPECT_TRUE(becomes([&] { return called("CreateSession"); }));
    }
    void createsSessionAndBinds() {
        createsSession();
        portal->grantSession();
        EXPECT_TRUE(becomes([&] { return called("BindShortcuts CTRL+LOGO+F5"); }));
    }
    bool called(const std::string& last) {
        return !portal->calls.empty() && portal->calls.back() == last;
    }
    State state() const { return service->grantOf(handle).state; }

    bool becomes(const std::function<bool()>& condition) {
        const auto end = std::chrono::steady_clock::now() + rig::kPatience;
        while (!condition() && std::chrono::steady_clock::now() < end) {
            const bool due = loop.prepare();
            pollfd source{loop.descriptor(), POLLIN, 0};
            if (due || poll(&source, 1, 100) == 1) {
                loop.dispatchPending();
            }
        }
        return condition();
    }
    bool becomes(State wanted) {
        return becomes([&] { return state() == wanted; });
    }

    TemporaryDirectory directory;
    rig::SessionBus bus;
    EventLoop loop;
    std::unique_ptr<Bus> connection = Bus::connect(bus.address(), loop);
    std::optional<Portal> portal;
    Layout layout;
    std::optional<PortalHotKeyService> service;
    HotKeyHandle handle{};
    Told told;
};

TEST_F(PortalHotKeys, WaitsForTheUserAndTogglesOnceForEachPress) {
    claimAndBind();
    EXPECT_EQ(portal->calls,
              (Told{"Register", "Get", "CreateSession", "BindShortcuts CTRL+LOGO+F5"}));
    EXPECT_EQ(state(), State::asked);
    portal->grant("Press\n Meta+F9");
    EXPECT_TRUE(becomes(State::inForce));
    EXPECT_EQ(service->grantOf(handle).trigger, "Press Meta+F9");
    unsetenv("XDG_ACTIVATION_TOKEN");
    for (const char* signal :
         {"Deactivated", "Activated", "Activated", "Deactivated", "Activated"}) {
        portal->shortcut(signal, 1);
    }
    EXPECT_TRUE(becomes([&] { return told.size() >= 3; }));
    EXPECT_EQ(told, (Told{"press 5", "release 5", "press 5"}));
    EXPECT_STREQ(getenv("XDG_ACTIVATION_TOKEN"), "token");

    portal->signal(kPortalPath, kShortcuts, "ShortcutsChanged", "oa(sa{sv})",
                   portal->session.c_str(), 1, "toggle", 1, "trigger_description", "s", "F10");
    EXPECT_TRUE(becomes([&] { return service->grantOf(handle).trigger == "F10"; }));
    service->askAgain(handle);
    EXPECT_TRUE(becomes([&] { return called("ConfigureShortcuts"); }));
    service->unregisterHotKey(handle);
    EXPECT_TRUE(becomes([&] { return called("Close"); }));
    portal->shortcut("Deactivated", 1);
    service->registerHotKey(kF5, 0, {1, 6});
    createsSession();
    EXPECT_EQ(told.size(), 3U);
}

TEST_F(PortalHotKeys, OpensNoDialogAtTheStartBeforeItWasGrantedOnce) {
    claim();
    EXPECT_TRUE(becomes(State::notAsked));
    EXPECT_EQ(portal->calls, (Told{"Register", "Get"}));
    service->hotKeyWasSet();
    EXPECT_EQ(state(), State::notAsked) << "the launch is no user";
    start();
    claimAndBind();
    portal->grant("F5");
    EXPECT_TRUE(becomes(State::inForce));
    start();
    claim();
    createsSessionAndBinds();
    portal->respond(1);
    EXPECT_TRUE(becomes(State::refused));
    start();
    claim();
    EXPECT_TRUE(becomes(State::notAsked));
}

TEST_F(PortalHotKeys, TakesARefusalAndNonsenseForWhatTheyAre) {
    service->launchDidFinish();
    const auto outcome = [&](const std::string& method, const Answer& answer, State expected) {
        portal->answers = {{method, answer}};
        claim();
        if (method == "BindShortcuts") {
            createsSession();
            portal->grantSession();
        }
        EXPECT_TRUE(becomes(expected)) << method << static_cast<int>(state());
        service->unregisterHotKey(handle);
    };
    outcome(
        "Get", [](auto* call) { return sd_bus_reply_method_return(call, "v", "s", "2") >= 0; },
        State::notOffered);
    outcome(
        "Get", [](auto* call) { return sd_bus_reply_method_return(call, "u", 2) >= 0; },
        State::notOffered);
    outcome("Get", Portal::refuse, State::notOffered);
    outcome("CreateSession", Portal::refuse, State::refused);
    outcome("BindShortcuts", Portal::refuse, State::refused);
    portal->answers.clear();

    const auto after = [&](const std::function<void()>& respond, bool binds) {
        claim();
        binds ? createsSessionAndBinds() : createsSession();
        respond();
        EXPECT_TRUE(becomes([&] { return state() != State::asked; }));
        const State came = state();
        service->unregisterHotKey(handle);
        return came;
    };
    const std::function<void()> answers[] = {
        [&] { portal->respond(2); }, [&] { portal->respond(0); },
        [&] { portal->respond(0, "session_handle", "u", 7); },
        [&] { portal->respond(0, "session_handle", "s", "no path"); },
        [&] { portal->respond(0, "shortcuts", "s", "toggle"); }}; // the last tells nothing
    for (const auto& answer : answers) {
        EXPECT_EQ(after(answer, false), State::refused);
    }
    EXPECT_EQ(after(answers[0], true), State::refused);
    EXPECT_EQ(after(answers[4], true), State::inForce);
    EXPECT_EQ(after(answers[1], true), State::inForce);
    service->askAgain(handle); // of nothing
    EXPECT_EQ(service->grantOf(handle).configuration, "");
}

TEST_F(PortalHotKeys, FollowsPortalsThatGoAndSessionsThatAreClosed) {
    claimAndBind();
    portal->grant("F5");
    EXPECT_TRUE(becomes(State::inForce));
    portal.reset();
    EXPECT_TRUE(becomes(State::asked));
    portal.emplace(bus.address(), loop);
    const auto rejoins = [&] {
        createsSessionAndBinds();
        portal->grant("F5");
        EXPECT_TRUE(becomes(State::inForce));
    };
    rejoins();
    EXPECT_EQ(portal->calls.front(), "Register");

    const auto close = [&] {
        portal->signal(portal->session.c_str(), "org.freedesktop.portal.Session", "Closed", "");
    };
    close();
    rejoins();
    close();
    EXPECT_TRUE(becomes(State::refused));

    portal.reset();
    service->hotKeyWasSet();
    EXPECT_TRUE(becomes(State::notOffered));
    EXPECT_EQ(service->grantOf(handle).configuration,
              "bindsym Ctrl+Mod4+F5 exec nocturoctl toggle");
    portal.emplace(bus.address(), loop);
    EXPECT_TRUE(becomes([&] { return called("CreateSession"); })) << "granted before";
}

TEST(DesktopConfiguration, IsWrittenAsEachDesktopReadsIt) {
    Layout layout;
    const auto line = [&](const char* desktop, std::uint16_t key = kF5) {
        return desktopConfiguration(desktop, key, cmdKey | shiftKey | optionKey, &layout);
    };
    EXPECT_EQ(line("sway:wlroots"), "bindsym Mod1+Shift+Mod4+F5 exec nocturoctl toggle");
    EXPECT_EQ(line("Hyprland"), "bind = ALT SHIFT SUPER, F5, exec, nocturoctl toggle");
    EXPECT_EQ(line("niri"), "Alt+Shift+Super+F5 { spawn \"nocturoctl\" \"toggle\"; }");
    EXPECT_EQ(line("wlroots:labwc"),
              "<keybind key=\"A-S-W-F5\"><action name=\"Execute\" command=\"nocturoctl toggle\"/>"
              "</keybind>");
    EXPECT_EQ(line("COSMIC"), "nocturoctl toggle");
    EXPECT_EQ(line("sway", 0), "nocturoctl toggle") << "a key without a symbol";
    EXPECT_EQ(desktopConfiguration("Hyprland", kF5, 0, &layout),
              "bind = , F5, exec, nocturoctl toggle");
}
