// What callers on the bus do with what happens by itself.

#include "automation/automation.h"
#include "automation/schedule_setting.h"
#include "bus/bus_face.h"
#include "documents/chosen_look.h"

#include <utility>

namespace nocturo {

BusAnswer BusFace::pause(const std::string& words) {
    if (auto done = automation_.pause(words); !done) {
        return refusal(std::move(done.error().text));
    }
    return {};
}

BusAnswer BusFace::resume() {
    automation_.resume();
    return {};
}

BusAnswer BusFace::addSchedulePoint(const std::string& words) {
    if (auto done = nocturo::addSchedulePoint(defaults_, chosenLook_.looks(), words); !done) {
        return refusal(std::move(done.error().text));
    }
    return {};
}

BusAnswer BusFace::removeSchedulePoint(std::uint32_t index) {
    if (auto done = nocturo::removeSchedulePoint(defaults_, index); !done) {
        return refusal(std::move(done.error().text));
    }
    return {};
}

int BusFace::pauseWhileConnected(sd_bus_message* call, void* self, sd_bus_error* /*error*/) {
    auto& face = *static_cast<BusFace*>(self);
    face.pausing_.add(call);
    face.automation_.holdPause(true);
    return sd_bus_reply_method_return(call, nullptr);
}

} // namespace nocturo
