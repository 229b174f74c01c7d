#pragma once

#include "app/state_sentence.h"

#include <nlohmann/json.hpp>
#include <string>

namespace nocturo {

using Json = nlohmann::ordered_json;

// Texts for people, from the properties of the running Nocturo. Each ends with a new line.

/// The state of everything, beginning with a sentence; the settings by their keys where `all`.
std::string statusReport(const Json& properties, bool all);

/// A hot key that is chosen, as people find it on their keyboards.
std::string wordsOfHotKey(const Json& hotKey);

/// Every effect, with a mark at the selected ones.
std::string effectsReport(const Json& properties);

/// The displays, with a mark at the affected ones.
std::string screensReport(const Json& properties);

/// Every look in order, with a mark at the one in force, and that one alone.
std::string looksReport(const Json& properties);
std::string lookInForce(const Json& properties);

/// The title of the look in force; empty where there is none.
std::string titleOfLookInForce(const Json& properties);

/// The title of a look; the name itself where there is no such look.
std::string titleOfLookNamed(const Json& properties, const std::string& name);

/// The hue of the color filter for people, with at most two decimals: "30.84°".
std::string hueText(const Json& properties);

/// What there is to say about the effect.
EffectState toldState(const Json& properties);

/// The looks for programs: name, title, own, and which is in force.
Json looksArray(const Json& properties);

/// The properties as one object for programs: "running" first, then in a fixed order.
Json statusObject(const Json& properties);

/// A change of properties for programs, its members in the same order.
Json changeObject(const Json& properties);

/// The status object when nothing runs.
Json notRunningObject();

} // namespace nocturo
