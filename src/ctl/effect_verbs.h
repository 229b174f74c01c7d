#pragma once

#include "ctl/commands.h"

namespace nocturo {

// The verbs that choose effects and how strong they are. Each runs with what follows the verb.

void runEffects(Arguments arguments);
void runTemperature(Arguments arguments);
void runDim(Arguments arguments);
void runTint(Arguments arguments);
void runStep(Arguments arguments);

} // namespace nocturo
