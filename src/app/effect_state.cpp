#include "app/effect_state.h"

#include "app/app_controller.h"
#include "app/state_sentence.h"
#include "automation/automation.h"
#include "displays/affected_screen_set.h"
#include "displays/display_functions.h"
#include "effects/color_filter_effect.h"
#include "effects/dim_effect.h"
#include "effects/group_effect.h"
#include "settings/defaults_store.h"
#include "settings/selectable_effects.h"

#include <algorithm>
#include <vector>

namespace nocturo {

namespace {

EffectState effectState(const NDAppController& controller, const DefaultsStore& defaults) {
    EffectState state;
    const Ruling ruling = controller.ruling();
    state.isOn = controller.effectActive() && ruling.isOn;
    state.isPausedForScreenSaver = controller.isPausedForScreenSaver();
    state.ruler = ruling.by;
    state.until = ruling.until;
    state.rule = ruling.rule;
    state.look = controller.titleOfLook(ruling);
    if (const Automation* automation = controller.automation()) {
        state.now = automation->now();
        state.mayRulesFollow = automation->rules().mayOthersSwitchOn();
    }
    for (const SelectableEffect& effect : kSelectableEffects) {
        if (NDGroupEffect::effect().containsEffect(effect.className)) {
            state.effects.emplace_back(effect.className);
        }
    }
    state.dimLevel = static_cast<double>(NDDimEffect::level());
    state.hue = static_cast<double>(NDColorFilterEffect::hue());
    state.vividness = static_cast<double>(NDColorFilterEffect::vividness());
    const std::vector<double> affected = affectedScreenSet(defaults);
    state.isOnAllScreens = affected.empty();
    const auto* online =
        displayServices() != nullptr ? displayServices()->onlineDisplays() : nullptr;
    for (std::size_t i = 0; online != nullptr && i < online->size(); ++i) {
        const DisplayInfo& display = (*online)[i];
        const bool isNamed =
            std::find(affected.begin(), affected.end(), display.id) != affected.end();
        if (!isNamed && !affected.empty()) {
            continue;
        }
        if (display.obstacle != Obstacle::none) {
            state.without.push_back(display.name);
        }
        const Ruling its = controller.ruling(display.id);
        addScreen(state, ruling, {display.name, its, controller.titleOfLook(its)});
    }
    return state;
}

} // namespace

std::string stateSentence(const NDAppController& controller, const DefaultsStore& defaults) {
    return stateSentence(effectState(controller, defaults));
}

} // namespace nocturo
