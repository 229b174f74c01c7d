#include "effects/effect_registry.h"

#include <algorithm>
#include <array>

namespace nocturo {

namespace {

struct EffectClass {
    std::string_view name;
    SelectedEffect (*effect)();
};

template <typename Effect>
constexpr EffectClass effectClass() {
    return {Effect::kName, []() -> SelectedEffect { return Effect::effect(); }};
}

constexpr std::array kEffectClasses = {
    effectClass<NDInvertEffect>(),        effectClass<NDHideStripesEffect>(),
    effectClass<NDDimEffect>(),           effectClass<NDColorFilterEffect>(),
    effectClass<NDHDTVLuminanceEffect>(),
};

static_assert(std::equal(kEffectClasses.begin(), kEffectClasses.end(), kSelectableEffects.begin(),
                         kSelectableEffects.end(),
                         [](const EffectClass& each, const SelectableEffect& effect) {
                             return each.name == effect.className;
                         }),
              "what can be selected has a class, and no other has");

} // namespace

std::optional<SelectedEffect> effectNamed(std::string_view className) {
    for (const EffectClass& candidate : kEffectClasses) {
        if (candidate.name == className) {
            return candidate.effect();
        }
    }
    return std::nullopt;
}

NDEffect& baseOf(SelectedEffect& selected) {
    return std::visit([](NDEffect& effect) -> NDEffect& { return effect; }, selected);
}

} // namespace nocturo
