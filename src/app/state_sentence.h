#pragma once

#include "automation/who_wins.h"

#include <optional>
#include <string>
#include <vector>

namespace nocturo {

/// What there is to say about a display of which another word holds than of the others.
struct DisplayApart {
    std::string name;
    Ruling ruling;
    std::string look; // the title of the ruling's
    bool operator==(const DisplayApart&) const = default;
};

/// What there is to say about the effect.
struct EffectState {
    bool isPaused() const { return isPausedForScreenSaver || ruler == Ruler::pause; }

    bool isOn = false;
    bool isPausedForScreenSaver = false;
    Ruler ruler = Ruler::settings;
    std::optional<Moment> until; // that the ruler says so; nothing: no end is known
    std::string rule;            // the words of a rule or a command, where one is the reason
    bool mayRulesFollow = false; // a rule that does not hold now may switch on
    Moment now{};
    std::string look;                 // the title of one that rules over the effects; or empty
    std::vector<std::string> effects; // class names of the chosen ones, in any order
    double dimLevel = 0;
    double hue = 0; // degrees
    double vividness = 0;
    bool isOnAllScreens = true;
    std::vector<std::string> screens; // names of those affected that are connected and not apart
    std::vector<std::string> without; // names of those affected that can show nothing of it
    std::vector<DisplayApart> apart;  // those affected of which `ruler` and the like are not true
};

/// Adds an affected display that is connected, with what is said of it, to a state that has all
/// else; the looks' titles are given.
void addScreen(EffectState& state, const Ruling& usual, const DisplayApart& display);

/// The chosen effects as a person would say them, in the order in which they are applied, in the
/// user's language: "Invert", "Dim −30 %".
std::vector<std::string> namesOfEffects(const EffectState& state);

/// What the displays show, why and until when, in one sentence of the user's language: "On: Invert,
/// Dim −30 % on all screens, but not on DP-2", "Paused until 18:00".
std::string stateSentence(const EffectState& state);

/// A share as people read it: "40 %"; with the sign that a printed text has, "−30 %".
std::string percentText(double share);
std::string signedPercentText(double share);

} // namespace nocturo
