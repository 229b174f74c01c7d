#pragma once

#include "displays/display_services.h"
#include "displays/gamma_hardware.h"
#include "displays/ramp.h"

#include <cstdint>

namespace nocturo {

/// What a CRTC holds and held: the ramp that others left in it last, apart from the one that was
/// written here, and for which display that was. Two displays may share a CRTC, and a display may
/// come to one that was written for another: so neither ever passes for the other.
class CrtcRamp {
  public:
    /// The size is usable. The hardware must outlive this.
    CrtcRamp(GammaHardware& hardware, std::uint32_t id, std::uint32_t size);

    std::uint32_t id() const { return id_; }
    std::uint32_t size() const { return draft_.size(); }

    /// Reads what it holds now into draft(); false on failure.
    bool read() { return hardware_->readRamp(id_, draft_); }

    /// Whether what was read is what was written here last, and that by whom it was written.
    bool holdsWhatWasWritten() const { return writtenFor_ != 0 && draft_ == written_; }

    /// What others left in it last, an all-zero ramp as the identity; the identity at first.
    const Ramp& left() const { return left_; }
    /// Takes what was read as left by others.
    const Ramp& takeAsLeft();

    const Ramp& written() const { return written_; }

    /// Whom an effect was written for; 0 at first and once the CRTC was given back.
    CGDirectDisplayID effectOf() const { return effectOf_; }
    /// Whom the last write was for, an effect or not; 0 at first.
    CGDirectDisplayID writtenFor() const { return writtenFor_; }

    /// What read() fills and write() writes, of the CRTC's size.
    Ramp& draft() { return draft_; }
    const Ramp& draft() const { return draft_; }

    /// Writes draft(), which is another ramp from then on. `effectOf` is 0 when the CRTC is given
    /// back. False on failure. Allocates nothing.
    bool write(CGDirectDisplayID effectOf, CGDirectDisplayID writtenFor);

    /// Gives the CRTC back to a display: writes the ramp, resampled to the CRTC's size. Where no
    /// effect is the CRTC may hold it already; then nothing is written.
    void giveBack(const Ramp& ramp, CGDirectDisplayID display);

    /// Writes once more what was written last if the CRTC holds something else; whether somebody
    /// else had written that.
    bool takeBack();

    /// Tells the hardware what the CRTC is to be given back, where that is news.
    void keepSystemRamp(const Ramp& ramp);
    bool hasSystemRamp() const { return system_.size() != 0; }

  private:
    bool keepWritten(bool isThere, CGDirectDisplayID effectOf, CGDirectDisplayID writtenFor);

    GammaHardware* hardware_;
    std::uint32_t id_;
    Ramp left_;
    Ramp written_;
    Ramp draft_;
    Ramp system_; // what the hardware was told to give back; empty at first
    CGDirectDisplayID effectOf_ = 0;
    CGDirectDisplayID writtenFor_ = 0;
};

} // namespace nocturo
