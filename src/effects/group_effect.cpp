#include "effects/group_effect.h"

#include "effects/effect_registry.h"
#include "platform/settings/defaults_store.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory_resource>
#include <string>
#include <utility>
#include <vector>

namespace nocturo {

namespace {

bool isName(const PropertyValue& value, std::string_view name) {
    const auto* text = value.as<std::string>();
    return text != nullptr && *text == name;
}

const PropertyArray* selection() {
    return NDEffect::userDefaults().arrayForKey(NDGroupEffect::kName);
}

// What the stored value's element names, or nothing. A selection that was edited by hand to hold
// the group itself would never come to an end, so the group does not count.
std::optional<EffectInstance> effectOfEntry(const PropertyValue& entry) {
    const auto* name = entry.as<std::string>();
    if (name == nullptr || *name == NDGroupEffect::kName) {
        return std::nullopt;
    }
    return effectNamed(*name);
}

} // namespace

void NDGroupEffect::initialize() {
    userDefaults().registerDefaults({{std::string(kName), PropertyArray()}});
}

NDGroupEffect::NDGroupEffect() {
    [[maybe_unused]] static const bool initialized = (initialize(), true);
}

void NDGroupEffect::addEffect(std::string_view name) {
    if (containsEffect(name)) {
        return;
    }
    const PropertyArray* stored = selection();
    if (stored == nullptr) {
        userDefaults().removeObjectForKey(kName);
        return;
    }
    PropertyArray names = *stored;
    names.emplace_back(std::string(name));
    userDefaults().setObject(std::move(names), kName);
}

void NDGroupEffect::removeEffect(std::string_view name) {
    if (!containsEffect(name)) {
        return;
    }
    PropertyArray names = *selection();
    // The entry that moves into a removed one's place is not looked at: a name stands here once.
    for (std::size_t k = 0; k < names.size(); ++k) {
        if (isName(names[k], name)) {
            names.erase(names.begin() + static_cast<std::ptrdiff_t>(k));
        }
    }
    userDefaults().setObject(std::move(names), kName);
}

bool NDGroupEffect::containsEffect(std::string_view name) const {
    const PropertyArray* names = selection();
    return names != nullptr && std::any_of(names->begin(), names->end(),
                                           [&](const auto& entry) { return isName(entry, name); });
}

void NDGroupEffect::setContains(bool contained, std::string_view effect) {
    if (contained) {
        addEffect(effect);
    } else {
        removeEffect(effect);
    }
}

std::size_t NDGroupEffect::effectCount() const {
    const PropertyArray* names = selection();
    return names != nullptr ? names->size() : 0;
}

void NDGroupEffect::applyEffectOnGammaCurve(ZQGammaCurve* curve, double atTime) {
    const PropertyArray* names = selection();
    if (names == nullptr) {
        return;
    }
    // Runs on every re-application: the working list lies on the stack, and only an absurdly long
    // selection reaches the heap.
    std::array<std::byte, 1024> stack;
    std::pmr::monotonic_buffer_resource memory(stack.data(), stack.size());
    std::pmr::vector<EffectInstance> effects(&memory);
    effects.reserve(names->size());
    for (const PropertyValue& entry : *names) {
        if (auto instance = effectOfEntry(entry)) {
            effects.push_back(*instance);
        }
    }
    std::sort(effects.begin(), effects.end(), [](const auto& left, const auto& right) {
        return left->priorityCompare(*right) == NSComparisonResult::NSOrderedAscending;
    });
    for (EffectInstance& instance : effects) {
        instance->applyEffectOnGammaCurve(curve, atTime);
    }
}

double NDGroupEffect::animationTimeInterval() const {
    double shortest = NDEffect::animationTimeInterval();
    if (const PropertyArray* names = selection()) {
        for (const PropertyValue& entry : *names) {
            if (const auto instance = effectOfEntry(entry)) {
                shortest = std::min(shortest, (*instance)->animationTimeInterval());
            }
        }
    }
    return shortest * 0.5;
}

} // namespace nocturo
