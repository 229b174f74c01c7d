#include "documents/current_effects.h"

#include "effects/color_filter_effect.h"
#include "effects/dim_effect.h"
#include "effects/group_effect.h"
#include "effects/hdtv_luminance_effect.h"
#include "effects/hide_stripes_effect.h"
#include "effects/invert_effect.h"

#include <algorithm>

namespace nocturo {

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

void setCurrentEffects(const EffectDocument& document) {
    NDGroupEffect chosen;
    chosen.setContains(document.invertScreen, NDInvertEffect::kName);
    chosen.setContains(document.overexposure, NDHideStripesEffect::kName);
    chosen.setContains(document.hdtvLuminance, NDHDTVLuminanceEffect::kName);
    chosen.setContains(document.colorFilter, NDColorFilterEffect::kName);
    NDColorFilterEffect::setHue(std::clamp(document.colorFilterHue, 0.0F, 360.0F));
    NDColorFilterEffect::setVividness(std::clamp(document.colorFilterVividness, 0.0F, 1.0F));
    chosen.setContains(document.dim, NDDimEffect::kName);
    NDDimEffect::setLevel(std::clamp(document.dimLevel, -1.0F, 1.0F));
}

} // namespace nocturo
