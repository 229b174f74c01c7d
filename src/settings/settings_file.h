#pragma once

#include "settings/property_lists/property_list_file.h"

#include <chrono>
#include <filesystem>

namespace nocturo {

/// writePropertyListFile, after the missing directories were made; what is new is the user's alone.
Result<FileStamp> writeSettingsFile(const std::filesystem::path& path,
                                    const PropertyDictionary& dictionary);

/// Renames the file at `path` (the target, where that is a link) to its own name with
/// ".damaged-20261121-090838" appended, the local time of `when`; and "-2", "-3" ... after that,
/// for an existing file is never overwritten. Returns its new path.
Result<std::filesystem::path> setAsideDamagedFile(const std::filesystem::path& path,
                                                  std::chrono::system_clock::time_point when);

} // namespace nocturo
