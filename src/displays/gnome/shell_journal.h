#pragma once

#include "displays/gnome/desktop_shell.h"
#include "displays/guard/journal.h"
#include "displays/guard/journal_file.h"

#include <filesystem>
#include <string>
#include <vector>

namespace nocturo {

/// What the CRTCs of a shell are to be given back, for shells that keep a program's ramps after its
/// end. There is such a file while a Nocturo changes displays, and after one that could not give
/// them back.
struct ShellJournal {
    std::string writer; // the name on the bus of the connection that changes them
    std::vector<Journal::Entry> entries;
    bool operator==(const ShellJournal&) const = default;

    Result<void> write(const JournalFile& file) const;
    /// Fails as JournalFile::read() does, and where the file is damaged.
    static Result<ShellJournal> read(const JournalFile& file);
};

/// The journal of this shell, which another run of it has no part in.
JournalFile shellJournalFile(const std::filesystem::path& directory, const Bus& bus,
                             const Shell& shell);

/// Whether any shell's is there.
bool hasShellJournals(const std::filesystem::path& directory);

enum class ShellRepair {
    notNeeded,  // nothing was left changed
    ownRamps,   // the displays have their own ramps again
    plainRamps, // what was kept of them came to harm, so they have plain ones
    failed,     // the shell does not answer; the journal is kept
    inUse,      // the Nocturo that changes them has not ended; its journal is kept
};

/// Gives back what an ended Nocturo left; `after` is the one whose changes alone are undone, or
/// empty for any. What one that has not ended left is overwritten where that is wanted. Waits, for
/// some seconds at most, until the bus has done all that the Nocturo sent, for answers and for who
/// else does the same. May be interrupted at any moment and be done again.
ShellRepair repairShell(const Bus& bus, const Shell& shell, const JournalFile& file,
                        const std::string& after = {}, bool overwriteUnended = false);

} // namespace nocturo
