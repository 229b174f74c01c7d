#pragma once

#include "displays/gamma_hardware.h"

#include <cstdint>
#include <span>
#include <vector>

#include <xcb/xcb.h>

namespace nocturo {

/// An output that shows something.
struct LitOutput {
    std::uint32_t output = 0;
    Head head; // but for what has to be asked of the output or its CRTC
    std::uint32_t mode = 0;
    std::uint16_t rotation = 0;
};

/// The outputs of all screens.
struct FoundOutputs {
    bool complete = false;      // false, and nothing else, when the server does not answer
    std::vector<LitOutput> lit; // that show something and have a monitor
    std::vector<std::uint32_t> unplugged; // identifiers of those that have none
    bool ofWaylandGuest = false;          // they are Xwayland's
};

/// Lists the outputs of screens, the primary one being that of the first. It takes two round trips
/// however many outputs there are.
FoundOutputs findOutputs(xcb_connection_t* connection, std::span<const xcb_window_t> roots);

} // namespace nocturo
