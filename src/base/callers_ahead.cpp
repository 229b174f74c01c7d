#include "base/callers_ahead.h"

#include <sys/ioctl.h>

namespace nocturo {

namespace {

constexpr int kMostCalls = 100;
constexpr std::chrono::seconds kMemory{10};

} // namespace

bool CallersAhead::admits(sd_bus_message* call) {
    sd_bus* bus = sd_bus_message_get_bus(call);
    const char* sender = sd_bus_message_get_sender(call);
    const auto now = std::chrono::steady_clock::now();
    int waiting = 0;
    if (now > forgotten_ + kMemory ||
        (ioctl(sd_bus_get_fd(bus), FIONREAD, &waiting) == 0 && waiting == 0)) {
        forgotten_ = now;
        calls_.clear();
    }
    if (sender == nullptr || ++calls_[sender] <= kMostCalls) {
        return true;
    }
    sd_bus_reply_method_errorf(call, SD_BUS_ERROR_LIMITS_EXCEEDED, "Wait for the answers.");
    return false;
}

} // namespace nocturo
