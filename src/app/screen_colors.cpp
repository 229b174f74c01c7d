#include "app/screen_colors.h"

#include "displays/affected_screen_set.h"
#include "effects/color_filter_effect.h"
#include "effects/dim_effect.h"
#include "effects/group_effect.h"
#include "settings/defaults_store.h"
#include "settings/settings_keys.h"

#include <cstdint>

namespace nocturo {

ScreenColors screenColors(const DefaultsStore& defaults) {
    const PropertyValue* effects = defaults.objectForKey(NDGroupEffect::kName);
    return {effects != nullptr ? std::optional(*effects) : std::nullopt, NDDimEffect::level(),
            NDColorFilterEffect::hue(), NDColorFilterEffect::vividness(),
            affectedScreenSet(defaults)};
}

void setScreenColors(DefaultsStore& defaults, const ScreenColors& colors) {
    const ScreenColors current = screenColors(defaults);
    const DefaultsStore::Batch oneChange(defaults); // of the effects as well
    if (colors.effects && colors.effects != current.effects) {
        defaults.setObject(*colors.effects, NDGroupEffect::kName);
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
    if (colors.affectedScreens != current.affectedScreens) {
        PropertyArray screens;
        for (const double screen : colors.affectedScreens) {
            screens.emplace_back(static_cast<std::int64_t>(screen));
        }
        defaults.setObject(std::move(screens), kAffectedScreenSet);
    }
}

} // namespace nocturo
