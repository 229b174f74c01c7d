#pragma once

#include "session/installed_applications.h"

#include <filesystem>
#include <vector>

namespace nocturo {

/// Finds applications by their desktop entries. A bundle identifier is an entry's file name; some
/// applications are also known by the names that their packages for Linux give them.
class DesktopEntries final : public InstalledApplications {
  public:
    /// Looks into `applications/` of these, the first that has an entry decides.
    explicit DesktopEntries(std::vector<std::filesystem::path> dataDirectories);

    std::optional<InstalledApplication>
    applicationWithBundleIdentifier(std::string_view identifier) const override;

  private:
    std::optional<InstalledApplication> entryNamed(const std::string& name) const;

    std::vector<std::filesystem::path> dataDirectories_;
};

} // namespace nocturo
