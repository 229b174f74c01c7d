#pragma once

#include "automation/filled_displays.h"
#include "x11/x_connection.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace nocturo {

/// Stands in a window's facts for all desktops of a window manager, or for none that it tells.
inline constexpr std::uint32_t kEveryDesktop = 0xFFFFFFFF;

/// What a client's window says of itself, and what the server says of it.
struct XWindowFacts {
    StackedWindow
        window; // `isVisible` whatever the desktop; whether it is active is not known here
    std::uint32_t desktop = kEveryDesktop;
};

/// The facts of each of the windows, in order, by one round trip. A window that has gone is not
/// visible, and what is of another type than it should be counts as not there.
std::vector<XWindowFacts> factsOf(XConnection& server, const std::vector<xcb_window_t>& windows);

/// Has the server's numbers for all names that are needed here asked for at once.
void expectAtomsOfFacts(XConnection& server);

/// Whether a change of that property of a window may be one of its facts.
bool isOfFacts(XConnection& server, xcb_atom_t property);

/// The names in a window's class, which is its program's to write: the instance and the class, and
/// nothing of what follows.
std::vector<std::string> programNames(std::string_view windowClass);

/// What the program of a window is called: both parts of its class; empty where it has none.
std::vector<std::string> programOf(XConnection& server, xcb_window_t window);

} // namespace nocturo
