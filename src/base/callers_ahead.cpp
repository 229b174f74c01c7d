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
        std::erase_if(trust_, [now](const auto& each) { return now > each.second.until; });
    }
    const char* sender = sd_bus_message_get_sender(call);
    if (sender == nullptr) {
        return true;
    }
    const auto trust = trust_.find(sender);
    const int most = !isAnswered             ? kMostUnanswered
                     : trust == trust_.end() ? kMostCalls
                                             : trust->second.calls;
    const int count = ++calls.bySender[sender];
    if (count <= most) {
        return true;
    }
    // Who is refused has not read its answers; once all has been read it gets half as many.
    if (isAnswered && count == most + 1) {
        trust_.insert_or_assign(sender, Trust{std::max(most / 2, 1), now + kMemory});
    }
    sd_bus_reply_method_errorf(call, SD_BUS_ERROR_LIMITS_EXCEEDED, "Wait for the answers.");
    return false;
}

} // namespace nocturo
