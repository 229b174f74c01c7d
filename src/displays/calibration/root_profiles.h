#pragma once

#include "x11/x_connection.h"

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace nocturo {

/// The colour profiles that X desktops leave on the root window: `_ICC_PROFILE` for the first
/// monitor, `_ICC_PROFILE_1` for the second, and so on in the server's order of monitors. There are
/// none where the server has no RandR 1.5.
class RootProfiles {
  public:
    /// Asks the server ahead, without waiting. The connection must outlive this.
    explicit RootProfiles(XConnection& connection);

    struct Profile {
        std::string property;
        std::vector<std::uint8_t> bytes; // whatever somebody put there
    };

    /// Nothing when none is there for the monitor on that connector.
    std::optional<Profile> profileOf(const std::string& connector);

    /// Another number than before whenever a profile may have changed since.
    std::uint64_t generation();

    /// Has `look` called from the event loop when that number may be another.
    void whenChanged(std::function<void()> look) { look_ = std::move(look); }

  private:
    static constexpr std::size_t kMaxMonitors = 16;

    void prepare();
    bool isProfile(xcb_atom_t property) const;
    bool anyThere() const;
    std::optional<std::size_t> monitorOf(const std::string& connector) const;

    XConnection& connection_;
    std::vector<XListener> listeners_; // none until it is prepared
    std::function<void()> look_;
    bool hasMonitors_ = false;
    std::array<xcb_atom_t, kMaxMonitors> atoms_{}; // by monitor
    std::uint64_t generation_ = 1;
};

} // namespace nocturo
