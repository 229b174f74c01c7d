#include "documents/look_effect.h"

#include "base/notification_center.h"
#include "documents/current_effects.h"
#include "settings/defaults_store.h"

#include <utility>

namespace nocturo {

namespace {

/// While one lives all effects read these settings.
class Reading {
  public:
    explicit Reading(std::shared_ptr<DefaultsStore> settings)
        : before_(NDEffect::setUserDefaults(std::move(settings))) {}
    ~Reading() { NDEffect::setUserDefaults(std::move(before_)); }
    Reading(const Reading&) = delete;
    Reading& operator=(const Reading&) = delete;

  private:
    std::shared_ptr<DefaultsStore> before_;
};

NotificationCenter& centerThatNobodyHears() {
    static NotificationCenter center;
    return center;
}

} // namespace

LookEffect::LookEffect(const EffectDocument& effects)
    : settings_(std::make_shared<DefaultsStore>(centerThatNobodyHears())) {
    static_cast<void>(
        NDGroupEffect::effect()); // the first one registers in the store that is shared
    const Reading own(settings_);
    NDGroupEffect::initialize();
    setCurrentEffects(effects);
}

void LookEffect::applyEffectOnGammaCurve(ZQGammaCurve* curve, double atTime) {
    const Reading own(settings_);
    NDGroupEffect::effect().applyEffectOnGammaCurve(curve, atTime);
}

} // namespace nocturo
