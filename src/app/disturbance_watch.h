#pragma once

#include "base/notification_center.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace nocturo {

class NDAppController;

/// Posted on the local notification center when the figures of a DisturbanceWatch changed.
inline constexpr std::string_view kDisturbanceNotification = "NocturoDisturbanceNotification";

/// Notices that another program changes the displays' colours while the effect is on: looks at them
/// whenever the effect is about to be applied again by the timer. It only tells.
class DisturbanceWatch {
  public:
    /// Finds out who disturbs, and answers with that program's name or with nothing at all; at once
    /// or later. Asked only when a disturbance was found.
    using Lookup = std::function<void(std::function<void(const std::string& name)> answer)>;

    /// All, and what `lookUp` needs, must outlive the watch.
    DisturbanceWatch(const NDAppController& controller, NotificationCenter& localCenter,
                     Lookup lookUp);
    ~DisturbanceWatch();
    DisturbanceWatch(const DisturbanceWatch&) = delete;
    DisturbanceWatch& operator=(const DisturbanceWatch&) = delete;

    /// How often a display was found changed since the start.
    std::uint32_t count() const { return count_; }

    /// The program that was last found doing it; empty when it could not be told.
    const std::string& disturber() const { return disturber_; }

  private:
    void lookAtDisplays();
    void setDisturber(const std::string& name);

    const NDAppController& controller_;
    NotificationCenter& localCenter_;
    Lookup lookUp_;
    std::uint32_t count_ = 0;
    std::string disturber_;
};

} // namespace nocturo
