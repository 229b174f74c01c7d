#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

#include <unistd.h>

namespace nocturo::fuzz {

inline void need(bool holds) {
    if (!holds) {
        std::abort();
    }
}

/// A directory of this process's own, which the end of the process leaves behind.
inline const std::filesystem::path& ownDirectory() {
    static const auto& directory = *new std::filesystem::path(
        std::filesystem::temp_directory_path() / ("nocturo-fuzz-" + std::to_string(getpid())));
    std::filesystem::create_directories(directory);
    return directory;
}

} // namespace nocturo::fuzz
