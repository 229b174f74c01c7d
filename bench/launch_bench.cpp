// What Nocturo costs beside Qt programs that do nothing: its start, and its place in the tray.

#include "figures.h"
#include "rig/session.h"

#include <chrono>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <thread>

namespace nocturo {

namespace {

using SteadyClock = std::chrono::steady_clock;
using rig::Milliseconds;

double millisecondsSince(SteadyClock::time_point start) {
    return std::chrono::duration<double, std::milli>(SteadyClock::now() - start).count();
}

/// Settings with which Nocturo inverts every screen at once, in the tray or not.
void writeSettings(const rig::Session& session, bool inTray) {
    session.writeSettings("<key>NDGroupEffect</key><array><string>NDInvertEffect</string></array>"
                          "<key>ShowStatusItem</key><integer>" +
                          std::to_string(static_cast<int>(inTray)) + "</integer>");
}

void waitForChange(rig::XClient& observer, std::uint32_t crtc, const rig::Channels& before) {
    const bool changed = rig::waitUntil([&] { return observer.ramp(crtc) != before; });
    if (!changed) {
        throw std::runtime_error("the ramp did not change");
    }
}

/// In turns, so that both have the same share of what else the machine does.
void measureStart() {
    rig::Session session(4);
    session.showWindows();
    writeSettings(session, false);
    rig::XClient observer(session.server().display());
    const std::uint32_t first = observer.crtcOf("DUMMY0");
    std::vector<double> bare;
    std::vector<double> nocturo;
    for (int round = 0; round < 30; ++round) {
        auto start = SteadyClock::now();
        session.run("bare_widgets");
        bare.push_back(millisecondsSince(start));
        const auto own = observer.ramp(first);
        start = SteadyClock::now();
        const auto process = session.start("nocturo");
        waitForChange(observer, first, own);
        nocturo.push_back(millisecondsSince(start));
        process->signal(SIGTERM);
        process->wait();
    }
    const double bareMedian = percentile(bare, 0.5);
    const double median = percentile(nocturo, 0.5);
    std::printf("start to the first ramp: median %.1f ms; a bare Qt Widgets program %.1f ms\n",
                median, bareMedian);
    printFigure("start to the first ramp, in bare Qt Widgets programs", median / bareMedian, 1.3,
                "");
}

/// Kilobytes of a process, shared pages divided among those that share them.
double proportionalSize(const rig::Process& process) {
    std::ifstream rollup("/proc/" + std::to_string(process.id()) + "/smaps_rollup");
    for (std::string word; rollup >> word;) {
        if (word == "Pss:") {
            double kilobytes = 0;
            rollup >> kilobytes;
            return kilobytes;
        }
    }
    throw std::runtime_error("the kernel does not tell sizes");
}

void measureTray() {
    rig::Session session(4);
    session.showWindows();
    writeSettings(session, true);
    const auto host = session.start("tray_host");
    std::this_thread::sleep_for(Milliseconds(300));
    const auto bare = session.start("bare_tray");
    const auto nocturo = session.startNocturo();
    if (!host->readLine() || !host->readLine()) {
        throw std::runtime_error("the tray stays empty");
    }
    std::this_thread::sleep_for(Milliseconds(2000)); // for what is done after a start
    const double megabytes = proportionalSize(*nocturo) / 1024;
    const double bareMegabytes = proportionalSize(*bare) / 1024;
    std::printf("in the tray: %.1f MB; a bare tray icon %.1f MB\n", megabytes, bareMegabytes);
    printFigure("in the tray, more than a bare tray icon", megabytes - bareMegabytes, 6, "MB");
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
        nocturo::measureTray();
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
    return 0;
}
