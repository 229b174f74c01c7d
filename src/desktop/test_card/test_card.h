#pragma once

#include "displays/ramp.h"

#include <filesystem>

namespace nocturo {

/// Draws the test card as a display with these ramps would show it, and puts it at `picture`, a PNG
/// file, in one step: whoever looks at the file sees the old picture or the new one, never a part.
/// Works without a display and without an application object. False, with the file as it was, when
/// it cannot be written. The ramp has a usable size.
bool writeTestCard(const Ramp& ramp, const std::filesystem::path& picture);

} // namespace nocturo
