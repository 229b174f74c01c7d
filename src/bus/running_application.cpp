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
    // Whoever asks this cannot wait for a fade. An earlier Nocturo has none.
    const BusMessage fade = bus.newCall(kBusName, kObjectPath, kNocturoInterface, "FadeNext");
    sd_bus_message_append(fade.get(), "d", 0.0);
    sd_bus_message_set_expect_reply(fade.get(), 0);
    sd_bus_send(bus.handle(), fade.get(), nullptr);
    const BusMessage call = bus.newCall(kBusName, kObjectPath, kNocturoInterface, "SetActive");
    return sd_bus_message_append(call.get(), "b", 0) >= 0 &&
           bus.callAndWait(call, patienceMs, nullptr) != nullptr;
}

} // namespace nocturo
