#pragma once

#include "base/property_value.h"

#include <optional>

namespace nocturo {

/// One combination of effects, as a document holds it: which are chosen, and where the sliders of
/// the window stand.
struct EffectDocument {
    bool invertScreen = false;
    bool overexposure = false; // the effect that hides stripes
    bool hdtvLuminance = false;
    bool colorFilter = false;
    float colorFilterHue = 0.0F;
    float colorFilterVividness = 0.0F;
    bool dim = false;
    float dimLevel = 0.0F;
    bool operator==(const EffectDocument&) const = default;
};

/// Whether both make the same of a picture: numbers of effects that are not chosen do not count.
bool looksTheSame(const EffectDocument& left, const EffectDocument& right);

/// The root of the document's file: its eight values and the format marker.
PropertyDictionary propertyDictionary(const EffectDocument& document);

/// What a file's root says, or nothing when its format marker is not the number 2. Never refused
/// for an entry: a boolean is on when it is true or the number 1, and everything else is off. A
/// number is rounded to single precision whatever its range; what is missing, no number, or not
/// finite is 0.
std::optional<EffectDocument> effectDocument(const PropertyDictionary& root);

} // namespace nocturo
