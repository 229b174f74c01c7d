#pragma once

#include "base/property_value.h"
#include "effects/color_filter_effect.h"
#include "effects/dim_effect.h"
#include "effects/group_effect.h"
#include "settings/defaults_store.h"

#include <optional>

namespace nocturo {

/// Everything in the settings that decides what the effect looks like.
struct ScreenColors {
    std::optional<PropertyValue> effects; // as stored; nothing when absent
    float dimLevel = 0;
    float hue = 0;
    float vividness = 0;
    bool operator==(const ScreenColors&) const = default;
};

inline ScreenColors currentScreenColors() {
    const PropertyValue* effects = NDEffect::userDefaults().objectForKey(NDGroupEffect::kName);
    return {effects != nullptr ? std::optional(*effects) : std::nullopt, NDDimEffect::level(),
            NDColorFilterEffect::hue(), NDColorFilterEffect::vividness()};
}

/// Writes what differs.
inline void setScreenColors(const ScreenColors& colors) {
    const ScreenColors current = currentScreenColors();
    if (colors.effects && colors.effects != current.effects) {
        NDEffect::userDefaults().setObject(*colors.effects, NDGroupEffect::kName);
    }
    if (colors.dimLevel != current.dimLevel) {
        NDDimEffect::setLevel(colors.dimLevel);
    }
    if (colors.hue != current.hue) {
        NDColorFilterEffect::setHue(colors.hue);
    }
    if (colors.vividness != current.vividness) {
        NDColorFilterEffect::setVividness(colors.vividness);
    }
}

} // namespace nocturo
