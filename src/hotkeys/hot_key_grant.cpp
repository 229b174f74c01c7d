#include "hotkeys/hot_key_grant.h"

#include "base/texts/translated.h"

#include <algorithm>
#include <array>
#include <utility>

namespace nocturo {

namespace {

using State = HotKeyGrant::State;

constexpr std::array<std::pair<State, std::string_view>, 5> kNames = {
    {{State::inForce, "inForce"},
     {State::asked, "asked"},
     {State::notAsked, "notAsked"},
     {State::refused, "refused"},
     {State::notOffered, "notOffered"}}};

} // namespace

std::string_view nameOf(State state) {
    return std::ranges::find(kNames, state, &decltype(kNames)::value_type::first)->second;
}

State grantStateNamed(std::string_view name) {
    const auto* found = std::ranges::find(kNames, name, &decltype(kNames)::value_type::second);
    return found != kNames.end() ? found->first : State::inForce;
}

std::string sentenceOn(const HotKeyGrant& grant) {
    if (!grant.configuration.empty()) {
        return grant.configuration == kToggleCommand
                   ? translated("This desktop takes hot keys from its own settings. Add a shortcut "
                                "for this command there:")
                   : translated("This desktop takes hot keys from its own configuration. Put this "
                                "line there:");
    }
    switch (grant.state) {
    case State::asked:
        return translated("The desktop is asked whether Nocturo may have it.");
    case State::notAsked:
        return translated("This desktop has not been asked for it yet.");
    case State::refused:
        return translated("The desktop has refused it.");
    case State::inForce:
    case State::notOffered:
        break;
    }
    return grant.trigger.empty()
               ? std::string()
               : translated("The desktop has it as %@; its own settings change that.",
                            {grant.trigger});
}

} // namespace nocturo
