#pragma once

#include "displays/display_functions.h"

#include <array>
#include <cstdint>
#include <span>

namespace nocturo {

/// The first ten online displays; empty when they cannot be listed.
class OnlineDisplays {
  public:
    OnlineDisplays() {
        if (CGGetOnlineDisplayList(kZQMaxDisplays, ids_.data(), &count_) != kCGErrorSuccess) {
            count_ = 0;
        }
    }
    std::span<const CGDirectDisplayID> ids() const { return std::span(ids_).first(count_); }

  private:
    std::array<CGDirectDisplayID, kZQMaxDisplays> ids_{};
    std::uint32_t count_ = 0;
};

} // namespace nocturo
