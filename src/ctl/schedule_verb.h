#pragma once

#include "ctl/commands.h"

namespace nocturo {

/// nocturoctl schedule.
void runSchedule(Arguments arguments);

} // namespace nocturo
