#include "bus/callers_present.h"

namespace nocturo {

CallersPresent::~CallersPresent() {
    sd_bus_track_unref(callers_);
}

void CallersPresent::add(sd_bus_message* call) {
    if (callers_ == nullptr) { // one that counts nobody keeps a bus that is not connected yet busy
        sd_bus_track_new(sd_bus_message_get_bus(call), &callers_, lastOneLeft, this);
    }
    sd_bus_track_add_sender(callers_, call);
}

int CallersPresent::lastOneLeft(sd_bus_track* /*track*/, void* self) {
    auto& callers = *static_cast<CallersPresent*>(self);
    // It is of this bus, which may have gone with them.
    sd_bus_track_unref(std::exchange(callers.callers_, nullptr));
    callers.allLeft_();
    return 1; // or it would be called again
}

} // namespace nocturo
