#pragma once

#include "ctl/commands.h"

namespace nocturo {

/// nocturoctl rules.
void runRules(Arguments arguments);

} // namespace nocturo
