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

/// Lists the outputs of all screens, that of the primary one first among `roots`, that show
/// something: those with a monitor, and the identifiers of those without. False when the server
/// does not answer. It takes two round trips however many outputs there are.
bool findLitOutputs(xcb_connection_t* connection, std::span<const std::uint32_t> roots,
                    std::vector<LitOutput>& lit, std::vector<std::uint32_t>& unplugged);

/// Whether the outputs of a screen are those of Xwayland.
bool isWaylandGuest(xcb_connection_t* connection, std::uint32_t root);

} // namespace nocturo
