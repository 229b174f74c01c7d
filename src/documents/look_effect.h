#pragma once

#include "documents/effect_document.h"
#include "effects/group_effect.h"

#include <memory>

namespace nocturo {

class DefaultsStore;

/// Applies one combination of effects, whatever the settings say meanwhile.
class LookEffect : public NDEffect {
  public:
    explicit LookEffect(const EffectDocument& effects);

    /// As the group effect would with these effects in the settings. Allocates nothing.
    void applyEffectOnGammaCurve(ZQGammaCurve* curve, double atTime) override;
    using NDEffect::applyEffectOnGammaCurve;

  private:
    std::shared_ptr<DefaultsStore> settings_; // what the effects read while they are applied
};

} // namespace nocturo
