// What users wait for under Wayland, and what Nocturo costs there: in a real sway with four
// outputs, beside gammastep and wlsunset, and over the bus of a real mutter.

#include "base/file_descriptor.h"
#include "ctl/bus_client.h"
#include "ctl/failure.h"
#include "figures.h"
#include "rig/session.h"
#include "rig/sway.h"
#include "running_costs.h"
#include "slider.h"
#include "virtual_keyboard.h"

#include <array>
#include <iostream>
#include <poll.h>
#include <set>
#include <sys/inotify.h>

namespace nocturo {

namespace {

using SteadyClock = std::chrono::steady_clock;

constexpr int kOutputs = 4;
constexpr const char* kLastOutput = "HEADLESS-4";

/// Hears of the ramps that sway's outputs are given.
class RampWatch {
  public:
    explicit RampWatch(const rig::Sway& sway) : events_(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
        inotify_add_watch(events_.get(), sway.rampDirectory().c_str(), IN_MOVED_TO | IN_DELETE);
    }

    /// What has been heard of so far counts for nothing.
    void forget() {
        while (!namesRead().empty()) {
        }
        changed_.clear();
    }

    /// Returns once so many outputs have been given another ramp since then.
    void waitFor(std::size_t outputs) {
        const auto start = SteadyClock::now();
        while (changed_.size() < outputs) {
            pollfd source{events_.get(), POLLIN, 0};
            if (poll(&source, 1, 1000) == 0 || millisecondsSince(start) > 5000) {
                throw std::runtime_error("an output was given no ramp");
            }
            changed_.merge(namesRead());
        }
    }

  private:
    std::set<std::string> namesRead() {
        alignas(inotify_event) std::array<char, 4096> buffer{};
        std::set<std::string> names;
        const ssize_t size = read(events_.get(), buffer.data(), buffer.size());
        for (const char* at = buffer.data(); at - buffer.data() < size;) {
            const auto* event = reinterpret_cast<const inotify_event*>(at);
            names.insert(event->name);
            at += sizeof(inotify_event) + event->len;
        }
        return names;
    }

    FileDescriptor events_;
    std::set<std::string> changed_;
};

/// A session of sway whose outputs Nocturo dims from its start.
struct WaylandSession {
    WaylandSession() {
        session.environment()["WAYLAND_DISPLAY"] = sway.display();
        session.environment()["XDG_CURRENT_DESKTOP"] = "sway";
        session.environment()["QT_QPA_PLATFORM"] = "wayland";
        session.writeSettings(
            "<key>NDGroupEffect</key><array><string>NDDimEffect</string></array>");
    }

