#pragma once

#include "base/result.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <vector>

namespace nocturo {

/// Profiles of displays have kilobytes, rarely a few megabytes.
inline constexpr std::size_t kMaxProfileSize = 16U << 20;

/// Reads a regular file of at most kMaxProfileSize bytes; the problem is a clause. Never waits for
/// what is none, such as a pipe.
Result<std::vector<std::uint8_t>> readProfileFile(const std::filesystem::path& path);

} // namespace nocturo
