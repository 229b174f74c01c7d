#pragma once

#include "displays/calibration_source.h"
#include "displays/guard/server_mark.h"
#include "displays/x11/randr_hardware.h"

#include <filesystem>
#include <optional>
#include <sys/types.h>

namespace nocturo {

// What gives the displays of an X server back when the Nocturo that changed them has ended without
// doing so. Every member of it may be interrupted at any moment and be done again.
//
// A plain ramp is the calibration of a display, where its source knows one within half a second,
// and the identity where it does not.

enum class Repair {
    notNeeded,  // nothing was left changed
    ownRamps,   // every display has its own ramps again
    plainRamps, // they were not to be had: every display has a plain one
    inUse,      // a Nocturo that has not ended changes the displays; nothing was done
};

/// Gives back what an ended Nocturo left. One whose connection the server still has is waited for,
/// for two seconds.
Repair repairDisplays(RandrHardware& hardware, const std::filesystem::path& journalFile,
                      CalibrationSource& calibrations);

/// The same after the Nocturo with that mark only, which has ended for sure, even though the server
/// may not have noticed it yet, and without calibrations.
Repair repairDisplaysAfter(const ServerMark::Content& ended, RandrHardware& hardware,
                           const std::filesystem::path& journalFile);

/// The process of the Nocturo that changes the displays now, 0 where that is not to be told;
/// nothing when there is none.
std::optional<pid_t> changingProcess(RandrHardware& hardware,
                                     const std::filesystem::path& journalFile);

/// Waits until nobody changes the displays any more; false when it took longer than half a second.
bool waitUntilGivenBack(RandrHardware& hardware);

/// Writes what the journal has, else plain ramps, and leaves the rest to the Nocturo that goes on.
Repair overwriteDisplays(RandrHardware& hardware, const std::filesystem::path& journalFile,
                         CalibrationSource& calibrations);

/// Gives the displays that Nocturo would drive plain ramps.
void writePlainRamps(RandrHardware& hardware, CalibrationSource& calibrations);

} // namespace nocturo
