#pragma once

#include "platform/property_value.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>

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

struct SettingsFileContents {
    enum class State {
        absent,
        loaded,
        damaged,    // there, but no property list with a dictionary at its root
        unreadable, // there or not, the system does not say: see errorNumber
    };
    State state = State::absent;
    PropertyDictionary dictionary;  // when loaded
    std::optional<FileStamp> stamp; // of the very file that was read
    int errorNumber = 0;            // when unreadable
};

/// Reads the property list at `path`. Never blocks on what is no ordinary file.
SettingsFileContents readSettingsFile(const std::filesystem::path& path);

struct SettingsFileWrite {
    int errorNumber = 0;            // 0 when it was written
    std::optional<FileStamp> stamp; // of the new file, when it was written
};

/// Replaces the file at `path` as a whole, so that readers and a power cut find either the old
/// content or the new one. Missing directories are made, for the user alone. A link at `path` stays
/// and its target is replaced. The permissions of an existing file are kept; a new one is the
/// user's alone. On failure the old file is as it was and nothing else is left behind.
SettingsFileWrite writeSettingsFile(const std::filesystem::path& path,
                                    const PropertyDictionary& dictionary);

struct SetAsideFile {
    int errorNumber = 0;        // 0 when it was renamed
    std::filesystem::path path; // its new name
};

/// Renames the file at `path` (the target, where that is a link) to its own name with
/// ".damaged-20261121-090838" appended, the local time of `when`; and "-2", "-3" ... after that,
/// for an existing file is never overwritten.
SetAsideFile setAsideDamagedFile(const std::filesystem::path& path,
                                 std::chrono::system_clock::time_point when);

/// Makes `directory` and the directories above it where they are missing, for the user alone.
/// Failing is no error here: what needs the directory finds out.
void makePrivateDirectories(const std::filesystem::path& directory);

/// `path`, or what it points to through any number of links, whether that exists or not.
std::filesystem::path followLinks(std::filesystem::path path);

} // namespace nocturo
