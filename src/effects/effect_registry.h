#pragma once

#include "effects/color_filter_effect.h"
#include "effects/dim_effect.h"
#include "effects/group_effect.h"
#include "effects/hdtv_luminance_effect.h"
#include "effects/hide_stripes_effect.h"
#include "effects/invert_effect.h"

#include <optional>
#include <span>
#include <string_view>
#include <variant>

namespace nocturo {

/// A fresh effect of any class, held by value so that making one allocates nothing.
class EffectInstance {
  public:
    template <typename Effect>
    explicit EffectInstance(Effect effect) : effect_(effect) {}

    NDEffect& operator*();
    const NDEffect& operator*() const;
    NDEffect* operator->() { return &**this; }
    const NDEffect* operator->() const { return &**this; }

  private:
    std::variant<NDInvertEffect, NDHideStripesEffect, NDDimEffect, NDColorFilterEffect,
                 NDHDTVLuminanceEffect, NDGroupEffect>
        effect_;
};

/// A new effect of the class of that name, or nothing when there is none.
std::optional<EffectInstance> effectNamed(std::string_view className);

/// The effects that can be selected, in the order in which they are applied.
struct SelectableEffect {
    std::string_view className; // "NDDimEffect"
    std::string_view shortName; // for command lines: "dim"
};
std::span<const SelectableEffect> selectableEffects();

} // namespace nocturo
