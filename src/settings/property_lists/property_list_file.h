#pragma once

#include "base/property_value.h"
#include "base/result.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <sys/types.h>

namespace nocturo {

/// Tells one content of a file from the next: two equal stamps of a path mean that nobody wrote or
/// replaced it in between.
struct FileStamp {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::int64_t size = 0;
    std::int64_t modifiedSeconds = 0;
    std::int64_t modifiedNanoseconds = 0;
    bool operator==(const FileStamp&) const = default;
};

/// The stamp of what is at `path` now, links followed; nothing when that cannot be found out.
std::optional<FileStamp> fileStamp(const std::filesystem::path& path);

struct PropertyListFileContents {
    enum class State {
        absent,
        loaded,
        damaged,    // there, but beyond 1 MiB or no property list with a dictionary at its root
        unreadable, // there or not, the system does not say: see errorNumber
    };
    State state = State::absent;
    PropertyDictionary dictionary;  // when loaded
    std::optional<FileStamp> stamp; // of the very file that was read
    int errorNumber = 0;            // when unreadable
};

/// Reads the property list at `path`, XML or binary. Never blocks on what is no ordinary file.
PropertyListFileContents readPropertyListFile(const std::filesystem::path& path);

/// Replaces the file at `path` as a whole by XML, so that readers and a power cut find either the
/// old content or the new one. A link at `path` stays and its target is replaced. The permissions
/// of an existing file are kept; those of a new one are `newFileMode` less the process's umask. On
/// failure the old file is as it was and nothing else is left behind; EFBIG is the one for what
/// could not be read again. Returns the new file's stamp.
Result<FileStamp> writePropertyListFile(const std::filesystem::path& path,
                                        const PropertyDictionary& dictionary, mode_t newFileMode);

} // namespace nocturo
