#pragma once

#include "unit/temporary_directory.h"

namespace nocturo::rig {

using nocturo::TemporaryDirectory;

} // namespace nocturo::rig
