#pragma once

#include "base/bus.h"
#include "displays/ramp.h"

#include <functional>
#include <memory>

namespace nocturo {

/// Sends ramps over a bus, one at a time: while one is under way only the newest of those that come
/// after it is kept, so that nothing piles up before a receiver that is slow or hangs.
class RampSender {
  public:
    /// What becomes of a refusal.
    enum class Refusal { final, tryAgainLater };

    /// `makeCall` makes the call for a ramp; `refused` is given an answer that is an error. Where
    /// it says so the newest ramp is kept until sendAgain(), but not twice in a row. The bus must
    /// outlive this.
    RampSender(const Bus& bus, std::function<BusMessage(const Ramp&)> makeCall,
               std::function<Refusal(sd_bus_message* answer)> refused);

    void send(const Ramp& ramp);

    /// Sends what was kept.
    void sendAgain();

    /// The ramp sent last, or empty.
    const Ramp& newest() const { return newest_; }

    /// False while something is under way or kept.
    bool isDone() const { return call_ == nullptr && !isKept_; }

  private:
    void transmit();
    void answered(sd_bus_message* answer);

    const Bus& bus_;
    std::function<BusMessage(const Ramp&)> makeCall_;
    std::function<Refusal(sd_bus_message*)> refused_;
    Ramp newest_;
    bool isNewer_ = false; // than what is under way
    bool isKept_ = false;
    bool isSecondAttempt_ = false;
    std::unique_ptr<BusSlot> call_;
};

} // namespace nocturo
