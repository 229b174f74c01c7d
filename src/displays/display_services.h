#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace nocturo {

/// Stable across restarts, re-plugging and reboots: 31 bits, never 0. 0 stands for no display.
using CGDirectDisplayID = std::uint32_t;

/// Every query for a list of displays asks for at most this many; an eleventh display is ignored.
inline constexpr std::uint32_t kZQMaxDisplays = 10;

/// Global screen coordinates, in pixels; y grows downward.
struct DisplayRect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    bool operator==(const DisplayRect&) const = default;
};

/// Why a display shows nothing of what is written to it.
enum class Obstacle : std::uint8_t {
    none,
    heldByOther,      // another program has its ramp to itself
    takesNoProfile,   // the desktop would need a color profile for it, and it can have none
    highDynamicRange, // it is in a mode where its color profile does not count
    refused,          // the desktop did not take what was to be shown
};

/// An online display.
struct DisplayInfo {
    CGDirectDisplayID id = 0;
    std::string name; // of the connector, such as "DP-1"
    DisplayRect bounds;
    std::uint32_t rampSize = 0; // entries per channel; 0 when the display has no usable ramp
    bool main = false;          // exactly one display of a list that is not empty
    Obstacle obstacle = Obstacle::none;
    bool operator==(const DisplayInfo&) const = default;
};

/// What happened to the displays since this was told last.
struct DisplayChanges {
    /// Displays on which a mode was set, each once: another one, the same again, or the first since
    /// they were plugged in. Drivers may reset the ramp then.
    std::vector<CGDirectDisplayID> modeChanged;
    /// Displays were plugged, unplugged, moved, resized, switched on or off.
    bool arrangementChanged = false;
    /// Online displays whose system colours are others now.
    std::vector<CGDirectDisplayID> profilesChanged;
    bool operator==(const DisplayChanges&) const = default;
};

/// Reads and writes the transfer tables of the desktop's displays. Tables are 32-bit floats,
/// nominally 0.0 to 1.0. Main thread only; a display that fails never affects the others.
class DisplayServices {
  public:
    virtual ~DisplayServices() = default;

    /// The implementation's name as the user chooses it: "randr", "simulated".
    virtual std::string_view name() const = 0;

    /// The online displays in a stable order, or null when they cannot be listed. Valid until the
    /// next call of any member.
    virtual const std::vector<DisplayInfo>* onlineDisplays() = 0;

    /// Fills `count` entries, at most `capacity`, of each table with the display's transfer tables;
    /// false, with everything untouched, when the display cannot be read.
    virtual bool readTransferTable(CGDirectDisplayID display, std::uint32_t capacity, float* red,
                                   float* green, float* blue, std::uint32_t& count) = 0;

    /// Makes `count` entries of each table the display's transfer tables; false when the count is 0
    /// or the display cannot be written. Allocates nothing.
    virtual bool writeTransferTable(CGDirectDisplayID display, std::uint32_t count,
                                    const float* red, const float* green, const float* blue) = 0;

    /// How many of these displays no longer hold what was written to them last, because somebody
    /// else wrote to them. Writes it to those again, so each change is counted once.
    virtual std::uint32_t
    takeBackDisturbedDisplays(std::span<const CGDirectDisplayID> displays) = 0;

    /// Gives the first kZQMaxDisplays displays, and every other one that was written, the system's
    /// own colours back.
    virtual void restoreSystemColors() = 0;

    /// Has `handler` called from the event loop, never from inside another member, whenever
    /// something changed. Modes are told at once; other changes, which come in quick succession
    /// as with a docking station, are told together once they have settled.
    virtual void setChangeHandler(std::function<void(const DisplayChanges&)> handler) = 0;
};

} // namespace nocturo
