// The preference window as screen readers have it, over a real accessibility bus.

#include "nocturo_test.h"

#include <systemd/sd-bus.h>

#include <functional>
#include <map>

using namespace nocturo;
using namespace nocturo::rig;

constexpr const char* kAccessible = "org.a11y.atspi.Accessible";
constexpr const char* kRegistry = "org.a11y.atspi.Registry";
constexpr const char* kLauncher = "/usr/libexec/at-spi-bus-launcher";

/// One control as it is told.
struct Heard {
    std::string name;
    std::string value;
    std::string role{};
    bool isChecked = false;
    bool operator==(const Heard&) const = default;
};

/// Follows the tree and the events of the accessibility bus.
class ScreenReader {
  public:
    explicit ScreenReader(const std::string& address) : connection_(SessionBus::connect(address)) {
        sd_bus_match_signal(bus_, nullptr, nullptr, nullptr, "org.a11y.atspi.Event.Object",
                            "StateChanged", &ScreenReader::take, this);
        for (const char* event : {"object:state-changed:showing", "object:state-changed:focused"}) {
            sd_bus_call_method(bus_, kRegistry, "/org/a11y/atspi/registry", kRegistry,
                               "RegisterEvent", nullptr, nullptr, "s", event);
        }
    }

    /// The controls of everything that is shown, by role.
    std::multimap<std::string, Heard> controls() {
        std::multimap<std::string, Heard> found;
        read(kRegistry, "/org/a11y/atspi/accessible/root", found);
        return found;
    }

    /// What has the keyboard.
    Heard focused() {
        readEvents();
        const auto& [service, path] = focus_;
        return {name(service, path), {}, role(service, path), has(kChecked, service, path)};
    }

    /// Whether a notification with that text in it was announced, or is so soon.
    bool hears(const std::string& text) {
        return waitUntil([&] {
            readEvents();
            return std::ranges::any_of(announced_, [&](const std::string& each) {
                return each.find(text) != std::string::npos;
            });
        });
    }

  private:
    using Reply = std::unique_ptr<sd_bus_message, decltype(&sd_bus_message_unref)>;

    Reply call(const std::string& service, const std::string& path, const char* method) {
        sd_bus_message* reply = nullptr;
        sd_bus_call_method(bus_, service.c_str(), path.c_str(), kAccessible, method, nullptr,
                           &reply, "");
        return {reply, &sd_bus_message_unref};
    }
    std::string name(const std::string& service, const std::string& path) {
        char* value = nullptr;
        sd_bus_get_property_string(bus_, service.c_str(), path.c_str(), kAccessible, "Name",
                                   nullptr, &value);
        std::string text = value != nullptr ? value : "";
        std::free(value);
        return text;
    }
    std::string role(const std::string& service, const std::string& path) {
        const Reply reply = call(service, path, "GetRoleName");
        const char* name = nullptr;
        return reply != nullptr && sd_bus_message_read(reply.get(), "s", &name) > 0 ? name : "";
    }
    static constexpr unsigned kChecked = 1U << 4U;
    static constexpr unsigned kVisible = 1U << 30U;
    bool has(unsigned state, const std::string& service, const std::string& path) {
        const Reply reply = call(service, path, "GetState");
        unsigned states = 0;
        return reply != nullptr && sd_bus_message_enter_container(reply.get(), 'a', "u") > 0 &&
               sd_bus_message_read(reply.get(), "u", &states) > 0 && (states & state) != 0;
    }
    void readEvents() {
        while (sd_bus_process(bus_, nullptr) > 0) {
        }
    }
    void read(const std::string& service, const std::string& path,
              std::multimap<std::string, Heard>& found) {
        if (service != kRegistry && role(service, path) != "menu item" &&
            !has(kVisible, service, path)) {
            return;
        }
        double value = 0;
        const bool hasValue =
            sd_bus_get_property_trivial(bus_, service.c_str(), path.c_str(), "org.a11y.atspi.Value",
                                        "CurrentValue", nullptr, 'd', &value) >= 0;
        found.emplace(role(service, path),
                      Heard{name(service, path), hasValue ? std::to_string(value) : ""});
        const Reply children = call(service, path, "GetChildren");
        if (children == nullptr) {
            return;
        }
        sd_bus_message_enter_container(children.get(), 'a', "(so)");
        const char* childService = nullptr;
        const char* child = nullptr;
        while (sd_bus_message_read(children.get(), "(so)", &childService, &child) > 0) {
            read(childService, child, found);
        }
    }
    static int take(sd_bus_message* signal, void* self, sd_bus_error* /*error*/) {
        auto& reader = *static_cast<ScreenReader*>(self);
        const char* what = nullptr;
        int holds = 0;
        const std::string path = sd_bus_message_get_path(signal);
        const std::string sender = sd_bus_message_get_sender(signal);
        if (sd_bus_message_read(signal, "si", &what, &holds) <= 0 || holds != 1) {
            return 0;
        }
        if (std::string_view(what) == "focused") {
            reader.focus_ = {sender, path};
        } else if (reader.role(sender, path) == "notification") {
            reader.announced_.push_back(reader.name(sender, path));
        }
        return 0;
    }

    SessionBus::Bus connection_;
    sd_bus* bus_ = connection_.get();
    std::vector<std::string> announced_;
    std::pair<std::string, std::string> focus_;
};

