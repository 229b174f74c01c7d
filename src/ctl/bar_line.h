#pragma once

#include "ctl/bus_client.h"

#include <string>

namespace nocturo {

/// Makes the line that a bar takes, with its end, of all properties; of null where Nocturo does not
/// run.
using BarLine = std::string (*)(const Json& properties);

/// That of the option "--bar=waybar", "--bar=polybar", "--bar=i3status-rust", or of "--bar", which
/// is Waybar's. Throws Failure where the option is another or there is no such bar.
BarLine barLineNamed(const std::string& option);

} // namespace nocturo
