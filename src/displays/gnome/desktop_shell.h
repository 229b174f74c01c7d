#pragma once

#include "base/bus.h"
#include "displays/display_services.h"
#include "displays/ramp.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace nocturo {

// What GNOME Shell and Cinnamon offer on the session bus for the ramps of displays: the calls, and
// what is taken from the answers. Nothing here waits but findShell(); nothing keeps a state.

/// The names of one shell's services, which are those of their interfaces as well.
struct ShellNames {
    const char* desktop;
    const char* displays; // DisplayConfig
    const char* displaysPath;
    const char* colors; // ColorManager, which only newer shells have
    const char* colorsPath;
    const char* nightLight; // who changes the colors by the time of day
    const char* nightLightPath;
};

struct Shell {
    const ShellNames* names = nullptr;
    std::string owner;          // the shell's own name on the bus
    bool lendsMonitors = false; // it has a ColorManager
};

/// The shell on this bus; nothing where there is none, or the bus does not answer in time.
std::optional<Shell> findShell(const Bus& bus, int patienceMs);

/// The same for the one whose DisplayConfig has that name.
std::optional<Shell> findShell(const Bus& bus, int patienceMs, std::string_view displays);

/// An output that shows something.
struct ShellOutput {
    std::string connector;
    std::uint32_t crtc = 0;
    DisplayRect bounds;
    bool primary = false;
    /// A window of a shell that runs inside another session: asking for its ramp ends that shell.
    bool nested = false;
    std::vector<std::uint8_t> edid;
};

struct ShellResources {
    std::uint32_t serial = 0; // which each call has to name; another after every change
    std::vector<ShellOutput> outputs;
};

BusMessage resourcesCall(const Bus& bus, const ShellNames& shell);

/// Nothing where the answer is an error or is none of that kind. Of more outputs than any machine
/// has only the first are taken.
std::optional<ShellResources> resourcesIn(sd_bus_message* answer);

BusMessage readRampCall(const Bus& bus, const ShellNames& shell, std::uint32_t serial,
                        std::uint32_t crtc);

/// The ramp, without entries where the CRTC has the identity by having none. Nothing where the
/// answer is an error or is none of that kind; its channels have one length, which may be unusable.
std::optional<Ramp> rampIn(sd_bus_message* answer);

BusMessage writeRampCall(const Bus& bus, const ShellNames& shell, std::uint32_t serial,
                         std::uint32_t crtc, const Ramp& ramp);

/// Adds the three channels of a ramp to a call.
void append(const BusMessage& call, const Ramp& ramp);

/// The serial number was another's: the displays have changed.
bool isStale(sd_bus_message* answer);
bool isStale(const sd_bus_error& error);

} // namespace nocturo
