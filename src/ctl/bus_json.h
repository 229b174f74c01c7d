#pragma once

#include <nlohmann/json.hpp>
#include <systemd/sd-bus.h>

namespace nocturo {

using Json = nlohmann::ordered_json;

/// The next complete value of a message; variants as what they hold, dictionaries as objects, and
/// null for types that JSON does not have. Throws Failure where there is none.
Json readJson(sd_bus_message* message);

/// The object with "DimLevel" as "dimLevel"; what is none as it is.
Json withSmallFirstLetters(const Json& object);

} // namespace nocturo