    rig::Sway sway{kOutputs};
    rig::Session session{0};
    RampWatch ramps{sway};
};

/// In turns, so that all have the same share of what else the machine does. The two others keep
/// running as well, since the ramps go with whoever wrote them.
void measureStart() {
    WaylandSession desktop;
    const auto timed = [&](const std::string& program, const std::vector<std::string>& arguments) {
        desktop.ramps.forget();
        const auto start = SteadyClock::now();
        const auto process = desktop.session.start(program, arguments);
        desktop.ramps.waitFor(1);
        const double taken = millisecondsSince(start);
        desktop.ramps.waitFor(kOutputs); // before it is told to end
        process->signal(SIGTERM);
        process->wait();
        rig::waitUntil([&] { return std::filesystem::is_empty(desktop.sway.rampDirectory()); });
        return taken;
    };
    std::vector<double> gammastep;
    std::vector<double> wlsunset;
    std::vector<double> nocturo;
    for (int round = 0; round < 50; ++round) {
        gammastep.push_back(timed("gammastep", {"-m", "wayland", "-P", "-O", "4000"}));
        wlsunset.push_back(timed("wlsunset", {"-l", "0", "-L", "0", "-t", "4000", "-T", "4001"}));
        nocturo.push_back(timed("nocturo", {}));
    }
    const double peers[] = {percentile(gammastep, 0.5), percentile(wlsunset, 0.5)};
    const double median = percentile(nocturo, 0.5);
    std::printf("start to the first ramp: median %.1f ms; gammastep %.1f ms, wlsunset %.1f ms\n",
                median, peers[0], peers[1]);
    printFigure("start to the first ramp, in starts of the faster of both",
                median / std::min(peers[0], peers[1]), 1.3, "");
}

/// From the call that changes a setting to the last of the outputs given its ramp.
void measureSettingsWrite(WaylandSession& desktop, BusClient& client) {
    std::vector<double> samples;
    for (int i = 0; i < 3000; ++i) {
        desktop.ramps.forget();
        const auto start = SteadyClock::now();
        client.callSetSetting("NDDimEffectLevel", i % 2 == 0 ? -0.25 : -0.75);
        desktop.ramps.waitFor(kOutputs);
        samples.push_back(millisecondsSince(start));
    }
    std::printf("settings write to the last of four ramps: median %.2f ms\n",
                percentile(samples, 0.5));
    printFigure("settings write to the last of four ramps, p99", percentile(samples, 0.99), 2.0,
                "ms");
}

void measureSlider(WaylandSession& desktop, BusClient& client) {
    client.callSetSetting("NDDimEffectLevel", -0.8);
    client.call("ShowPreferences");
    const bool isShown = rig::waitUntil([&] {
        try {
            desktop.sway.tell({"[title=\"Nocturo Preferences\"] focus"});
            return true;
        } catch (const std::runtime_error&) {
            return false; // there is none yet
        }
    });
    VirtualKeyboard keyboard(desktop.sway.display());
    const auto lastEntry = [&] {
        const auto ramp = desktop.sway.ramp(kLastOutput);
        // An output that is not dimmed any more is given back.
        return ramp ? static_cast<int>((*ramp)[0].back()) : 65535;
    };
    const bool moves = isShown && rig::waitUntil([&] {
                           keyboard.tap(KEY_T, 8); // the temperature, which has a key
                           for (int field = 0; field < 3; ++field) {
                               keyboard.tap(KEY_TAB);
                           }
                           keyboard.tap(KEY_RIGHT);
                           return lastEntry() > 0.205 * 65535;
                       });
    if (!moves) {
        throw std::runtime_error("the slider does not move");
    }
    printSlider({[&] { keyboard.tap(KEY_RIGHT); }, [&] { return lastEntry; }}, client,
                "four outputs");
}

void measureRunning() {
    WaylandSession desktop;
    const auto nocturo = desktop.session.startNocturo();
    setenv("DBUS_SESSION_BUS_ADDRESS", desktop.session.bus().address().c_str(), 1);
    BusClient client;
    measureSettingsWrite(desktop, client);
    printWakeUps(*nocturo, client);
    printFigure("memory without a window", kilobytesOf(nocturo->id(), "Pss:") / 1024, 6, "MB");
    printFigure("threads", static_cast<double>(threadsOf(*nocturo)), 1, "");
    measureSlider(desktop, client);
}

/// No other program is known that has mutter change ramps.
void measureMutter() {
    rig::Session session(1);
    session.writeSettings("<key>NDGroupEffect</key><array><string>NDDimEffect</string></array>");
    const auto mutter = session.start("mutter", {"--x11"});
    if (!session.bus().waitForName("org.gnome.Mutter.DisplayConfig", *mutter)) {
        throw std::runtime_error("mutter did not start: " + mutter->errors());
    }
    rig::XClient observer(session.server().display());
    const std::uint32_t crtc = observer.crtcOf("DUMMY0");
    const auto timedUntilChange = [&](const auto& action) {
        const auto before = observer.ramp(crtc);
        const auto start = SteadyClock::now();
        action();
        while (observer.ramp(crtc) == before) {
            if (millisecondsSince(start) > 5000) {
                throw std::runtime_error("mutter changes no ramp");
            }
        }
        return millisecondsSince(start);
    };
    std::vector<double> starts;
    std::vector<double> writes;
    setenv("DBUS_SESSION_BUS_ADDRESS", session.bus().address().c_str(), 1);
    for (int round = 0; round < 20; ++round) {
        std::unique_ptr<rig::Process> nocturo;
        starts.push_back(timedUntilChange(
            [&] { nocturo = session.start("nocturo", {"--display-services=gnome"}); }));
        BusClient client;
        for (int i = 0; i < 50; ++i) {
            writes.push_back(timedUntilChange(
                [&] { client.callSetSetting("NDDimEffectLevel", i % 2 == 0 ? -0.25 : -0.75); }));
        }
        nocturo->signal(SIGTERM);
        nocturo->wait();
    }
    std::printf("over mutter's bus: start to the first ramp, median %.1f ms, worst %.1f ms\n",
                percentile(starts, 0.5), percentile(starts, 1.0));
    std::printf("over mutter's bus: settings write to the ramp, median %.2f ms, p99 %.2f ms\n",
                percentile(writes, 0.5), percentile(writes, 0.99));
}

void run() {
    if (const std::string why = rig::Sway::whyMissing(); !why.empty()) {
        std::cout << "no figures under sway: " << why << '\n';
    } else {
        measureStart();
        measureRunning();
    }
    measureMutter();
}

} // namespace

} // namespace nocturo

int main() {
    setenv("TMPDIR", "/dev/shm",
           0); // sway writes its ramps to files, and no disk is to be measured
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
