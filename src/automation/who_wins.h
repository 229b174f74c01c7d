#pragma once

#include "base/wall_clock.h"

#include <optional>
#include <string>
#include <string_view>

namespace nocturo {

/// Who says what a display shows, the strongest first.
enum class Ruler { hand, pause, rule, schedule, settings };

/// A name for programs: "hand", "pause" and so on.
std::string_view nameOf(Ruler ruler);
std::optional<Ruler> rulerNamed(std::string_view name);

/// What a display is to show while somebody says so.
struct Claim {
    bool isOn = false;
    std::string look{};            // its name; empty for the effects of the settings
    std::optional<Moment> until{}; // nothing: no end is known
    std::string rule{};            // its words, or the command that a pause is for; or empty
    bool operator==(const Claim&) const = default;
};

/// What the user did against the schedule, which holds until its next point, or against a rule.
struct HandsClaim {
    std::optional<bool> isOn; // nothing: the switch was left alone
    bool choseEffects = false;
    bool untilRuleEnds = false; // and nobody knows when that is
    bool operator==(const HandsClaim&) const = default;
};

/// All that has a say on one display.
struct Claims {
    HandsClaim hand{};
    std::optional<Claim> pause{};
    std::optional<Claim> rule{};
    std::optional<Claim> schedule{};
    std::string look{}; // of the display's own, by name; empty for the effects of the settings
    bool isSwitchedOn = false; // as the user last did, and as the settings keep it
};

/// What a display shows, and by whose word.
struct Ruling : Claim {
    Ruler by = Ruler::settings;
    bool operator==(const Ruling&) const = default;
};

/// The one place that decides between them. Turning the switch ends a pause, so one that is there
/// was asked for later and holds. A switch turned on by hand shows what the rule or the schedule
/// has, unless that is off. Effects chosen by hand stand in for a look, but light no display that
/// is off. Wherever the settings' effects would be shown, a display with a look of its own shows
/// that.
Ruling whoWins(const Claims& claims);

} // namespace nocturo
