#pragma once

#include <array>
#include <string_view>

namespace nocturo {

struct SelectableEffect {
    std::string_view className; // "NDDimEffect"
    std::string_view shortName; // for command lines: "dim"
};

/// The effects that can be selected, in the order in which they are applied.
inline constexpr std::array<SelectableEffect, 5> kSelectableEffects = {{
    {"NDInvertEffect", "invert"},
    {"NDHideStripesEffect", "overexposure"},
    {"NDDimEffect", "dim"},
    {"NDColorFilterEffect", "color-filter"},
    {"NDHDTVLuminanceEffect", "hdtv-luminance"},
}};
constexpr const auto& selectableEffects() {
    return kSelectableEffects;
}

} // namespace nocturo
