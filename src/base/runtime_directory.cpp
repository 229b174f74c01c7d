#include "base/runtime_directory.h"

#include <cerrno>
#include <cstdlib>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace nocturo {

std::optional<std::filesystem::path> runtimeDirectory() {
    const char* named = std::getenv("XDG_RUNTIME_DIR");
    const std::filesystem::path directory =
        named != nullptr && *named == '/'
            ? std::filesystem::path(named) / "nocturo"
            : std::filesystem::path("/tmp/nocturo-" + std::to_string(getuid()));
    if (mkdir(directory.c_str(), S_IRWXU) != 0 && errno != EEXIST) {
        return std::nullopt;
    }
    // The temporary directory is everybody's: a link or another user's directory is a trap.
    struct stat status {};
    if (lstat(directory.c_str(), &status) != 0 || !S_ISDIR(status.st_mode) ||
        status.st_uid != getuid()) {
        return std::nullopt;
    }
    return directory;
}

} // namespace nocturo
