#pragma once

#include "automation/foreground.h"
#include "base/bus.h"

namespace nocturo {

/// The games that have asked GameMode, a service of the session bus, for the machine.
class GameMode : public Games {
  public:
    /// The bus must outlive this. Never starts the service.
    GameMode(const Bus& bus, std::function<void()> changed);

    bool areRunning() const override { return areRunning_; }

  private:
    void ask();
    void take(bool areRunning);

    const Bus& bus_;
    std::function<void()> changed_;
    bool areRunning_ = false;
    bool askAgain_ = false; // it has said something since
    std::unique_ptr<BusSlot> owner_;
    std::unique_ptr<BusSlot> changes_;
    std::unique_ptr<BusSlot> question_;
};

} // namespace nocturo
