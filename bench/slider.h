#pragma once

#include "ctl/bus_client.h"
#include "figures.h"

#include <array>
#include <atomic>
#include <chrono>
#include <cmath>
#include <functional>
#include <string>
#include <thread>
#include <vector>

namespace nocturo {

/// The slider of the dimming level, which has the focus in the window of the running program.
struct Slider {
    /// Presses and releases the right arrow key.
    std::function<void()> step;

    /// Called in the thread that looks: gives the function that says what the last entry of the
    /// last display's ramp is.
    std::function<std::function<int()>()> looks;
};

namespace slider_detail {

using SteadyClock = std::chrono::steady_clock;

constexpr int kSteps = 80; // from -80 to 0 %, where every screen is readable

constexpr int kHalfStep =
    327; // of an entry; the servers' own last entries lie a little below 65535

/// The last entry of a dimmed ramp after a number of steps.
inline int lastEntryAfter(int step) {
    return static_cast<int>(std::lround(65535.0 * (20 + step) / 100.0));
}

/// One step every millisecond, while another thread looks at the ramp. Adds to `lags` how long ago
/// the step was made that each look misses, and returns how many steps never came.
inline int stepThrough(const Slider& slider, std::vector<double>& lags) {
    std::array<SteadyClock::time_point, kSteps + 1> made{};
    std::atomic<int> last = 0; // the steps made so far
    int shown = 0;
    std::thread observing([&] {
        const auto lastEntry = slider.looks();
        const auto deadline = SteadyClock::now() + std::chrono::seconds(2);
        while (shown < kSteps && SteadyClock::now() < deadline) {
            // Those who are looked at are not to be kept busy by it.
            std::this_thread::sleep_for(std::chrono::microseconds(500));
            const int newest = last;
            const int entry = lastEntry();
            while (shown < kSteps && entry >= lastEntryAfter(shown + 1) - kHalfStep) {
                ++shown;
            }
            if (newest > 0) {
                lags.push_back(shown < newest
                                   ? millisecondsSince(made[static_cast<std::size_t>(shown) + 1])
                                   : 0);
            }
        }
    });
    const auto start = SteadyClock::now();
    for (int step = 1; step <= kSteps; ++step) {
        std::this_thread::sleep_until(start + std::chrono::milliseconds(step));
        slider.step();
        made[static_cast<std::size_t>(step)] = SteadyClock::now();
        last = step;
    }
    observing.join();
    return kSteps - shown;
}

} // namespace slider_detail

/// Prints how the displays keep up with it.
inline void printSlider(const Slider& slider, BusClient& client, const std::string& where) {
    std::vector<double> lags;
    int lost = 0;
    for (int round = 0; round < 50; ++round) {
        client.callSetSetting("NDDimEffectLevel", -0.8);
        lost += slider_detail::stepThrough(slider, lags);
    }
    std::printf("slider at 1000 steps a second: median lag %.2f ms, p99 %.2f ms, %zu looks\n",
                percentile(lags, 0.5), percentile(lags, 0.99), lags.size());
    printFigure("slider at 1000 steps a second, " + where + ": steps lost", lost, 0, "");
    printFigure("slider at 1000 steps a second, " + where + ": worst lag", percentile(lags, 1.0),
                16, "ms");
}

} // namespace nocturo
