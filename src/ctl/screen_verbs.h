#pragma once

#include "ctl/bus_client.h"
#include "ctl/commands.h"

#include <cstdint>
#include <string>

namespace nocturo {

/// Lists or chooses the affected displays.
void runScreens(Arguments arguments);

/// A display by its number in the list, its name or its identifier. One that is not online can
/// still be named by its identifier where the affected screen set has it. Throws Failure.
std::uint32_t displayFromText(const Json& properties, const std::string& text);

/// Throws Failure where the identifiers are not all of displays that displayFromText knows.
void checkDisplays(const Json& properties, const PropertyValue& identifiers);

} // namespace nocturo
