#include "base/callers_ahead.h"

#include <sys/ioctl.h>

namespace nocturo {

namespace {

constexpr int kMostCalls = 100;
constexpr std::chrono::seconds kMemory{10};
// Each may take the time of a few round trips to a busy server, and others come in between.
constexpr int kMostUnanswered = 20;
constexpr std::chrono::seconds kMemoryOfUnanswered{1};

} // namespace

bool CallersAhead::admits(sd_bus_message* call) {
    const bool isAnswered = sd_bus_message_get_expect_reply(call) > 0;
    Calls& calls = isAnswered ? answered_ : unanswered_;
    const auto now = std::chrono::steady_clock::now();
    int waiting = -1;
    if (now > calls.since + (isAnswered ? kMemory : kMemoryOfUnanswered) ||
        (isAnswered &&
         ioctl(sd_bus_get_fd(sd_bus_message_get_bus(call)), FIONREAD, &waiting) == 0 &&
         waiting == 0)) {
        calls.since = now;
        calls.bySender.clear();
    }
    const char* sender = sd_bus_message_get_sender(call);
    if (sender == nullptr ||
        ++calls.bySender[sender] <= (isAnswered ? kMostCalls : kMostUnanswered)) {
        return true;
    }
    sd_bus_reply_method_errorf(call, SD_BUS_ERROR_LIMITS_EXCEEDED, "Wait for the answers.");
    return false;
}

} // namespace nocturo
