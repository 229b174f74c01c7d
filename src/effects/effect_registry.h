#pragma once

#include "effects/color_filter_effect.h"
#include "effects/dim_effect.h"
#include "effects/hdtv_luminance_effect.h"
#include "effects/hide_stripes_effect.h"
#include "effects/invert_effect.h"
#include "settings/selectable_effects.h"

#include <optional>
#include <string_view>
#include <variant>

namespace nocturo {

/// An effect of any class that can be selected, as a value.
using SelectedEffect = std::variant<NDInvertEffect, NDHideStripesEffect, NDDimEffect,
                                    NDColorFilterEffect, NDHDTVLuminanceEffect>;

/// A new effect of the class of that name, or nothing when there is none. Allocates nothing.
std::optional<SelectedEffect> effectNamed(std::string_view className);

/// The effect as its base class; belongs to `selected`.
NDEffect& baseOf(SelectedEffect& selected);

} // namespace nocturo
