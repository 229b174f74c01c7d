#pragma once

#include "base/result.h"
#include "displays/ramp.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

namespace nocturo {

/// What the CRTCs of an X server are to be given back, kept in a file for whoever has to do it when
/// the Nocturo that changed them cannot.
struct Journal {
    struct Entry {
        std::uint32_t crtc = 0;
        Ramp ramp;
        bool operator==(const Entry&) const = default;
    };

    std::uint64_t token = 0; // of the run that changes the displays, as in its ServerMark
    pid_t process = 0;       // which does
    std::vector<Entry> entries;
    bool operator==(const Journal&) const = default;
};

/// As the file holds it. The byte order is the machine's: the file never leaves it.
std::string journalBytes(const Journal& journal);

/// The reverse. Nothing for bytes that are not exactly what journalBytes made of some journal.
std::optional<Journal> journalFromBytes(std::string_view bytes);

/// The journal's file for an X server, whichever of its screens the display name chooses.
std::filesystem::path journalFile(const std::filesystem::path& runtimeDirectory,
                                  std::string_view displayName);

/// Replaces the file in one step; on failure it is as it was. It does not wait for the disk: a
/// machine that loses power loses the X server and its ramps as well.
Result<void> writeJournal(const std::filesystem::path& file, const Journal& journal);

/// Fails with ENOENT where there is no file, and otherwise where it is damaged or cannot be read.
/// Another user's file, a link and a directory count as damaged.
Result<Journal> readJournal(const std::filesystem::path& file);

} // namespace nocturo
