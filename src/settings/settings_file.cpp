#include "settings/settings_file.h"

#include "base/files.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <ctime>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace nocturo {

namespace {

int renameWithoutReplacing(const std::filesystem::path& from, const std::filesystem::path& to) {
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) {
        return 0;
    }
    if (errno != EINVAL && errno != ENOSYS) {
        return errno;
    }
    // Network file systems do not know that flag, but a link never replaces either.
    if (::link(from.c_str(), to.c_str()) != 0 || ::unlink(from.c_str()) != 0) {
        return errno;
    }
    return 0;
}

std::string localTimestamp(std::chrono::system_clock::time_point when) {
    const std::time_t seconds = std::chrono::system_clock::to_time_t(when);
    std::tm local{};
    ::localtime_r(&seconds, &local);
    std::array<char, 32> text{};
    return {text.data(), std::strftime(text.data(), text.size(), "%Y%m%d-%H%M%S", &local)};
}

} // namespace

Result<FileStamp> writeSettingsFile(const std::filesystem::path& path,
                                    const PropertyDictionary& dictionary) {
    if (const int error = makePrivateDirectories(path.parent_path())) {
        return failedWith(error);
    }
    return writePropertyListFile(path, dictionary, S_IRUSR | S_IWUSR);
}

Result<std::filesystem::path> setAsideDamagedFile(const std::filesystem::path& path,
                                                  std::chrono::system_clock::time_point when) {
    const std::filesystem::path file = followLinks(path);
    const std::string name = file.string() + ".damaged-" + localTimestamp(when);
    std::string candidate = name;
    for (int number = 2;; ++number) {
        const int error = renameWithoutReplacing(file, candidate);
        if (error == 0) {
            return std::filesystem::path(candidate);
        }
        if (error != EEXIST) {
            return failedWith(error);
        }
        candidate = name + '-' + std::to_string(number);
    }
}

} // namespace nocturo
