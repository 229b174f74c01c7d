#include "automation/who_wins.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace nocturo {

namespace {

constexpr std::array<std::string_view, 5> kNames = {"hand", "pause", "rule", "schedule",
                                                    "settings"};

/// Without the hand and pauses.
Ruling rulingByItself(const Claims& claims) {
    if (claims.rule) {
        return {*claims.rule, Ruler::rule};
    }
    if (claims.schedule) {
        return {*claims.schedule, Ruler::schedule};
    }
    return {Claim{claims.isSwitchedOn}, Ruler::settings};
}

/// As if the display had no look of its own.
Ruling strongest(const Claims& claims) {
    if (claims.pause) {
        return {*claims.pause, Ruler::pause};
    }
    Ruling ruling = rulingByItself(claims);
    if (ruling.by == Ruler::settings) {
        return ruling; // they are the hand's
    }
    const bool untilNextPoint = claims.schedule && !claims.hand.untilRuleEnds;
    const std::optional<Moment> until = untilNextPoint ? claims.schedule->until : std::nullopt;
    const bool isOn = claims.hand.isOn.value_or(ruling.isOn);
    const bool replacesLook = claims.hand.choseEffects && isOn && !ruling.look.empty();
    if (isOn != ruling.isOn || replacesLook) {
        const bool keepsLook = isOn && !claims.hand.choseEffects;
        return {Claim{isOn, keepsLook ? ruling.look : std::string(), until}, Ruler::hand};
    }
    return ruling;
}

} // namespace

std::string_view nameOf(Ruler ruler) {
    return kNames.at(static_cast<std::size_t>(ruler));
}

std::optional<Ruler> rulerNamed(std::string_view name) {
    const auto* const found = std::find(kNames.begin(), kNames.end(), name);
    return found != kNames.end() ? std::optional(static_cast<Ruler>(found - kNames.begin()))
                                 : std::nullopt;
}

Ruling whoWins(const Claims& claims) {
    Ruling ruling = strongest(claims);
    if (ruling.isOn && ruling.look.empty()) {
        ruling.look = claims.look;
    }
    return ruling;
}

} // namespace nocturo
