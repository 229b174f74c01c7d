#pragma once

#include <chrono>
#include <thread>

namespace nocturo::rig {

using Milliseconds = std::chrono::milliseconds;

/// Long enough for a loaded machine: it is only waited out by a test that fails.
inline constexpr Milliseconds kPatience{10000};

/// Asks every 2 ms until `condition` holds; false when it never did. Only for what sends no event,
/// such as a ramp being written.
template <class Condition>
bool waitUntil(Condition condition, Milliseconds timeout = kPatience) {
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    while (!condition()) {
        if (std::chrono::steady_clock::now() >= deadline) {
            return false;
        }
        std::this_thread::sleep_for(Milliseconds(2));
    }
    return true;
}

} // namespace nocturo::rig
