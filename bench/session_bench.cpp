// What users wait for, and what the running program costs, on a real X server with four displays
// and a session bus.

#include "app/app_controller.h"
#include "base/notification_center.h"
#include "base/run_loop.h"
#include "ctl/bus_client.h"
#include "ctl/failure.h"
#include "displays/display_functions.h"
#include "displays/ramp_display_services.h"
#include "displays/x11/randr_hardware.h"
#include "effects/effect_registry.h"
#include "figures.h"
#include "hotkeys/hot_key_center.h"
#include "hotkeys/key_naming.h"
#include "hotkeys/keyboard/modifier_flags.h"
#include "hotkeys/keyboard/xkb_keyboard_layout.h"
#include "hotkeys/x11/x11_hot_key_service.h"
#include "rig/session.h"
#include "rig/x_window.h"
#include "running_costs.h"
#include "settings/defaults_store.h"
#include "x11/x_connection.h"

#include <algorithm>
#include <chrono>
#include <cstring>
#include <ctime>
#include <exception>
#include <iostream>
#include <linux/input-event-codes.h>
#include <poll.h>
#include <stdexcept>

namespace nocturo {

namespace {

using SteadyClock = std::chrono::steady_clock;

double microsecondsSince(SteadyClock::time_point start) {
    return std::chrono::duration<double, std::micro>(SteadyClock::now() - start).count();
}

PropertyArray allEffects() {
    PropertyArray names;
    for (const SelectableEffect& effect : selectableEffects()) {
        names.emplace_back(std::string(effect.className));
    }
    return names;
}

/// Reads again and again: servers tell nobody that a ramp was written.
void waitForChange(rig::XClient& observer, std::uint32_t crtc, const rig::Channels& before) {
    const auto start = SteadyClock::now();
    while (observer.ramp(crtc) == before) {
        if (microsecondsSince(start) > 1e6) {
            throw std::runtime_error("the last display's ramp did not change");
        }
    }
}

/// From the call that makes a change, each time another one, to the last display's ramp seen
/// changed by another program; the way over the bus and back is part of it.
template <typename Change>
void measureChange(rig::Session& session, const std::string& what, double target, Change change) {
    rig::XClient observer(session.server().display());
    const std::uint32_t last = observer.crtcOf("DUMMY3");
    std::vector<double> samples;
    for (int i = 0; i < 3000; ++i) {
        const auto before = observer.ramp(last);
        const auto start = SteadyClock::now();
        change(i % 2 == 0);
        waitForChange(observer, last, before);
        samples.push_back(microsecondsSince(start));
    }
    std::printf("%s to the last of four ramps: median %.0f us\n", what.c_str(),
                percentile(samples, 0.5));
    printFigure(what + " to the last of four ramps, p99", percentile(samples, 0.99) / 1000.0,
                target, "ms");
}

void measureChanges(rig::Session& session, BusClient& client) {
    client.call("SetActive", true);
    client.callSetSetting("NDGroupEffect", PropertyArray{std::string("NDDimEffect")});
    measureChange(session, "settings write", 1.0, [&](bool other) {
        client.callSetSetting("NDDimEffectLevel", other ? -0.25 : -0.75);
    });
    measureChange(session, "look applied", 2.0, [&](bool other) {
        client.call("ApplyLook", std::string(other ? "Warm evening" : "Just dimmer"));
    });
}

/// No timer is needed here: the re-applications are made by hand.
class NoRunLoop : public RunLoop {
    std::unique_ptr<Timer> scheduleRepeatingTimer(std::chrono::milliseconds,
                                                  std::function<void()>) override {
        return nullptr;
    }
    std::unique_ptr<Timer> scheduleTimer(std::chrono::milliseconds,
                                         std::function<void()>) override {
        return nullptr;
    }
    std::unique_ptr<Watch> watch(int /*descriptor*/, std::function<void()> /*action*/) override {
        return nullptr;
    }
    std::unique_ptr<Watch> watch(int /*descriptor*/, std::function<void()> /*action*/,
                                 std::function<bool()> /*hasRead*/) override {
        return nullptr;
    }
    void callSoon(std::function<void()> /*action*/) override {}
};

double processorMicroseconds() {
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e6 + static_cast<double>(now.tv_nsec) / 1e3;
}

/// Super+F5 in the settings, for whoever reads them.
void chooseHotKey(DefaultsStore& store) {
    store.setInteger(96, "HotKeyCode");
    store.setInteger(static_cast<std::int64_t>(NSCommandKeyMask), "HotKeyModifiers");
    store.setBool(true, "UseHotKey");
}

/// From the moment that a key's release can be read to the last ramp sent.
void measureOwnPartOfHotKey(rig::Session& session) {
    const auto server = XConnection::open(session.server().display());
    const auto service = server != nullptr ? X11HotKeyService::open(*server) : nullptr;
    if (service == nullptr) {
        throw std::runtime_error("there is no hot key service");
    }
    HXHotKeyCenter::sharedHotKeyCenter().setHotKeyService(service.get());
    NDEffect::userDefaults().setObject(allEffects(), "NDGroupEffect");
    chooseHotKey(NDEffect::userDefaults());
    rig::XClient keyboard(session.server().display());
    std::vector<double> samples;
    pollfd source{server->descriptor(), POLLIN, 0};
    for (int i = 0; i < 1000; ++i) {
        keyboard.press(KEY_LEFTMETA);
        keyboard.press(KEY_F5);
        keyboard.release(KEY_LEFTMETA);
        poll(&source, 1, -1);
        server->processEvents();
        keyboard.release(KEY_F5);
        poll(&source, 1, -1);
        const auto start = SteadyClock::now();
        server->processEvents();
        samples.push_back(microsecondsSince(start));
    }
    HXHotKeyCenter::sharedHotKeyCenter().setHotKeyService(nullptr);
    printFigure("hot key, from readable to the last of four ramps sent, p99",
                percentile(samples, 0.99) / 1000.0, 2.0, "ms");
}

void measureNaming(rig::Session& session) {
    const auto server = XConnection::open(session.server().display());
    if (server == nullptr) {
        throw std::runtime_error("there is no X server");
    }
    XkbKeyboardLayout layout(*server);
    constexpr int kRounds = 20000;
    const auto start = SteadyClock::now();
    std::size_t length = 0;
    for (int i = 0; i < kRounds; ++i) {
        length += HXStringFromKeyCode(static_cast<std::uint16_t>(i % 50), NSCommandKeyMask, &layout)
                      .size();
    }
    const double each = microsecondsSince(start) / kRounds;
    if (length == 0) {
        throw std::runtime_error("no key has a name");
    }
    printFigure("naming a key by the layout in force", each, 20.0, "us");
}

/// From the release at the server to the last display's ramp seen changed by another program.
void measureHotKey(rig::Session& session, BusClient& client) {
    rig::XClient observer(session.server().display());
    rig::XClient keyboard(session.server().display());
    const std::uint32_t last = observer.crtcOf("DUMMY3");
    client.callSetSetting("NDGroupEffect", PropertyArray{std::string("NDInvertEffect")});
    client.call("SetHotKey", std::string("super+F5"));
    client.callSetSetting("UseHotKey", true);
    std::vector<double> samples;
    for (int i = 0; i < 1000; ++i) {
        const auto before = observer.ramp(last);
        keyboard.press(KEY_LEFTMETA);
        keyboard.press(KEY_F5);
        const auto start = SteadyClock::now();
        keyboard.release(KEY_F5);
        waitForChange(observer, last, before);
        samples.push_back(microsecondsSince(start));
        keyboard.release(KEY_LEFTMETA);
    }
    printFigure("hot key, from release to the last of four ramps, p99",
                percentile(samples, 0.99) / 1000.0, 5.0, "ms");
}

bool anyRuleHolds(BusClient& client) {
    const Json rules = client.properties()["rules"];
    return std::any_of(rules.begin(), rules.end(),
                       [](const Json& rule) { return rule["holds"].get<bool>(); });
}

/// Whether a property of the root window names the window.
bool names(rig::XClient& observer, const char* property, const rig::XWindow& window) {
    const auto bytes = observer.rootBytes(property);
    std::vector<xcb_window_t> windows(bytes.size() / sizeof(xcb_window_t));
    std::memcpy(windows.data(), bytes.data(), windows.size() * sizeof(xcb_window_t));
    return std::find(windows.begin(), windows.end(), window.id()) != windows.end();
}

void bringToFront(rig::XClient& observer, rig::XWindow& window) {
    const bool isManaged = rig::waitUntil([&] {
        observer.setRootProperty("_NUDGE", {1}); // what came while it started it looks at then
        return names(observer, "_NET_CLIENT_LIST", window);
    });
    window.activate();
    if (!isManaged ||
        !rig::waitUntil([&] { return names(observer, "_NET_ACTIVE_WINDOW", window); })) {
        throw std::runtime_error("the window manager does not show the window");
    }
}

/// From what a program asks of the window manager to the last display's ramp seen changed by
/// another program. The rules stay.
void measureRules(rig::Session& session, BusClient& client) {
    using namespace std::string_view_literals;
    rig::XClient observer(session.server().display());
    const std::uint32_t last = observer.crtcOf("DUMMY3");
    const auto place = static_cast<std::int16_t>(3 * rig::XServer::kWidth + 50);
    rig::XWindow film(session.server().display(), "film\0Film"sv, place, 50);
    bringToFront(observer, film);
    rig::XWindow other(session.server().display(), "other\0Other"sv, 50, 50);
    client.call("SetActive", true);
    for (const char* rule : {"fullscreen off", "program film off", "game off"}) {
        client.call("AddRule", std::string(rule));
    }
    std::vector<double> samples;
    for (int i = 0; i < 200; ++i) {
        client.callSetSetting("UseRules", false); // or the rule would hold for a second
        film.setFullscreen(false);
        bringToFront(observer, other);
        client.callSetSetting("UseRules", true);
        while (anyRuleHolds(client)) {
        }
        const auto before = observer.ramp(last);
        const auto start = SteadyClock::now();
        i % 2 == 0 ? film.setFullscreen(true) : film.activate();
        waitForChange(observer, last, before);
        samples.push_back(microsecondsSince(start));
    }
    printFigure("rule, from a window's change to the last of four ramps, p99",
                percentile(samples, 0.99) / 1000.0, 50.0, "ms");
}

/// With all that could act by itself, beside the rules of before.
void measureWaiting(const rig::Process& nocturo, BusClient& client) {
    constexpr int kWatched = 60;
    client.call("AddSchedulePoint", std::string("00:00 Night reading"));
    client.call("AddSchedulePoint", std::string("sunset+00:10 off"));
    client.callSetSetting("SchedulePlace", std::string("52.5 13.4"));
    client.callSetSetting("UseSchedule", true);
    client.call("Pause", std::string("until tomorrow"));
    pass(2);
    const long before = wakeUps(nocturo.id());
    pass(kWatched);
    printFigure("wake-ups in 60 s with schedule, rules and a pause, off",
                static_cast<double>(wakeUps(nocturo.id()) - before), 0, "");
}

void measureReapplication(rig::Session& session) {
    const auto connection = XConnection::open(session.server().display());
    auto hardware = RandrHardware::open(connection.get());
    if (!hardware) {
        throw std::runtime_error("the X server cannot be used");
    }
    RampDisplayServices services(std::move(*hardware));
    setDisplayServices(&services);
    NotificationCenter center;
    NotificationCenter workspace;
    NotificationCenter distributed;
    const auto store = std::make_shared<DefaultsStore>(center);
    NDEffect::setUserDefaults(store);
    store->setObject(allEffects(), "NDGroupEffect");
    NoRunLoop runLoop;
    NDAppController controller(*store, {center, workspace, distributed}, runLoop);
    controller.applicationDidFinishLaunching();
    constexpr int kRounds = 2000;
    const double start = processorMicroseconds();
    for (int i = 0; i < kRounds; ++i) {
        controller.updateEffect();
    }
    const double spent = processorMicroseconds() - start;
    measureOwnPartOfHotKey(session);
    controller.applicationWillTerminate();
    NDEffect::setUserDefaults(nullptr);
    setDisplayServices(nullptr);
    printFigure("re-application of four displays, all effects, processor", spent / kRounds, 300.0,
                "us");
}

void run() {
    rig::Session session(4);
    session.server().setLayout("us");
    session.showWindows();
    session.writeSettings("<key>NDGroupEffect</key><array><string>NDDimEffect</string></array>");
    measureReapplication(session);
    measureNaming(session);
    const auto nocturo = session.startNocturo();
    setenv("DBUS_SESSION_BUS_ADDRESS", session.bus().address().c_str(), 1);
    BusClient client;
    measureChanges(session, client);
    measureHotKey(session, client);
    const auto manager = session.start("openbox", {"--sm-disable"});
    measureRules(session, client);
    printWakeUps(*nocturo, client);
    measureWaiting(*nocturo, client);
}

} // namespace

} // namespace nocturo

int main() {
    try {
        nocturo::run();
    } catch (const nocturo::Failure& failure) {
        std::cerr << failure.sentence << '\n';
        return 1;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
    return 0;
}
