// What Nocturo costs beside redshift, which does a part of the same: its start and its memory.

#include "figures.h"
#include "rig/session.h"
#include "running_costs.h"

#include <chrono>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <thread>

namespace nocturo {

namespace {

using SteadyClock = std::chrono::steady_clock;
using rig::Milliseconds;

/// Settings with which Nocturo inverts every screen at once, in the tray or not.
void writeSettings(const rig::Session& session, bool inTray) {
    session.writeSettings("<key>NDGroupEffect</key><array><string>NDInvertEffect</string></array>"
                          "<key>ShowStatusItem</key><integer>" +
                          std::to_string(static_cast<int>(inTray)) + "</integer>");
}

void waitForChange(rig::XClient& observer, std::uint32_t crtc, const rig::Channels& before) {
    const auto deadline = SteadyClock::now() + rig::kPatience;
    while (observer.ramp(crtc) == before) {
        if (SteadyClock::now() > deadline) {
            throw std::runtime_error("the ramp did not change");
        }
        std::this_thread::sleep_for(std::chrono::microseconds(100)); // both take a few milliseconds
    }
}

/// In turns, so that both have the same share of what else the machine does. Redshift writes the
/// ramps and ends; Nocturo starts its guard, writes the journal and takes its name on the bus too.
void measureStart() {
    rig::Session session(4);
    session.showWindows();
    writeSettings(session, false);
    rig::XClient observer(session.server().display());
    const std::uint32_t first = observer.crtcOf("DUMMY0");
    const auto timed = [&](const std::string& program, const std::vector<std::string>& arguments) {
        const auto own = observer.ramp(first);
        const auto start = SteadyClock::now();
        const auto process = session.start(program, arguments);
        waitForChange(observer, first, own);
        const double taken = millisecondsSince(start);
        if (program == "nocturo") {
            process->signal(SIGTERM); // gives the displays back
        }
        process->wait();
        return taken;
    };
    std::vector<double> redshift;
    std::vector<double> nocturo;
    for (int round = 0; round < 50; ++round) {
        redshift.push_back(timed("redshift", {"-m", "randr", "-P", "-O", "4000"}));
        session.run("redshift", {"-m", "randr", "-x"});
        nocturo.push_back(timed("nocturo", {}));
    }
    const double peer = percentile(redshift, 0.5);
    const double median = percentile(nocturo, 0.5);
    std::printf("start to the first ramp: median %.1f ms; redshift once %.1f ms\n", median, peer);
    printFigure("start to the first ramp, in one-shots of redshift", median / peer, 1.3, "");
}

double megabytesWithGuards(const rig::Process& nocturo) {
    double kilobytes = kilobytesOf(nocturo.id(), "Pss:");
    for (const char* name : {"nocturo-guard", "display-keeper"}) {
        for (const pid_t guard : rig::childrenNamed(nocturo.id(), name)) {
            kilobytes += kilobytesOf(guard, "Pss:");
        }
    }
    return kilobytes / 1024;
}

/// What stays in memory, without a window or in the tray of a panel, beside redshift's.
void measureMemory(bool inTray) {
    rig::Session session(4);
    session.showWindows();
    writeSettings(session, inTray);
    std::unique_ptr<rig::Process> panel;
    const auto watcherSays = [&](const char* property, char part) {
        const std::string watcher = "org.kde.StatusNotifierWatcher";
        const rig::RunResult asked = session.run(
            "gdbus", {"call", "--session", "-d", watcher, "-o", "/StatusNotifierWatcher", "-m",
                      "org.freedesktop.DBus.Properties.Get", watcher, property});
        return asked.output.find(part) != std::string::npos;
    };
    if (inTray) {
        const std::string file = session.runtimeDirectory() / "panel.conf";
        std::ofstream(file) << "panels=panel1\n[panel1]\nplugins=statusnotifier\n"
                               "[statusnotifier]\ntype=statusnotifier\n";
        panel = session.start("lxqt-panel", {"-c", file});
        rig::waitUntil([&] { return watcherSays("IsStatusNotifierHostRegistered", 't'); });
    }
    const auto nocturo = session.startNocturo();
    if (inTray &&
        !rig::waitUntil([&] { return watcherSays("RegisteredStatusNotifierItems", '/'); })) {
        throw std::runtime_error("the tray stays empty");
    }
    std::this_thread::sleep_for(Milliseconds(2000)); // for what is done after a start
    const std::string where = inTray ? "in LXQt's panel" : "without a window";
    printFigure("memory with the guards, " + where, megabytesWithGuards(*nocturo), inTray ? 7 : 6,
                "MB");
    printFigure("threads, " + where, static_cast<double>(threadsOf(*nocturo)), 1, "");
    if (!inTray) {
        const auto redshift =
            session.start("redshift", {"-m", "randr", "-P", "-l", "0:0", "-t", "4000:4000"});
        std::this_thread::sleep_for(Milliseconds(2000));
        std::printf("redshift's memory: %.1f MB\n", kilobytesOf(redshift->id(), "Pss:") / 1024);
    }
}

void measureToggle() {
    rig::Session session(4);
    session.showWindows();
    writeSettings(session, false);
    const auto nocturo = session.startNocturo();
    rig::XClient observer(session.server().display());
    const std::uint32_t last = observer.crtcOf("DUMMY3");
    std::vector<double> samples;
    for (int i = 0; i < 100; ++i) {
        const auto before = observer.ramp(last);
        const auto start = SteadyClock::now();
        const auto client = session.start("nocturoctl", {"toggle"});
        waitForChange(observer, last, before);
        samples.push_back(millisecondsSince(start));
        client->wait();
    }
    std::printf("nocturoctl toggle: median %.1f ms\n", percentile(samples, 0.5));
    printFigure("nocturoctl toggle to the last of four ramps, p95", percentile(samples, 0.95), 10,
                "ms");
}

} // namespace

} // namespace nocturo

int main() {
    try {
        nocturo::measureStart();
        nocturo::measureToggle();
        nocturo::measureMemory(false);
        nocturo::measureMemory(true);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
    return 0;
}
