#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace nocturo {

struct InstalledApplication {
    std::string displayName; // in the user's language
    std::string icon;        // a name in the icon theme or a path; may be empty
};

/// The applications that the desktop knows.
class InstalledApplications {
  public:
    virtual ~InstalledApplications() = default;

    /// Nothing when it is not installed.
    virtual std::optional<InstalledApplication>
    applicationWithBundleIdentifier(std::string_view identifier) const = 0;
};

} // namespace nocturo
