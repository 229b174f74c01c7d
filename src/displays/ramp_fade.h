#pragma once

#include "displays/ramp.h"

#include <vector>

namespace nocturo {

/// The way from one ramp to another of the same size in even steps of lightness. An entry's
/// lightness is the L* of CIE 1976 (ISO/CIE 11664-4) of the light that a display makes of it, which
/// is taken to be as sRGB has it (IEC 61966-2-1).
class RampFade {
  public:
    RampFade(const Ramp& from, Ramp to);

    /// What is shown after a share of the way, 0 to less than 1; valid until the next call.
    const Ramp& at(float share);

    /// Where it leads, to the last bit.
    const Ramp& end() const { return to_; }

    /// What at() told last; at first where the way begins.
    const Ramp& shown() const { return shown_; }

    /// Leads elsewhere from what is shown now.
    void turn(Ramp to);

  private:
    using Lightness = std::vector<float>; // red, green, blue; 0 black to 1 full

    Lightness from_;
    Lightness change_;    // in all
    bool isGray_ = false; // all the way, so that one channel is as the others
    Ramp to_;
    Ramp shown_;
};

} // namespace nocturo
