#pragma once

#include <nlohmann/json.hpp>
#include <systemd/sd-bus.h>

namespace nocturo {

using Json = nlohmann::ordered_json;

/// The next complete value of a message; variants as what they hold, dictionaries as objects. Null
/// where there is none, and for types that JSON does not have.
Json readJson(sd_bus_message* message);

/// The object with "DimLevel" as "dimLevel".
Json withSmallFirstLetters(const Json& object);

} // namespace nocturo
