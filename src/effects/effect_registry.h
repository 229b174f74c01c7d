#pragma once

#include "effects/effect.h"

#include <memory_resource>
#include <span>
#include <string_view>

namespace nocturo {

/// A new effect of the class of that name, or null when there is none. It lies in `memory` and ends
/// with it: effects own nothing, so nobody destroys them.
NDEffect* effectNamed(std::string_view className, std::pmr::memory_resource& memory);

/// The effects that can be selected, in the order in which they are applied.
struct SelectableEffect {
    std::string_view className; // "NDDimEffect"
    std::string_view shortName; // for command lines: "dim"
};
std::span<const SelectableEffect> selectableEffects();

} // namespace nocturo
