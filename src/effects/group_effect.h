#pragma once

#include "effects/effect.h"

#include "settings/settings_keys.h"

#include <array>
#include <cstddef>

namespace nocturo {

/// The keys of the settings that say how the screens look while the effect is on.
inline constexpr std::array kEffectSettings = {kGroupEffect, kDimLevel.key, kColorFilterHue.key,
                                               kColorFilterVividness.key};

/// Applies every selected effect in priority order. The selection is not held here but in the
/// shared defaults store, as an array of effect class names under "NDGroupEffect": every instance
/// sees and changes the same one.
class NDGroupEffect : public NDEffect {
  public:
    static constexpr std::string_view kName = kGroupEffect;
    static NDGroupEffect effect() { return {}; }

    /// Registers the empty selection as the default in the shared store; the first instance of the
    /// process does so by itself.
    static void initialize();

    NDGroupEffect();

    // A stored value that is not an array counts as an empty selection; adding to it clears it.

    void addEffect(std::string_view name);
    void removeEffect(std::string_view name);
    bool containsEffect(std::string_view name) const;
    void setContains(bool contained, std::string_view effect);

    /// Entries of the selection, names that no effect has included.
    std::size_t effectCount() const;

    std::string_view name() const override { return kName; }

    /// Each effect sees what the one before made; names that no effect has are skipped. The form
    /// without a time does nothing.
    void applyEffectOnGammaCurve(ZQGammaCurve* curve, double atTime) override;
    using NDEffect::applyEffectOnGammaCurve;

    /// Half of the shortest interval among the selected effects.
    double animationTimeInterval() const override;
};

} // namespace nocturo
