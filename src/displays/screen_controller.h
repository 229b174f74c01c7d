#pragma once

#include "displays/display_services.h"
#include "effects/effect.h"
#include "effects/gamma_curve.h"

#include <chrono>
#include <memory>
#include <utility>
#include <vector>

namespace nocturo {

/// Puts one effect on one display: captures the display's own curve when made, and from then on
/// writes transformed copies of that curve, so that nothing accumulates. Dropping a controller
/// leaves the display as it is; whoever drops it restores first where that is wanted.
///
/// `Clock` tells the current moment; effects are given the time since the controller was made.
class NDScreenController {
  public:
    using Date = std::chrono::system_clock::time_point;
    using Clock = Date (*)();

    static std::vector<std::unique_ptr<NDScreenController>>
    allScreensControllersWithEffect(const std::shared_ptr<NDEffect>& effect);

    static std::unique_ptr<NDScreenController>
    screenControllerWithEffect(std::shared_ptr<NDEffect> effect, CGDirectDisplayID forScreen);

    /// Captures the display's curve and applies the effect at once.
    NDScreenController(std::shared_ptr<NDEffect> effect, CGDirectDisplayID forScreen,
                       Clock clock = std::chrono::system_clock::now);

    /// Writes the captured curve; a failed capture hands the display services a count of 0, which
    /// they refuse.
    void restoreGamma();

    /// Always false: so setActivation always captures anew.
    bool isActive() const { return _isActive; }

    /// Takes the display's present curve as the new starting point, whatever the argument.
    void setActivation(bool activation);

    /// Applies the effect to a copy of the captured curve and writes it; does nothing when the
    /// capture failed. Allocates nothing.
    void updateEffect();

    /// Captures the display's present curve.
    void retriveGammaCurve();

    CGDirectDisplayID screenID() const { return _screen; }

    /// What is applied from the next time on.
    void setEffect(std::shared_ptr<NDEffect> effect) { _effect = std::move(effect); }
    NDEffect& effect() const { return *_effect; }

    /// Whether the capture succeeded, so that the effect is applied.
    bool hasCurve() const { return _gammaCurve.sampleCount != 0; }

    /// The captured curve; without samples when the capture failed.
    const ZQGammaCurve& gammaCurve() const { return _gammaCurve; }

  private:
    Clock clock_;
    Date startDate;
    std::shared_ptr<NDEffect> _effect;
    bool _isActive = false;
    ZQGammaCurve _gammaCurve;
    CGDirectDisplayID _screen;
};

} // namespace nocturo
