#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <sys/types.h>

namespace nocturo {

/// Prints a figure beside the most that it may be.
inline void printFigure(const std::string& what, double figure, double target, const char* unit) {
    std::printf("%-58s %9.2f %-4s target %8.2f  %s\n", what.c_str(), figure, unit, target,
                figure <= target ? "held" : "MISSED");
    std::fflush(stdout);
}

inline double millisecondsSince(std::chrono::steady_clock::time_point start) {
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

/// A line of what the kernel tells of a process's memory, in kB: "Rss:", or "Pss:", where shared
/// pages are divided among those that share them.
inline double kilobytesOf(pid_t process, const std::string& line) {
    std::ifstream rollup("/proc/" + std::to_string(process) + "/smaps_rollup");
    for (std::string word; rollup >> word;) {
        if (word == line) {
            double kilobytes = 0;
            rollup >> kilobytes;
            return kilobytes;
        }
    }
    throw std::runtime_error("the kernel does not tell sizes");
}

/// The value that `share` (0 to 1) of the samples do not exceed; the samples are reordered.
inline double percentile(std::vector<double>& samples, double share) {
    const auto last = static_cast<double>(samples.size() - 1);
    const auto place = samples.begin() + static_cast<std::ptrdiff_t>(last * share + 0.5);
    std::nth_element(samples.begin(), place, samples.end());
    return *place;
}

} // namespace nocturo
