#pragma once

#include "documents/effect_document.h"
#include "effects/gamma_curve.h"

namespace nocturo {

/// The combination of effects that the settings hold now.
EffectDocument currentEffects();

/// The combination with its numbers as far as the window's sliders go.
EffectDocument withinRanges(EffectDocument document);

/// Puts a combination into the settings, as the window would, within these ranges. One change.
void setCurrentEffects(const EffectDocument& document);

/// What a combination makes of a curve, whatever the settings hold.
void applyEffects(const EffectDocument& document, ZQGammaCurve& curve);

} // namespace nocturo
