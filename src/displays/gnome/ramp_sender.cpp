#include "displays/gnome/ramp_sender.h"

#include <utility>

namespace nocturo {

RampSender::RampSender(const Bus& bus, std::function<BusMessage(const Ramp&)> makeCall,
                       std::function<Refusal(sd_bus_message*)> refused)
    : bus_(bus), makeCall_(std::move(makeCall)), refused_(std::move(refused)) {}

void RampSender::send(const Ramp& ramp) {
    newest_ = ramp;
    if (call_ != nullptr) {
        isNewer_ = true;
    } else if (!isKept_) {
        transmit();
    }
}

void RampSender::sendAgain() {
    if (std::exchange(isKept_, false)) {
        transmit();
    }
}

void RampSender::transmit() {
    isNewer_ = false;
    call_ = bus_.call(makeCall_(newest_), [this](sd_bus_message* answer) { answered(answer); });
}

void RampSender::answered(sd_bus_message* answer) {
    call_.reset();
    const bool wasSecondAttempt = std::exchange(isSecondAttempt_, false);
    if (sd_bus_message_is_method_error(answer, nullptr) > 0 &&
        refused_(answer) == Refusal::tryAgainLater && !wasSecondAttempt) {
        isSecondAttempt_ = true;
        isKept_ = true;
    } else if (isNewer_) {
        transmit();
    }
}

} // namespace nocturo
