#pragma once

#include <filesystem>
#include <string>

namespace nocturo {

/// Keeps from one run to the next which desktops have granted their user's hot key: asking those
/// again opens no dialog.
class GrantedHotKeys {
  public:
    /// `file` is the path of a property list, which need not exist. `desktop` is
    /// $XDG_CURRENT_DESKTOP.
    GrantedHotKeys(std::filesystem::path file, std::string desktop);

    const std::string& desktop() const { return desktop_; }
    bool isGranted() const { return granted_; }

    /// Writes the file where that is news.
    void setGranted(bool granted);

  private:
    std::filesystem::path file_;
    std::string desktop_;
    bool granted_ = false;
};

} // namespace nocturo
