#pragma once

#include "base/result.h"

#include <filesystem>
#include <vector>

namespace nocturo {

/// Whether the desktop starts the application with the session: by an entry in its list of what to
/// start, the installed one or the user's own, which overrides it.
class Autostart {
  public:
    /// The user's directory of such entries, those of configuration in which `autostart` may have
    /// an installed one, and the program that an entry written here starts.
    Autostart(const std::filesystem::path& own,
              const std::vector<std::filesystem::path>& configuration,
              std::filesystem::path program);

    bool isOn() const;

    /// Writes or removes the user's entry. The problem is a sentence for the user.
    Result<void> setOn(bool on) const;

  private:
    std::filesystem::path own_; // the user's entry
    bool isInstalled_;
    std::filesystem::path program_;
};

} // namespace nocturo
