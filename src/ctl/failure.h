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

/// Thrown where a verb has done all but keep what it did beyond Nocturo's end.
struct NotSaved : Failure {};

/// Throws a Failure without a sentence, which tells of the verb's usage, unless the arguments fit.
inline void expect(bool argumentsFit) {
    if (!argumentsFit) {
        throw Failure{kUsage, ""};
    }
}

} // namespace nocturo
