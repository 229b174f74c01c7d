#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace nocturo {

/// Profiles of displays have kilobytes, rarely a few megabytes.
inline constexpr std::size_t kMaxProfileSize = 16U << 20;

struct ProfileFile {
    std::vector<std::uint8_t> bytes;
    std::string problem; // why there are none, a clause; empty when the file was read
};

/// Reads a regular file of at most kMaxProfileSize bytes. Never waits for what is none, such as a
/// pipe.
ProfileFile readProfileFile(const std::filesystem::path& path);

} // namespace nocturo
