#pragma once

#include "base/file_descriptor.h"

#include <filesystem>
#include <string>
#include <vector>

namespace nocturo {

/// Notices that a file was written or replaced, only once the writer has closed it or moved it into
/// its place, so that a half-written file is never seen. Deleting it is not noticed.
class FileWatch {
  public:
    /// Watches the absolute path `file`, which need not exist; its directory is made when missing.
    /// Where the system does not offer this, that is logged once and nothing is ever noticed.
    explicit FileWatch(std::filesystem::path file);

    /// Becomes readable when processEvents has something to do; -1 when nothing is ever noticed.
    int descriptor() const { return events_.get(); }

    /// Takes what has happened since the last call, without waiting; true when the file was written
    /// or replaced.
    bool processEvents();

    /// Follows a directory that was made again or a link that now points elsewhere.
    void renew();

  private:
    struct Watched {
        int directory; // the system's number for it
        std::string name;
    };

    void watch(const std::filesystem::path& file);
    bool concerns(int directory, const char* name) const;
    void explainOnce(int errorNumber);

    std::filesystem::path file_;
    FileDescriptor events_;
    std::vector<Watched> watched_; // the file, and its target where it is a link
    bool explained_ = false;
};

} // namespace nocturo
