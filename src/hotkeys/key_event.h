#pragma once

#include <cstdint>
#include <string>

namespace nocturo {

enum class NSEventType : std::uint8_t { NSKeyDown = 10, NSKeyUp = 11, NSFlagsChanged = 12 };

/// One keyboard event, as actions and the recording field see it.
struct KeyEvent {
    NSEventType type = NSEventType::NSKeyUp;
    std::uint64_t modifierFlags = 0; // NS...KeyMask bits
    double timestamp = 0;            // seconds of the source's clock
    std::int64_t windowNumber = -1;  // -1: not of a window
    std::string characters;          // UTF-8
    std::string charactersIgnoringModifiers;
    bool isARepeat = false;
    std::uint16_t keyCode = 0;
};

} // namespace nocturo
