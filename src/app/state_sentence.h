#pragma once

#include <string>
#include <vector>

namespace nocturo {

class DefaultsStore;
class NDAppController;

/// The chosen effects as a person would say them, in the order in which they are applied, in the
/// user's language: "Invert", "Dim −30 %".
std::vector<std::string> namesOfChosenEffects();

/// What the displays show and why, in one sentence of the user's language: "On: Invert, Dim −30 %
/// on all screens". Names the effects and screens chosen, whatever a single display makes of them.
std::string stateSentence(const NDAppController& controller, const DefaultsStore& defaults);

} // namespace nocturo
