#include "effects/effect_registry.h"

#include <algorithm>
#include <array>

namespace nocturo {

namespace {

struct EffectClass {
    std::string_view name;
    EffectInstance (*effect)();
};

template <typename Effect>
constexpr EffectClass effectClass() {
    return {Effect::kName, [] { return EffectInstance(Effect::effect()); }};
}

constexpr std::array kEffectClasses = {
    effectClass<NDInvertEffect>(),        effectClass<NDHideStripesEffect>(),
    effectClass<NDDimEffect>(),           effectClass<NDColorFilterEffect>(),
    effectClass<NDHDTVLuminanceEffect>(), effectClass<NDGroupEffect>(),
};

constexpr std::array<SelectableEffect, 5> kSelectableEffects = {{
    {NDInvertEffect::kName, "invert"},
    {NDHideStripesEffect::kName, "overexposure"},
    {NDDimEffect::kName, "dim"},
    {NDColorFilterEffect::kName, "color-filter"},
    {NDHDTVLuminanceEffect::kName, "hdtv-luminance"},
}};

} // namespace

NDEffect& EffectInstance::operator*() {
    return std::visit([](NDEffect& effect) -> NDEffect& { return effect; }, effect_);
}

const NDEffect& EffectInstance::operator*() const {
    return std::visit([](const NDEffect& effect) -> const NDEffect& { return effect; }, effect_);
}

std::optional<EffectInstance> effectNamed(std::string_view className) {
    const auto* found =
        std::find_if(kEffectClasses.begin(), kEffectClasses.end(),
                     [&](const EffectClass& candidate) { return candidate.name == className; });
    if (found == kEffectClasses.end()) {
        return std::nullopt;
    }
    return found->effect();
}

std::span<const SelectableEffect> selectableEffects() {
    return kSelectableEffects;
}

} // namespace nocturo
