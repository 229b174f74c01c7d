#pragma once

#include <cstdint>

#include <xcb/xcb.h>

namespace nocturo {

/// Which of the server's eight modifiers are what, as masks in the sense of key grabs and event
/// states. Shift and Control always are themselves.
struct RealModifiers {
    std::uint16_t option = XCB_MOD_MASK_1;  // Alt
    std::uint16_t command = XCB_MOD_MASK_4; // Super
    /// Caps Lock, Num Lock and Scroll Lock, as far as they are modifiers.
    std::uint16_t locks = XCB_MOD_MASK_LOCK;

    bool operator==(const RealModifiers&) const = default;
};

/// Asks the server, in one round trip. What no key stands for, and all when the server does not
/// answer, is as by default.
RealModifiers lookUpRealModifiers(xcb_connection_t* connection);

/// The server's modifiers for a mask of cmdKey, shiftKey, optionKey and controlKey.
std::uint16_t modifierStateFromMask(const RealModifiers& real, std::uint32_t modifiers);

/// NS...KeyMask bits for the state of a key event.
std::uint64_t modifierFlagsFromState(const RealModifiers& real, std::uint16_t state);

} // namespace nocturo
