#include "documents/current_effects.h"

#include "documents/look_effect.h"
#include "effects/color_filter_effect.h"
#include "effects/dim_effect.h"
#include "effects/group_effect.h"
#include "effects/hdtv_luminance_effect.h"
#include "effects/hide_stripes_effect.h"
#include "effects/invert_effect.h"
#include "settings/defaults_store.h"
#include "settings/settings_keys.h"

#include <algorithm>

namespace nocturo {

namespace {

float inRange(float value, const RealSetting& setting) {
    return std::clamp(value, setting.lowest, setting.highest);
}

} // namespace

EffectDocument currentEffects() {
    const NDGroupEffect chosen;
    EffectDocument document;
    document.invertScreen = chosen.containsEffect(NDInvertEffect::kName);
    document.overexposure = chosen.containsEffect(NDHideStripesEffect::kName);
    document.hdtvLuminance = chosen.containsEffect(NDHDTVLuminanceEffect::kName);
    document.colorFilter = chosen.containsEffect(NDColorFilterEffect::kName);
    document.colorFilterHue = NDColorFilterEffect::hue();
    document.colorFilterVividness = NDColorFilterEffect::vividness();
    document.dim = chosen.containsEffect(NDDimEffect::kName);
    document.dimLevel = NDDimEffect::level();
    return document;
}

EffectDocument withinRanges(EffectDocument document) {
    document.colorFilterHue = inRange(document.colorFilterHue, kColorFilterHue);
    document.colorFilterVividness = inRange(document.colorFilterVividness, kColorFilterVividness);
    document.dimLevel = inRange(document.dimLevel, kDimLevel);
    return document;
}

void applyEffects(const EffectDocument& document, ZQGammaCurve& curve) {
    LookEffect(document).applyEffectOnGammaCurve(&curve, 0);
}

void setCurrentEffects(const EffectDocument& anyDocument) {
    const EffectDocument document = withinRanges(anyDocument);
    const DefaultsStore::Batch oneChange(NDEffect::userDefaults());
    NDGroupEffect chosen;
    chosen.setContains(document.invertScreen, NDInvertEffect::kName);
    chosen.setContains(document.overexposure, NDHideStripesEffect::kName);
    chosen.setContains(document.hdtvLuminance, NDHDTVLuminanceEffect::kName);
    chosen.setContains(document.colorFilter, NDColorFilterEffect::kName);
    NDColorFilterEffect::setHue(document.colorFilterHue);
    NDColorFilterEffect::setVividness(document.colorFilterVividness);
    chosen.setContains(document.dim, NDDimEffect::kName);
    NDDimEffect::setLevel(document.dimLevel);
}

} // namespace nocturo
