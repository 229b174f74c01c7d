#pragma once

#include "effects/gamma_curve.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace nocturo {

class DefaultsStore;

enum class NSComparisonResult {
    NSOrderedAscending = -1,
    NSOrderedSame = 0,
    NSOrderedDescending = 1
};

/// A transformation of a gamma curve. Effects keep no state that matters: they are values, made
/// when needed by their class's `effect()`, used once and dropped; their parameters are class-wide
/// and live in the defaults store that all effect classes share.
///
/// The class operation `name` would collide with the instance's; each class has it as `kName`.
class NDEffect {
  public:
    virtual ~NDEffect() = default;

    /// The class's name ("NDDimEffect"), by which settings and documents know the effect.
    virtual std::string_view name() const { return "NDEffect"; }

    bool isSelected() const { return _isSelected; }
    void setSelected(bool selected) { _isSelected = selected; }

    /// Transforms the curve in place; the base class leaves it as it is.
    virtual void applyEffectOnGammaCurve(ZQGammaCurve* curve);

    /// The same at a time in seconds, which effects that do not change over time ignore.
    virtual void applyEffectOnGammaCurve(ZQGammaCurve* curve, double atTime);

    /// Effects of a group are applied from the lowest priority to the highest.
    virtual std::int32_t priority() const { return 0; }

    /// Seconds after which the effect wants to be applied again: for one that does not change over
    /// time, those left until the first day of the year 4001.
    virtual double animationTimeInterval() const;

    NSComparisonResult priorityCompare(const NDEffect& other) const;

    /// The store shared by all effect classes; the process's standard one unless set before.
    /// Setting it returns the one before, which may be null.
    static DefaultsStore& userDefaults();
    static std::shared_ptr<DefaultsStore> setUserDefaults(std::shared_ptr<DefaultsStore> store);

  protected:
    NDEffect() = default;
    NDEffect(const NDEffect&) = default;
    NDEffect& operator=(const NDEffect&) = default;

  private:
    bool _isSelected = false;
};

} // namespace nocturo
