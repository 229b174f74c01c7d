#include "base/environment.h"

#include <algorithm>
#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace nocturo {

std::string environment(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

namespace {

/// A relative one would be another in every directory that Nocturo is started in.
std::filesystem::path homeDirectory() {
    std::filesystem::path named = environment("HOME");
    if (named.is_absolute()) {
        return named;
    }
    const passwd* user = getpwuid(getuid());
    return std::filesystem::path("/") / (user != nullptr ? user->pw_dir : "");
}

} // namespace

std::filesystem::path userDirectory(const char* variable, const char* inHome) {
    const std::filesystem::path named = environment(variable);
    return named.is_absolute() ? named : homeDirectory() / inHome;
}

std::filesystem::path stateDirectory() {
    return userDirectory("XDG_STATE_HOME", ".local/state") / "nocturo";
}

std::vector<std::filesystem::path> dataDirectories() {
    std::vector<std::filesystem::path> directories = {
        userDirectory("XDG_DATA_HOME", ".local/share")};
    const std::string named = environment("XDG_DATA_DIRS");
    for (auto& each : partsOfList(named.empty() ? "/usr/local/share:/usr/share" : named)) {
        directories.emplace_back(std::move(each));
    }
    return directories;
}

std::vector<std::string> partsOfList(const std::string& list) {
    std::vector<std::string> parts;
    for (std::size_t start = 0; start < list.size();) {
        const auto end = std::min(list.find(':', start), list.size());
        if (end > start) {
            parts.push_back(list.substr(start, end - start));
        }
        start = end + 1;
    }
    return parts;
}

} // namespace nocturo
