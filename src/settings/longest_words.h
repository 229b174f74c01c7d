#pragma once

#include <cstddef>

namespace nocturo {

/// Of a point, a rule or a display's look, in bytes, so that lists of them can always be saved.
/// What is longer stands for nothing.
inline constexpr std::size_t kLongestWords = 500;

} // namespace nocturo
