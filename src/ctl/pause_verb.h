#pragma once

#include "ctl/commands.h"

namespace nocturo {

/// nocturoctl pause. Ends the process with the status of the command where it waits for one.
void runPause(Arguments arguments);

} // namespace nocturo
