#include "ctl/bar_line.h"

#include "app/state_sentence.h"
#include "base/texts/translated.h"
#include "ctl/failure.h"
#include "ctl/report.h"
#include "effects/dim_effect.h"

#include <algorithm>
#include <cmath>

namespace nocturo {

namespace {

constexpr std::string_view kOption = "--bar";

/// What bars show, each in its own words.
struct Shown {
    std::string text;     // a few words; empty while Nocturo does not run
    std::string state;    // "on", "off", "paused" or "stopped", for style sheets and icons
    int percentage = 100; // how light the picture is
    std::string toolTip;  // a sentence
};

std::string joined(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words) {
        text += (text.empty() ? "" : ", ") + word;
    }
    return text;
}

/// The look in force, or else the effects.
std::string nameOf(const Json& properties, const EffectState& state) {
    const std::string look = titleOfLookInForce(properties);
    const std::string effects = joined(namesOfEffects(state));
    return !look.empty() ? look : !effects.empty() ? effects : translated("On");
}

Shown shown(const Json& properties) {
    if (properties.is_null()) {
        return {"", "stopped", 100, translated("Nocturo is not running.")};
    }
    const EffectState state = toldState(properties);
    const std::string sentence = stateSentence(state);
    if (!properties["active"].get<bool>()) {
        return state.isPaused() ? Shown{translated("Paused"), "paused", 100, sentence}
                                : Shown{translated("Off"), "off", 100, sentence};
    }
    const bool isDimmed =
        std::ranges::find(state.effects, NDDimEffect::kName) != state.effects.end();
    const double light = isDimmed ? std::clamp(1.0 + state.dimLevel, 0.0, 1.0) : 1.0;
    return {nameOf(properties, state), "on", static_cast<int>(std::lround(100.0 * light)),
            sentence};
}

/// For what reads markup as Pango does.
std::string escaped(const std::string& text) {
    std::string result;
    for (const char letter : text) {
        result += letter == '&'   ? "&amp;"
                  : letter == '<' ? "&lt;"
                  : letter == '>' ? "&gt;"
                                  : std::string(1, letter);
    }
    return result;
}

std::string lineForWaybar(const Json& properties) {
    const Shown bar = shown(properties);
    return Json{{"text", escaped(bar.text)},
                {"alt", bar.state},
                {"class", bar.state},
                {"percentage", bar.percentage},
                {"tooltip", escaped(bar.toolTip)}}
               .dump() +
           '\n';
}

/// Nothing in it can be taken for the beginning of a tag, "%{".
std::string lineForPolybar(const Json& properties) {
    std::string text = shown(properties).text;
    std::erase(text, '{');
    return text + '\n';
}

std::string lineForI3StatusRust(const Json& properties) {
    const Shown bar = shown(properties);
    return Json{{"text", escaped(bar.text)}, {"state", bar.state == "on" ? "Info" : "Idle"}}
               .dump() +
           '\n';
}

} // namespace

BarLine barLineNamed(const std::string& option) {
    expect(option.starts_with(kOption));
    const std::string bar = option.substr(kOption.size());
    if (bar.empty() || bar == "=waybar") {
        return lineForWaybar;
    }
    if (bar == "=polybar") {
        return lineForPolybar;
    }
    expect(bar == "=i3status-rust");
    return lineForI3StatusRust;
}

} // namespace nocturo
