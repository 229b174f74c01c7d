#pragma once

#include <string>

namespace nocturo {

/// Exit statuses of nocturoctl.
inline constexpr int kSuccess = 0;
inline constexpr int kFailed = 1;
inline constexpr int kUsage = 2;
inline constexpr int kNotRunning = 3;

/// Thrown where a verb cannot go on: one sentence for standard error, and how the program ends.
struct Failure {
    int exitStatus;
    std::string sentence;
};

} // namespace nocturo
