#pragma once

#include "x11/xcb_handles.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace nocturo {

/// The colour profiles that X desktops leave on the root window: `_ICC_PROFILE` for the first
/// monitor, `_ICC_PROFILE_1` for the second, and so on in the server's order of monitors.
class RootProfiles {
  public:
    /// On a connection of its own; null when the server cannot be reached or has no RandR 1.5.
    static std::unique_ptr<RootProfiles> open(const std::string& displayName);

    struct Profile {
        std::string property;
        std::vector<std::uint8_t> bytes; // whatever somebody put there
    };

    /// Nothing when none is there for the monitor on that connector.
    std::optional<Profile> profileOf(const std::string& connector);

    /// Another number than before whenever a profile may have changed since. Takes in what the
    /// server has sent.
    std::uint64_t generation();

    /// Readable when the server sent something, and when it is gone.
    int descriptor() const;

  private:
    static constexpr std::size_t kMaxMonitors = 16;

    RootProfiles(XcbConnection connection, std::uint32_t root);

    bool anyThere() const;
    std::optional<std::size_t> monitorOf(const std::string& connector) const;

    XcbConnection connection_;
    std::uint32_t root_ = 0;
    std::array<std::uint32_t, kMaxMonitors> atoms_{}; // by monitor
    std::uint64_t generation_ = 1;
};

} // namespace nocturo
