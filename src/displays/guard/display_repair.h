#pragma once

#include "displays/calibration_source.h"
#include "displays/guard/server_mark.h"
#include "displays/x11/randr_hardware.h"

namespace nocturo {

// What gives the displays of an X server back when the Nocturo that changed them has ended without
// doing so. Every member of it may be interrupted at any moment and be done again, and several may
// do it at once. Where no Nocturo has left a mark nothing is written.
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
Repair repairDisplays(RandrHardware& hardware, CalibrationSource& calibrations);

/// The same after that Nocturo only, which has ended for sure, even though the server may not have
/// noticed it yet, and without calibrations.
Repair repairDisplaysAfter(const ServerMark::Owner& ended, RandrHardware& hardware);

struct RestoredByHand {
    Repair repair = Repair::notNeeded;
    /// True where a Nocturo had not ended: it was asked to give the displays back. It has done so
    /// where no repair was needed, and may change them again where one was.
    bool askedNocturo = false;
};

/// Gives the displays back whatever has become of the Nocturo that changed them. Takes 2 seconds at
/// most, unless the server itself does not answer. The next start learns of a repair.
RestoredByHand restoreDisplaysByHand(RandrHardware& hardware, CalibrationSource& calibrations);

} // namespace nocturo
