#pragma once

#include "ctl/bus_client.h"
#include "figures.h"
#include "rig/process.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

#include <sys/timerfd.h>
#include <unistd.h>

namespace nocturo {

/// How often any thread of the process went to sleep, which is once after each time it woke up.
inline long wakeUps(pid_t process) {
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

inline void pass(int seconds) {
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

/// Prints how often a running Nocturo wakes up, off and on.
inline void printWakeUps(const rig::Process& nocturo, BusClient& client) {
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
    printFigure("wake-ups in 19 s while on (two per 6 s, rounded up)",
                static_cast<double>(wakeUps(nocturo.id()) - before), 8, "");
}

/// How many threads the process has.
inline std::ptrdiff_t threadsOf(const rig::Process& process) {
    const std::filesystem::directory_iterator threads("/proc/" + std::to_string(process.id()) +
                                                      "/task");
    return std::distance(begin(threads), end(threads));
}

} // namespace nocturo
