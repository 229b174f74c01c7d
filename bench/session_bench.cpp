// What users wait for, and what the running program costs, on a real X server with four displays
// and a session bus.

#include "app/app_controller.h"
#include "control/nocturoctl/bus_client.h"
#include "control/nocturoctl/failure.h"
#include "effects/effect_registry.h"
#include "figures.h"
#include "platform/displays/display_functions.h"
#include "platform/displays/ramp_display_services.h"
#include "platform/displays/randr/randr_hardware.h"
#include "platform/notification_center.h"
#include "platform/run_loop.h"
#include "platform/settings/defaults_store.h"
#include "rig/session.h"

#include <chrono>
#include <ctime>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <sys/timerfd.h>
#include <unistd.h>

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

/// From the call that changes a setting to the last display's ramp seen changed by another program;
/// the way over the bus and back is part of it.
void measureSettingsWrite(rig::Session& session, BusClient& client) {
    rig::XClient observer(session.server().display());
    const std::uint32_t last = observer.crtcOf("DUMMY3");
    client.call("SetActive", true);
    client.callSetSetting("NDGroupEffect", PropertyArray{std::string("NDDimEffect")});
    std::vector<double> samples;
    for (int i = 0; i < 3000; ++i) {
        const auto before = observer.ramp(last);
        const auto start = SteadyClock::now();
        client.callSetSetting("NDDimEffectLevel", i % 2 == 0 ? -0.25 : -0.75);
        const bool changed = observer.ramp(last) != before;
        samples.push_back(microsecondsSince(start));
        if (!changed) {
            throw std::runtime_error("a settings write did not reach the last display");
        }
    }
    std::printf("settings write to the last of four ramps: median %.0f us\n",
                percentile(samples, 0.5));
    printFigure("settings write to the last of four ramps, p99", percentile(samples, 0.99) / 1000.0,
                1.0, "ms");
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
};

double processorMicroseconds() {
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e6 + static_cast<double>(now.tv_nsec) / 1e3;
}

void measureReapplication(rig::Session& session) {
    auto opening = RandrHardware::open(session.server().display());
    if (opening.hardware == nullptr) {
        throw std::runtime_error(opening.reason);
    }
    RampDisplayServices services(std::move(opening.hardware));
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
    controller.applicationWillTerminate();
    NDEffect::setUserDefaults(nullptr);
    setDisplayServices(nullptr);
    printFigure("re-application of four displays, all effects, processor", spent / kRounds, 300.0,
                "us");
}

/// How often any thread of the process went to sleep, which is once after each time it woke up.
long wakeUps(pid_t process) {
    long sum = 0;
    for (const auto& task :
         std::filesystem::directory_iterator("/proc/" + std::to_string(process) + "/task")) {
        std::ifstream status(task.path() / "status");
        for (std::string word; status >> word;) {
            if (word == "voluntary_ctxt_switches:") {
                long count = 0;
                status >> count;
                sum += count;
            }
        }
    }
    return sum;
}

void pass(int seconds) {
    const int timer = timerfd_create(CLOCK_MONOTONIC, TFD_CLOEXEC);
    itimerspec once{};
    once.it_value.tv_sec = seconds;
    timerfd_settime(timer, 0, &once, nullptr);
    std::uint64_t expirations = 0;
    if (read(timer, &expirations, sizeof expirations) < 0) {
        throw std::runtime_error("the timer cannot be read");
    }
    close(timer);
}

void measureWakeUps(const rig::Process& nocturo, BusClient& client) {
    constexpr int kWatched = 19; // holds three 6-second ticks at the most
    client.call("SetActive", false);
    pass(2); // the settings reach the disk
    long before = wakeUps(nocturo.id());
    pass(kWatched);
    printFigure("wake-ups in 19 s while off", static_cast<double>(wakeUps(nocturo.id()) - before),
                0, "");
    client.call("SetActive", true);
    pass(2);
    before = wakeUps(nocturo.id());
    pass(kWatched);
    printFigure("wake-ups in 19 s while on (timer and server's answer every 6 s, rounded up)",
                static_cast<double>(wakeUps(nocturo.id()) - before), 8, "");
}

void run() {
    rig::Session session(4);
    measureReapplication(session);
    const auto nocturo = session.startNocturo();
    setenv("DBUS_SESSION_BUS_ADDRESS", session.bus().address().c_str(), 1);
    BusClient client;
    measureSettingsWrite(session, client);
    measureWakeUps(*nocturo, client);
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
