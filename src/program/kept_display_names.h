#pragma once

#include "base/property_value.h"

#include <filesystem>

namespace nocturo {

class NotificationCenter;

/// Keeps what displays are called from one session to the next. Main thread only.
class KeptDisplayNames {
  public:
    /// Reads the file, and writes it whenever a display comes that it has not. A file that cannot
    /// be read or written costs the names of displays that are not connected and nothing else.
    KeptDisplayNames(std::filesystem::path file, NotificationCenter& localCenter);
    ~KeptDisplayNames();
    KeptDisplayNames(const KeptDisplayNames&) = delete;
    KeptDisplayNames& operator=(const KeptDisplayNames&) = delete;

  private:
    void keep();

    const std::filesystem::path file_;
    NotificationCenter& localCenter_;
    PropertyDictionary names_; // by identifier
};

} // namespace nocturo
