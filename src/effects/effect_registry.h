#pragma once

#include "effects/effect.h"
#include "settings/selectable_effects.h"

#include <memory_resource>
#include <string_view>

namespace nocturo {

/// A new effect of the class of that name, or null when there is none. It lies in `memory` and ends
/// with it: effects own nothing, so nobody destroys them.
NDEffect* effectNamed(std::string_view className, std::pmr::memory_resource& memory);

} // namespace nocturo
