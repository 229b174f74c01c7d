#include "effects/effect_registry.h"

#include "effects/color_filter_effect.h"
#include "effects/dim_effect.h"
#include "effects/group_effect.h"
#include "effects/hdtv_luminance_effect.h"
#include "effects/hide_stripes_effect.h"
#include "effects/invert_effect.h"

#include <algorithm>
#include <array>
#include <new>

namespace nocturo {

namespace {

struct EffectClass {
    std::string_view name;
    NDEffect* (*effect)(std::pmr::memory_resource& memory);
};

template <typename Effect>
constexpr EffectClass effectClass() {
    return {Effect::kName, [](std::pmr::memory_resource& memory) -> NDEffect* {
                void* place = memory.allocate(sizeof(Effect), alignof(Effect));
                return ::new (place) Effect(Effect::effect());
            }};
}

constexpr std::array kEffectClasses = {
    effectClass<NDInvertEffect>(),        effectClass<NDHideStripesEffect>(),
    effectClass<NDDimEffect>(),           effectClass<NDColorFilterEffect>(),
    effectClass<NDHDTVLuminanceEffect>(), effectClass<NDGroupEffect>(),
};

static_assert(std::all_of(kSelectableEffects.begin(), kSelectableEffects.end(),
                          [](const SelectableEffect& effect) {
                              return std::any_of(
                                  kEffectClasses.begin(), kEffectClasses.end(),
                                  [&](const auto& each) { return each.name == effect.className; });
                          }),
              "what can be selected must have a class");

} // namespace

NDEffect* effectNamed(std::string_view className, std::pmr::memory_resource& memory) {
    for (const EffectClass& candidate : kEffectClasses) {
        if (candidate.name == className) {
            return candidate.effect(memory);
        }
    }
    return nullptr;
}

} // namespace nocturo