struct Accessibility : NocturoOnX {
    Accessibility() : NocturoOnX(1) {
        session_.showWindows();
        session_.environment()["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1";
        session_.bus().offerService("org.a11y.Bus", kLauncher, session_.environment());
    }
    /// Its bus is told in words, which only gdbus reads out.
    std::string addressOfBus() {
        const std::string told =
            session_
                .run("gdbus", {"call", "--session", "--dest", "org.a11y.Bus", "--object-path",
                               "/org/a11y/bus", "--method", "org.a11y.Bus.GetAddress"})
                .output;
        const auto start = told.find('\'') + 1;
        return told.substr(start, told.find('\'', start) - start);
    }
    void press(const std::string& keys) { xdotool({"key", keys}); }
};

TEST_F(Accessibility, AFirstStartByKeyboardAloneIsHeard) {
    NEEDS("gdbus");
    if (!std::filesystem::exists(kLauncher)) {
        GTEST_SKIP() << "at-spi2-core is not installed";
    }
    const auto tray = session_.bus().connect();
    ASSERT_GE(sd_bus_request_name(tray.get(), "org.kde.StatusNotifierWatcher", 0), 0);
    ScreenReader reader(addressOfBus()); // first, as Qt asks once what is listened to
    nocturo_ = session_.startNocturo();
    const auto focus = [&](const std::string& title) { // as a window manager does
        xdotool({"windowfocus", "--sync", windowCalled(title)});
    };
    const auto hears = [&](const std::string& role, const std::string& name) {
        Heard heard;
        EXPECT_TRUE(waitUntil([&] {
            heard = reader.focused();
            return heard.role.find(role) != std::string::npos && heard.name == name;
        })) << role
            << ' ' << name << ", not " << heard.role << ' ' << heard.name;
    };
    const auto goTo = [&](const char* key, const std::string& role, const std::string& name) {
        for (int i = 0; i < 30 && reader.focused().name != name; ++i) {
            const Heard before = reader.focused();
            press(key);
            waitUntil([&] { return !(reader.focused() == before); });
        }
        hears(role, name);
    };
    const auto ticks = [&](bool checked) {
        press("space");
        EXPECT_TRUE(waitUntil([&] { return reader.focused().isChecked == checked; }))
            << reader.focused().name;
    };
    focus("^Nocturo$");
    hears("button", "Open preferences...");
    press("Escape");
    ASSERT_TRUE(waitUntil([&] { return !isShown("^Nocturo$"); }));
    focus("Nocturo Preferences");
    hears("list item", "Night reading");
    goTo("Right", "list item", "Warm evening");
    press("space");
    EXPECT_TRUE(reader.hears("On: "));
    EXPECT_TRUE(becomes("?") && status()["look"] == "Warm evening");
    press("ctrl+e");
    EXPECT_TRUE(reader.hears("Off. When on: "));
    EXPECT_TRUE(becomes("o"));
    goTo("shift+Tab", "button", "Not now");
    press("space");
    hears("page tab", "Looks and effects");
    press("ctrl+Next");
    hears("page tab", "Switching");
    goTo("Tab", "check box", "Switch on or off when Nocturo is started again");
    ticks(false);
    goTo("shift+Tab", "check box", "Start with the session");
    ticks(true);
    EXPECT_TRUE(std::filesystem::exists(session_.environment()["XDG_CONFIG_HOME"] +
                                        "/autostart/org.nocturo.Nocturo.desktop"));
    press("Escape");
    ASSERT_TRUE(waitUntil([&] { return !isShown("Preferences"); }));
    EXPECT_EQ(session_.run("nocturo").exit, 0);
    focus("Nocturo Preferences");

    auto controls = reader.controls();
    const auto has = [&](const std::string& role, const std::string& name) {
        const auto [first, last] = controls.equal_range(role);
        return std::any_of(first, last, [&](const auto& each) { return each.second.name == name; });
    };
    ctl({"schedule", "add", "07:00", "off"});
    ctl({"rules", "add", "game", "off"});
    for (const char* box :
         {"Choose looks by the clock and the sun", "Choose looks by what is in front", "Invert"}) {
        press("ctrl+Tab"); // to the next page
        EXPECT_TRUE(waitUntil([&] {
            controls.merge(reader.controls());
            return has("check box", box);
        })) << box;
    }
    for (const auto& [role, heard] : controls) {
        for (const char* kind : {"check box", "push button", "button", "slider", "spin button",
                                 "combo box", "radio button", "page tab", "list item"}) {
            EXPECT_TRUE(role != kind || !heard.name.empty()) << role;
        }
        EXPECT_TRUE(role != "slider" || !heard.value.empty()) << heard.name;
    }
    EXPECT_TRUE(has("check box", "Effect"));
    EXPECT_TRUE(has("list item", "Warm evening"));
    EXPECT_TRUE(has("slider", "Hue"));

    // Names of files are text, and ten of them are enough.
    session_.run("nocturo", std::vector<std::string>(12, "/<b>bold"));
    std::string refusal;
    for (int line = 0; line < 10; ++line) {
        refusal += "“<b>bold” is not an effect document.\n";
    }
    EXPECT_TRUE(waitUntil([&] {
        controls = reader.controls();
        return has("label", refusal + "and 2 more");
    }));
}
