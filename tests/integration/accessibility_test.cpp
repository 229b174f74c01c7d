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
};

/// Follows the tree and the events of the accessibility bus.
class ScreenReader {
  public:
    explicit ScreenReader(const std::string& address) : connection_(SessionBus::connect(address)) {
        sd_bus_match_signal(bus_, nullptr, nullptr, nullptr, "org.a11y.atspi.Event.Object",
                            "StateChanged", &ScreenReader::take, this);
        sd_bus_call_method(bus_, kRegistry, "/org/a11y/atspi/registry", kRegistry, "RegisterEvent",
                           nullptr, nullptr, "s", "object:state-changed:showing");
    }

    /// The controls of everything that is shown, by role.
    std::multimap<std::string, Heard> controls() {
        std::multimap<std::string, Heard> found;
        read(kRegistry, "/org/a11y/atspi/accessible/root", found);
        return found;
    }

    /// Whether a notification with that text in it was announced, or is so soon.
    bool hears(const std::string& text) {
        return waitUntil([&] {
            while (sd_bus_process(bus_, nullptr) > 0) {
            }
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
    bool isVisible(const std::string& service, const std::string& path) {
        constexpr unsigned kVisible = 1U << 30U;
        const Reply reply = call(service, path, "GetState");
        unsigned states = 0;
        return reply == nullptr || sd_bus_message_enter_container(reply.get(), 'a', "u") <= 0 ||
               sd_bus_message_read(reply.get(), "u", &states) <= 0 || (states & kVisible) != 0 ||
               role(service, path) == "menu item" || service == kRegistry;
    }
    void read(const std::string& service, const std::string& path,
              std::multimap<std::string, Heard>& found) {
        if (!isVisible(service, path)) {
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
        int shown = 0;
        const std::string path = sd_bus_message_get_path(signal);
        const std::string sender = sd_bus_message_get_sender(signal);
        if (sd_bus_message_read(signal, "si", &what, &shown) > 0 &&
            std::string_view(what) == "showing" && shown == 1 &&
            reader.role(sender, path) == "notification") {
            reader.announced_.push_back(reader.name(sender, path));
        }
        return 0;
    }

    SessionBus::Bus connection_;
    sd_bus* bus_ = connection_.get();
    std::vector<std::string> announced_;
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
    ScreenReader reader(addressOfBus()); // first, as Qt asks once what is listened to
    nocturo_ = session_.startNocturo();
    // As a window manager does, and the keyboard is at the sheet, later at the looks.
    const auto focus = [&](const std::string& title) {
        xdotool({"windowfocus", "--sync", windowCalled(title)});
    };
    focus("^Nocturo$");
    press("Escape");
    ASSERT_TRUE(waitUntil([&] { return !isShown("^Nocturo$"); }));
    focus("Nocturo Preferences");
    for (const char* key : {"Right", "space"}) {
        press(key);
    }
    ASSERT_TRUE(waitUntil([&] { return status()["look"] == "Warm evening"; })) << status()["look"];
    EXPECT_TRUE(reader.hears("On: "));
    ctl({"off"});
    EXPECT_TRUE(reader.hears("Off. When on: "));

    auto controls = reader.controls();
    const auto has = [&](const std::string& role, const std::string& name) {
        const auto [first, last] = controls.equal_range(role);
        return std::any_of(first, last, [&](const auto& each) { return each.second.name == name; });
    };
    ctl({"schedule", "add", "07:00", "off"});
    ctl({"rules", "add", "game", "off"});
    for (const char* box : {"Start with the session", "Choose looks by the clock and the sun",
                            "Choose looks by what is in front"}) {
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
