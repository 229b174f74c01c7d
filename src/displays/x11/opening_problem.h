#pragma once

#include "displays/x11/randr_hardware.h"

#include <string>

namespace nocturo {

/// One sentence, in the user's language, on why the X server's displays were not opened.
std::string openingProblem(RandrRefusal refusal, const std::string& xDisplay);

} // namespace nocturo
