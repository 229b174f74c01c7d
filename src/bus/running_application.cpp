#include "bus/running_application.h"

#include "base/bus.h"
#include "bus/bus_names.h"

namespace nocturo {

namespace {

constexpr int kReopenTimeoutMs = 2000;

} // namespace

bool reopenRunningApplication(const Bus& bus) {
    const BusMessage call = bus.newCall(kBusName, kObjectPath, kNocturoInterface, "Reopen");
    return bus.callAndWait(call, kReopenTimeoutMs, nullptr) != nullptr;
}

bool switchRunningApplicationOff(const Bus& bus, int patienceMs) {
    const BusMessage call = bus.newCall(kBusName, kObjectPath, kNocturoInterface, "SetActive");
    return sd_bus_message_append(call.get(), "b", 0) >= 0 &&
           bus.callAndWait(call, patienceMs, nullptr) != nullptr;
}

} // namespace nocturo
