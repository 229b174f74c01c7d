// A display's calibration may change at any moment: its user assigns another profile or calibrates
// the display anew. Nothing is written then, because the colors that are shown are either an
// effect's, which must not jump, or somebody else's business. But from then on what the hardware
// holds is no longer what the display is to be given back, and a capture of it would make the
// former calibration the base of the next effect. So it is remembered what such a content looks
// like, in two ways.
//
// What was written here is recognised by whoever wrote it. If the calibration changed since, the
// next capture of it takes the new calibration (`newerThanWritten_`). That holds for one capture:
// what is written after it is based on the new calibration.
//
// Where the display showed its former system colors, nobody wrote them here: they were there when
// Nocturo came, or another program loads them from the profile. They are kept as they were read
// (`superseded_`), and whenever the display shows exactly these, they stand for the new
// calibration. Anything else was put there by somebody who wants it, and is captured as it stands.
//
// The first answer of a source is no change, however late it comes: the display shows now what it
// showed before Nocturo knew, and the effect is based on that.

#include "displays/system_colors.h"

#include <utility>

namespace nocturo {

bool SystemColors::takeCalibration(CalibrationAnswer answer, CrtcRamp& crtc) {
    const bool isChange = std::exchange(settled_, settled_ || answer.settled);
    if (answer.ramp == calibration_) {
        return false;
    }
    const std::optional<Ramp> former = ramp();
    if (isChange) {
        supersede(crtc);
    }
    calibration_ = std::move(answer.ramp);
    return ramp() != former;
}

void SystemColors::supersede(CrtcRamp& crtc) {
    newerThanWritten_ = true;
    if (ramp() && crtc.read() && crtc.draft() == resampledRamp(*ramp(), crtc.size())) {
        superseded_ = crtc.draft();
    }
}

bool SystemColors::areNewerThanRead(const CrtcRamp& crtc) {
    const bool written = std::exchange(newerThanWritten_, false) && crtc.holdsWhatWasWritten();
    if (!ramp() || (!written && crtc.draft() != superseded_)) {
        return false;
    }
    superseded_ = crtc.draft();
    return true;
}

} // namespace nocturo
