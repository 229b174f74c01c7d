#pragma once

#include "documents/effect_document.h"

namespace nocturo {

/// The combination of effects that the settings hold now.
EffectDocument currentEffects();

/// Puts a combination into the settings, as the window would: numbers go as far as its sliders do.
void setCurrentEffects(const EffectDocument& document);

} // namespace nocturo
