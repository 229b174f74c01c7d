#pragma once

#include "base/property_value.h"

#include <nlohmann/json.hpp>
#include <systemd/sd-bus.h>

namespace nocturo {

using Json = nlohmann::ordered_json;

/// The next complete value of a message; variants as what they hold, dictionaries as objects. Null
/// where there is none, and for types that JSON does not have.
Json readJson(sd_bus_message* message);

/// The object with "DimLevel" as "dimLevel".
Json withSmallFirstLetters(const Json& object);

/// Appends a boolean, an integer, a real or an array of strings or integers as a variant. 0 or more
/// on success, like the library's own functions. An empty array is one of strings.
int appendVariant(sd_bus_message* message, const PropertyValue& value);

} // namespace nocturo
