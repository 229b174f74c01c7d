#include "base/runtime_directory.h"

#include <cerrno>
#include <cstdlib>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace nocturo {

namespace {

bool isOursAlone(const struct stat& status) {
    return S_ISDIR(status.st_mode) && status.st_uid == geteuid() &&
           (status.st_mode & mode_t{S_IWGRP | S_IWOTH}) == 0;
}

} // namespace

std::optional<std::filesystem::path> runtimeDirectory() {
    const char* named = std::getenv("XDG_RUNTIME_DIR");
    std::filesystem::path directory = "/tmp/nocturo-" + std::to_string(geteuid());
    struct stat status {};
    if (named != nullptr && *named == '/') {
        // One that root would make in a user's directory would shut that user out.
        if (stat(named, &status) != 0 || !isOursAlone(status)) {
            return std::nullopt;
        }
        directory = std::filesystem::path(named) / "nocturo";
    }
    if (mkdir(directory.c_str(), S_IRWXU) != 0 && errno != EEXIST) {
        return std::nullopt;
    }
    // The temporary directory is everybody's: a link or another user's directory is a trap.
    if (lstat(directory.c_str(), &status) != 0 || !isOursAlone(status)) {
        return std::nullopt;
    }
    return directory;
}

} // namespace nocturo
