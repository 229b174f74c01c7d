#include "app/state_sentence.h"

#include "base/local_time.h"
#include "base/texts/translated.h"
#include "effects/color_filter_effect.h"
#include "effects/color_temperature.h"
#include "effects/dim_effect.h"
#include "effects/hdtv_luminance_effect.h"
#include "effects/hide_stripes_effect.h"
#include "effects/invert_effect.h"
#include "settings/selectable_effects.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

namespace nocturo {

namespace {

/// Without a sign, and with one decimal at most.
std::string numberText(double value) {
    std::array<char, 32> digits{};
    const double rounded = std::round(std::abs(value) * 10.0) / 10.0;
    return {digits.data(),
            std::to_chars(digits.data(), digits.data() + digits.size(), rounded).ptr};
}

std::string nameOf(std::string_view effect, const EffectState& state) {
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
        const std::string level = signedPercentText(state.dimLevel);
        return state.dimLevel > 0 ? translated("Lighten %@", {level})
                                  : translated("Dim %@", {level});
    }
    if (const auto kelvin = temperatureOfFilter({state.hue, state.vividness})) {
        return std::to_string(std::lround(*kelvin / 50.0) * 50) + " K";
    }
    return translated("Color filter %1$@° %2$@ %%",
                      {numberText(state.hue), numberText(state.vividness * 100.0)});
}

std::string joined(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names) {
        text += text.empty() ? name : translated(", %d", {name});
    }
    return text;
}

std::string screensText(const EffectState& state) {
    if (state.isOnAllScreens) {
        return translated("all screens");
    }
    return state.screens.empty() ? translated("screens that are not connected")
                                 : joined(state.screens);
}

std::string onSentence(const EffectState& state) {
    const std::vector<std::string> names = namesOfEffects(state);
    if (names.empty()) {
        return translated("On, but no effect is chosen");
    }
    std::string sentence = translated("On: %1$@ on %2$@", {joined(names), screensText(state)});
    return state.without.empty()
               ? sentence
               : translated("%1$@, but not on %2$@", {std::move(sentence), joined(state.without)});
}

/// Who says what, "Off" for one, and until when.
std::string withRuler(const std::string& what, Ruler ruler, const std::string& until,
                      const std::string& rule, bool mayRulesFollow) {
    switch (ruler) {
    case Ruler::pause:
        if (!rule.empty()) {
            return translated("Paused while %@ runs", {rule});
        }
        return until.empty() ? translated("Paused until you go on")
                             : translated("Paused until %@", {until});
    case Ruler::hand:
        if (until.empty()) {
            return translated("%@; by hand", {what});
        }
        return mayRulesFollow
                   ? translated("%1$@; by hand until %2$@ or a rule holds", {what, until})
                   : translated("%1$@; by hand until %2$@", {what, until});
    case Ruler::rule:
        return translated("%1$@; by the rule \"%2$@\"", {what, rule});
    case Ruler::schedule:
        return until.empty() ? translated("%@; by the schedule", {what})
                             : translated("%1$@; by the schedule until %2$@", {what, until});
    case Ruler::settings:
        break;
    }
    return what;
}

std::string ofOwn(const DisplayApart& display) {
    return display.ruling.by == Ruler::settings ? translated("%@, its own look", {display.look})
                                                : display.look;
}

/// "On: Invert on all screens. DP-1: Off; by the rule "fullscreen off"".
std::string withThoseApart(std::string sentence, const EffectState& state) {
    for (const DisplayApart& display : state.apart) {
        const Ruling& ruling = display.ruling;
        const std::string until = ruling.until ? clockText(*ruling.until, state.now) : "";
        const std::string what = !ruling.isOn            ? translated("Off")
                                 : !display.look.empty() ? ofOwn(display)
                                                         : translated("On");
        sentence = translated(
            "%1$@. %2$@: %3$@",
            {std::move(sentence), display.name,
             withRuler(what, ruling.by, until, ruling.rule, state.mayRulesFollow && !ruling.isOn)});
    }
    return sentence;
}

/// Where nobody rules over the user's own settings.
std::string ownSentence(const EffectState& state) {
    const std::vector<std::string> names = namesOfEffects(state);
    if (state.isOn) {
        return onSentence(state);
    }
    return names.empty() ? translated("Off. Choose effects, then switch on")
                         : translated("Off. When on: %@", {joined(names)});
}

} // namespace

std::string percentText(double share) {
    return translated("%@ %%", {numberText(share * 100.0)});
}

std::string signedPercentText(double share) {
    const std::string digits = numberText(share * 100.0);
    const char* sign = digits == "0" ? "" : share < 0 ? "\u2212" : "+";
    return translated("%@ %%", {sign + digits});
}

void addScreen(EffectState& state, const Ruling& usual, const DisplayApart& display) {
    const bool isApart = display.ruling != usual;
    if (isApart) {
        state.apart.push_back(display);
    }
    // A look that nobody but the displays' own settings says is on those alone that have it.
    const bool isOwn =
        !usual.look.empty() && (usual.by == Ruler::settings || usual.by == Ruler::hand);
    state.isOnAllScreens = state.isOnAllScreens && !(isApart && isOwn);
    if (!isApart || !isOwn) {
        state.screens.push_back(display.name);
    }
}

std::vector<std::string> namesOfEffects(const EffectState& state) {
    if (!state.look.empty()) {
        return {state.look};
    }
    std::vector<std::string> names;
    for (const SelectableEffect& effect : kSelectableEffects) {
        if (std::find(state.effects.begin(), state.effects.end(), effect.className) !=
            state.effects.end()) {
            names.push_back(nameOf(effect.className, state));
        }
    }
    return names;
}

std::string stateSentence(const EffectState& state) {
    if (state.isPausedForScreenSaver) {
        return translated("Paused: screen saver");
    }
    if (state.ruler == Ruler::settings) {
        return withThoseApart(ownSentence(state), state);
    }
    const std::string until = state.until ? clockText(*state.until, state.now) : std::string();
    const std::string what = state.isOn ? onSentence(state) : translated("Off");
    return withThoseApart(
        withRuler(what, state.ruler, until, state.rule, state.mayRulesFollow && !state.isOn),
        state);
}

} // namespace nocturo
