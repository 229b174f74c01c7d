#include "effects/group_effect.h"

#include "effects/effect_registry.h"
#include "settings/defaults_store.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory_resource>
#include <span>
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

// The effects of a selection. Re-application looks them up anew every time, so the list of them
// lies within this object, on the stack; only an absurdly long selection reaches the heap.
class SelectedEffects {
  public:
    explicit SelectedEffects(const PropertyArray* names) {
        if (names == nullptr) {
            return;
        }
        effects_.reserve(names->size());
        for (const PropertyValue& entry : *names) {
            // The group itself, in a selection that was edited by hand, is no effect either.
            const auto* name = entry.as<std::string>();
            if (NDEffect* effect = name != nullptr ? effectNamed(*name) : nullptr) {
                effects_.push_back(effect);
            }
        }
    }

    std::span<NDEffect*> effects() { return effects_; }

  private:
    std::array<std::byte, 1024> stack_;
    std::pmr::monotonic_buffer_resource memory_{stack_.data(), stack_.size()};
    std::pmr::vector<NDEffect*> effects_{&memory_};
};

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
    SelectedEffects selected(selection());
    const std::span<NDEffect*> effects = selected.effects();
    std::sort(effects.begin(), effects.end(), [](const NDEffect* left, const NDEffect* right) {
        return left->priorityCompare(*right) == NSComparisonResult::NSOrderedAscending;
    });
    for (NDEffect* effect : effects) {
        effect->applyEffectOnGammaCurve(curve, atTime);
    }
}

double NDGroupEffect::animationTimeInterval() const {
    double shortest = NDEffect::animationTimeInterval();
    SelectedEffects selected(selection());
    for (const NDEffect* effect : selected.effects()) {
        shortest = std::min(shortest, effect->animationTimeInterval());
    }
    return shortest * 0.5;
}

} // namespace nocturo
