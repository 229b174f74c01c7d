#include "effects/effect_registry.h"

#include "effects/color_filter_effect.h"
#include "effects/dim_effect.h"
#include "effects/hdtv_luminance_effect.h"
#include "effects/hide_stripes_effect.h"
#include "effects/invert_effect.h"

#include <algorithm>
#include <array>
#include <tuple>

namespace nocturo {

namespace {

template <typename... Effects>
struct EffectsOfClasses {
    static constexpr std::array<std::string_view, sizeof...(Effects)> kNames = {Effects::kName...};

    std::tuple<Effects...> effects;
    std::array<NDEffect*, sizeof...(Effects)> all = {&std::get<Effects>(effects)...};
};
using AllEffects = EffectsOfClasses<NDInvertEffect, NDHideStripesEffect, NDDimEffect,
                                    NDColorFilterEffect, NDHDTVLuminanceEffect>;

static_assert(std::ranges::equal(AllEffects::kNames, kSelectableEffects, {}, {},
                                 &SelectableEffect::className),
              "what can be selected has a class, and no other has");

} // namespace

NDEffect* effectNamed(std::string_view className) {
    static AllEffects effects;
    const auto found = std::ranges::find(AllEffects::kNames, className);
    const auto index = static_cast<std::size_t>(found - AllEffects::kNames.begin());
    return index < effects.all.size() ? effects.all[index] : nullptr;
}

} // namespace nocturo
