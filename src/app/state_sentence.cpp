#include "app/state_sentence.h"

#include "app/app_controller.h"
#include "base/texts/translated.h"
#include "displays/affected_screen_set.h"
#include "displays/display_functions.h"
#include "effects/color_filter_effect.h"
#include "effects/dim_effect.h"
#include "effects/effect_choices.h"
#include "effects/group_effect.h"
#include "effects/hdtv_luminance_effect.h"
#include "effects/hide_stripes_effect.h"
#include "effects/invert_effect.h"
#include "settings/defaults_store.h"
#include "settings/selectable_effects.h"

#include <algorithm>
#include <cmath>

namespace nocturo {

namespace {

std::string wholeNumber(double value) {
    return std::to_string(std::lround(std::abs(value)));
}

/// With the signs that a printed text has.
std::string signedPercent(float share) {
    const std::string digits = wholeNumber(static_cast<double>(share) * 100.0);
    const char* sign = digits == "0" ? "" : share < 0 ? "\u2212" : "+";
    return translated("%@ %%", {sign + digits});
}

std::string nameOf(std::string_view effect) {
    if (effect == NDInvertEffect::kName) {
        return translated("Invert");
    }
    if (effect == NDHideStripesEffect::kName) {
        return translated("Overexpose");
    }
    if (effect == NDHDTVLuminanceEffect::kName) {
        return translated("HDTV range");
    }
    if (effect == NDDimEffect::kName) {
        const float level = NDDimEffect::level();
        return level > 0 ? translated("Lighten %@", {signedPercent(level)})
                         : translated("Dim %@", {signedPercent(level)});
    }
    if (const auto kelvin = filterTemperature()) {
        return std::to_string(std::lround(*kelvin / 50.0) * 50) + " K";
    }
    return translated("Color filter %1$@° %2$@ %%",
                      {wholeNumber(static_cast<double>(NDColorFilterEffect::hue())),
                       wholeNumber(static_cast<double>(NDColorFilterEffect::vividness()) * 100.0)});
}

std::string joined(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names) {
        text += text.empty() ? name : translated(", %d", {name});
    }
    return text;
}

/// The affected screens, by name as far as they are connected.
std::string screens(const DefaultsStore& defaults) {
    const std::vector<double> affected = affectedScreenSet(defaults);
    if (affected.empty()) {
        return translated("all screens");
    }
    std::vector<std::string> names;
    const auto* online =
        displayServices() != nullptr ? displayServices()->onlineDisplays() : nullptr;
    for (std::size_t i = 0; online != nullptr && i < online->size(); ++i) {
        const DisplayInfo& display = (*online)[i];
        if (std::find(affected.begin(), affected.end(), display.id) != affected.end()) {
            names.push_back(display.name);
        }
    }
    return names.empty() ? translated("screens that are not connected") : joined(names);
}

} // namespace

std::vector<std::string> namesOfChosenEffects() {
    std::vector<std::string> names;
    for (const SelectableEffect& effect : kSelectableEffects) {
        if (NDGroupEffect::effect().containsEffect(effect.className)) {
            names.push_back(nameOf(effect.className));
        }
    }
    return names;
}

std::string stateSentence(const NDAppController& controller, const DefaultsStore& defaults) {
    const std::vector<std::string> names = namesOfChosenEffects();
    if (controller.isPaused()) {
        return translated("Paused: screen saver");
    }
    if (!controller.effectActive()) {
        return names.empty() ? translated("Off. Choose effects, then switch on")
                             : translated("Off. Switched on: %@", {joined(names)});
    }
    if (names.empty()) {
        return translated("On, but no effect is chosen");
    }
    return translated("On: %1$@ on %2$@", {joined(names), screens(defaults)});
}

} // namespace nocturo
