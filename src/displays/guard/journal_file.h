#pragma once

#include "base/files.h"
#include "base/result.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace nocturo {

/// A file with what displays are to be given back, for displays whose server keeps no such thing
/// itself. What a Journal's bytes are is one thing to keep there (journal.h).
///
/// The directory has to be this user's, writable by nobody else and no link: where it is not, each
/// member fails. Nothing here follows links or waits for what is no regular file.
class JournalFile {
  public:
    /// Looks at nothing yet, and makes no directory. `name` has no slash in it.
    JournalFile(std::filesystem::path directory, const std::string& name);

    const std::filesystem::path& path() const { return path_; }

    /// Replaces the file in one step; on failure it is as it was. Readable by this user alone.
    Result<void> write(std::string_view bytes, Durability durability) const;

    /// Fails with ENOENT where there is no file, and otherwise where it cannot be read, is another
    /// user's, is no regular file or is longer than any journal.
    Result<std::string> read() const;

    /// No file is no failure.
    Result<void> remove() const;

    /// Keeps what is damaged beside it, as "NAME.damaged", for whoever wants to look.
    void setAside() const;

  private:
    std::filesystem::path directory_;
    std::filesystem::path path_;
};

} // namespace nocturo
