#pragma once

#include "ctl/commands.h"

namespace nocturo {

/// Shows, applies and keeps looks, by what follows the verb.
void runLook(Arguments words);

} // namespace nocturo
