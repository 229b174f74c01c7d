#pragma once

#include <string>
#include <string_view>

namespace nocturo {

/// What the desktop has made of a claimed hot key, where it has a say in it.
struct HotKeyGrant {
    enum class State {
        inForce,
        asked,     // the desktop has not answered yet; perhaps it asks its user
        notAsked,  // it would ask its user, and there is no occasion for that
        refused,   // by the user, or by the desktop itself
        notOffered // programs get no hot keys here
    };

    State state = State::inForce;
    std::string trigger;       // what the desktop calls the key; empty where it does not say
    std::string configuration; // one line: what gives the desktop the key, where Nocturo cannot
    bool canBeChanged = false; // the desktop lets its user choose another key
};

/// Posted on the local notification center after every change of what a desktop has made of a
/// registered hot key.
inline constexpr std::string_view kHotKeyGrantNotification = "NocturoHotKeyGrantNotification";

/// The state's name on the bus, and the state of that name; in force where there is none.
std::string_view nameOf(HotKeyGrant::State state);
HotKeyGrant::State grantStateNamed(std::string_view name);

/// The grant in one sentence for its user, which ends with a colon where its configuration is to
/// follow; empty where there is nothing to say.
std::string sentenceOn(const HotKeyGrant& grant);

/// What runs under a shortcut of the desktop's own.
inline constexpr const char* kToggleCommand = "nocturoctl toggle";

} // namespace nocturo
