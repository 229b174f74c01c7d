#pragma once

#include <span>
#include <string>

namespace nocturo {

/// `watch`: prints the whole state as one JSON object, then each change of it as another.
void runWatch(std::span<const std::string> arguments);

/// `status --bar[=BAR] [--follow]`: prints a line for a bar; with --follow, another at each change,
/// for as long as somebody reads. `arguments` begin with the first of these.
void runBar(std::span<const std::string> arguments);

} // namespace nocturo
