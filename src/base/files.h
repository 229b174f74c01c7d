#pragma once

#include "base/file_descriptor.h"
#include "base/result.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <sys/stat.h>

namespace nocturo {

struct OpenedFile {
    FileDescriptor descriptor;
    struct stat status {};
};

/// Opens a regular file to read it. Never waits for what is none, such as a pipe: that fails with
/// EINVAL, and a directory with EISDIR. `flags` are added to those of open(2).
Result<OpenedFile> openRegularFile(const std::filesystem::path& path, int flags = 0);

/// The rest of an open file; EFBIG where that is more than `limit` bytes, which stops the reading.
Result<std::string> readAll(const FileDescriptor& file, std::size_t limit);

/// Whether a file's content is on the disk, come what may, when it is in its place.
enum class Durability { survivesPowerCuts, lastsWhileTheSystemRuns };

/// Puts a file with that content in the place of the one at `path`, in one step, and says what its
/// status is. The permissions of an existing regular file are kept; those of a new one are
/// `newFileMode` less the process's umask. On failure the old file is as it was and nothing else is
/// left behind. A link at `path` is replaced; see followLinks().
Result<struct stat> replaceFile(const std::filesystem::path& path, std::string_view content,
                                mode_t newFileMode, Durability durability);

/// `path`, or what it points to through any number of links, whether that exists or not.
std::filesystem::path followLinks(std::filesystem::path path);

/// Makes `directory` and the directories above it where they are missing, for the user alone. The
/// system's number for why one could not be made, which what needs the directory finds out as well;
/// 0 where all are there.
int makePrivateDirectories(const std::filesystem::path& directory);

} // namespace nocturo
