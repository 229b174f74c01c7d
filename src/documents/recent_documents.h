#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace nocturo {

/// The effect documents that were opened or saved last, kept in a property list of their own:
/// opening one must not look like a change of settings.
class RecentDocuments {
  public:
    static constexpr std::size_t kMost = 10;

    /// `file` is absolute and need not exist.
    explicit RecentDocuments(std::filesystem::path file);

    /// The latest first; those that are gone are left out.
    std::vector<std::string> paths() const;

    /// Where the latest one lies; empty where there is none.
    std::filesystem::path folder() const;

    /// Puts the absolute `path` first. A list that cannot be written stays as it was.
    void note(const std::string& path) const;

    void clear() const;

  private:
    std::filesystem::path file_;
};

} // namespace nocturo
