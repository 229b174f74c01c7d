#include "documents/chosen_look.h"

#include "base/texts/translated.h"
#include "documents/current_effects.h"
#include "documents/looks.h"

#include <cstddef>
#include <utility>

namespace nocturo {

const Look* ChosenLook::inForce() {
    const EffectDocument now = currentEffects();
    const Look* found = nullptr;
    for (const Look& look : looks_.all()) {
        if (looksTheSame(look.effects, now) && (found == nullptr || look.name == lastApplied_)) {
            found = &look;
        }
    }
    return found;
}

void ChosenLook::change(const EffectDocument& effects) {
    const EffectDocument now = currentEffects();
    if (now != effects) {
        before_ = now;
    }
    setCurrentEffects(effects);
}

std::string ChosenLook::nameInForce() {
    const Look* look = inForce();
    return look != nullptr ? look->name : std::string();
}

Result<void> ChosenLook::apply(std::string_view name) {
    const Look* look = looks_.named(name);
    if (look == nullptr) {
        return failed(translated("There is no look \"%@\".", {std::string(name)}));
    }
    lastApplied_ = look->name;
    const EffectDocument effects = look->effects; // who hears of the change may read the looks anew
    change(effects);
    return {};
}

Result<void> ChosenLook::applyNext() {
    return applyNeighbor(true);
}

Result<void> ChosenLook::applyPrevious() {
    return applyNeighbor(false);
}

Result<void> ChosenLook::applyNeighbor(bool next) {
    const auto& looks = looks_.all();
    if (looks.empty()) {
        return failed(translated("There are no looks."));
    }
    const Look* from = inForce();
    std::size_t place = next ? 0 : looks.size() - 1;
    if (from != nullptr) {
        const auto step = next ? 1 : looks.size() - 1;
        place = (static_cast<std::size_t>(from - looks.data()) + step) % looks.size();
    }
    return apply(std::string(looks[place].name));
}

Result<void> ChosenLook::goBack() {
    if (!before_) {
        return failed(translated("No look was applied from which one could go back."));
    }
    change(std::exchange(before_, std::nullopt).value());
    return {};
}

Result<void> ChosenLook::save(const std::string& name) {
    lastApplied_ = name;
    return looks_.save(name, currentEffects());
}

Result<void> ChosenLook::rename(std::string_view name, const std::string& to) {
    const Look* look = looks_.named(name);
    const bool isLast = look != nullptr && look->name == lastApplied_;
    auto renamed = looks_.rename(name, to);
    if (renamed && isLast) {
        lastApplied_ = to;
    }
    return renamed;
}

} // namespace nocturo
