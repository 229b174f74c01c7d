#include "session/running_programs.h"

#include <algorithm>
#include <fstream>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace nocturo {

namespace {

bool isOwn(const std::filesystem::path& process) {
    struct stat status {};
    return stat(process.c_str(), &status) == 0 && status.st_uid == getuid();
}

} // namespace

std::string runningProgram(std::span<const std::string_view> names,
                           const std::filesystem::path& processes) {
    std::error_code unreadable;
    auto first = names.end();
    for (const auto& entry : std::filesystem::directory_iterator(processes, unreadable)) {
        // A process may end between being listed and being read; then its name is empty.
        std::string name;
        std::getline(std::ifstream(entry.path() / "comm"), name);
        const auto found = std::find(names.begin(), first, name);
        if (found != first && isOwn(entry.path())) {
            first = found;
        }
    }
    return first != names.end() ? std::string(*first) : std::string();
}

} // namespace nocturo
