#pragma once

#include "base/bus.h"

#include <functional>
#include <memory>
#include <string>

namespace nocturo {

/// Finds out which program is likely to change the displays' colours behind our back.
class DisturberFinder {
  public:
    /// The session bus, which may be null, must outlive the finder.
    explicit DisturberFinder(const Bus* bus) : bus_(bus) {}

    /// Answers "redshift", "gammastep" or "wlsunset" when the user runs one of them, "Night Light"
    /// when the desktop's is on, and otherwise with nothing at all; at once, or from the event loop
    /// unless the finder is destroyed before.
    void find(std::function<void(const std::string& name)> answer);

  private:
    const Bus* bus_;
    std::unique_ptr<BusSlot> question_; // the last one
};

} // namespace nocturo
