#pragma once

#include <string_view>

namespace nocturo {

/// Whether the binary property list `bytes` is whole and would be read in bounded time, memory and
/// stack: every reference leads to an object inside the list, none back to itself, containers nest
/// at most 64 deep, no text holds a NUL, and what all references together spell out is a few
/// megabytes at most.
bool isBoundedBinaryList(std::string_view bytes);

} // namespace nocturo
