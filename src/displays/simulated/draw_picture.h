#pragma once

#include <filesystem>
#include <functional>

namespace nocturo {

struct Ramp;

/// Puts a picture of what a display with this ramp shows at `picture`, a PNG file, in one step;
/// false when that cannot be done.
using DrawPicture = std::function<bool(const Ramp& ramp, const std::filesystem::path& picture)>;

} // namespace nocturo
