#pragma once

#include "effects/effect.h"
#include "settings/selectable_effects.h"

#include <string_view>

namespace nocturo {

/// The effect of that class name among those that can be selected, or null when there is none. One
/// serves everybody, since effects keep no state that matters.
NDEffect* effectNamed(std::string_view className);

} // namespace nocturo
