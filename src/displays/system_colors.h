#pragma once

#include "displays/calibration_source.h"
#include "displays/crtc_ramp.h"
#include "displays/ramp.h"

#include <optional>

namespace nocturo {

/// What the system's colours of one display are: the calibration of the colour profile assigned to
/// it or, without one, the ramp in force when it was first seen.
class SystemColors {
  public:
    /// The ramp that the display is given back, of any size; nothing while none is known.
    const std::optional<Ramp>& ramp() const { return calibration_ ? calibration_ : firstSeen_; }

    bool wasSeen() const { return firstSeen_.has_value(); }
    /// The display shows this for the first time.
    void seeFirst(const Ramp& ramp) { firstSeen_ = ramp; }

    /// Takes what is said of the calibration now; true when ramp() is another than before. Looks at
    /// what the display shows, on `crtc`, if it has to.
    bool takeCalibration(CalibrationAnswer answer, CrtcRamp& crtc);

    /// What was read from `crtc` stands for former system colours: whoever captures the display
    /// takes ramp() instead. Answers so once for what was written here.
    bool areNewerThanRead(const CrtcRamp& crtc);

  private:
    void supersede(CrtcRamp& crtc);

    std::optional<Ramp> firstSeen_;
    std::optional<Ramp> calibration_;
    bool settled_ = false;           // somebody who knows has answered
    bool newerThanWritten_ = false;  // the calibration came after the last capture
    std::optional<Ramp> superseded_; // content of the hardware that stands for former colours
};

} // namespace nocturo
