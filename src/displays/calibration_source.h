#pragma once

#include "displays/ramp.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace nocturo {

struct CalibrationAnswer {
    /// Nothing where no profile with a calibration is assigned.
    std::optional<Ramp> ramp;
    /// False while somebody who may know better has yet to answer for the first time.
    bool settled = true;
};

/// Knows the calibration of displays: what a display's ramp holds so that its colours come out as
/// its colour profile says. Main thread only.
class CalibrationSource {
  public:
    virtual ~CalibrationSource() = default;

    /// The calibration of the display on a connector such as "DP-1", at `rampSize` entries per
    /// channel, which is usable.
    virtual CalibrationAnswer calibration(const std::string& connector, std::uint32_t rampSize) = 0;

    /// A number that differs from the one before whenever an answer may have changed since.
    virtual std::uint64_t generation() = 0;

    /// Has `look` called from the event loop when that number may be another.
    // Others keep it. NOLINTNEXTLINE(performance-unnecessary-value-param)
    virtual void whenChanged(std::function<void()> /*look*/) {}

    /// For what cannot wait in an event loop: waits, no longer than that, until all that was asked
    /// for so far is settled. False when it is not.
    virtual bool waitForAnswers(std::chrono::milliseconds /*patience*/) { return true; }
};

} // namespace nocturo
