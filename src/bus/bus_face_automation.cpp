// What callers on the bus do with what happens by itself.

#include "automation/automation.h"
#include "automation/display_looks_setting.h"
#include "automation/rules_setting.h"
#include "automation/schedule_setting.h"
#include "bus/bus_face.h"
#include "documents/chosen_look.h"
#include "settings/display_looks.h"

#include <utility>

namespace nocturo {

namespace {

BusAnswer answer(Result<void> done) {
    return done ? BusAnswer() : refusal(std::move(done.error().text));
}

} // namespace

BusAnswer BusFace::pause(const std::string& words) {
    return answer(automation_.pause(words));
}

BusAnswer BusFace::resume() {
    automation_.resume();
    return {};
}

BusAnswer BusFace::addSchedulePoint(const std::string& words) {
    return answer(nocturo::addSchedulePoint(defaults_, chosenLook_.looks(), words));
}

BusAnswer BusFace::removeSchedulePoint(std::uint32_t index) {
    return answer(nocturo::removeSchedulePoint(defaults_, index));
}

BusAnswer BusFace::addRule(const std::string& words) {
    return answer(nocturo::addRule(defaults_, chosenLook_.looks(), words));
}

BusAnswer BusFace::moveRule(std::uint32_t from, std::uint32_t to) {
    return answer(nocturo::moveRule(defaults_, from, to));
}

BusAnswer BusFace::removeRule(std::uint32_t index) {
    return answer(nocturo::removeRule(defaults_, index));
}

BusAnswer BusFace::setDisplayLook(std::uint32_t display, const std::string& look) {
    const std::string words = textOf(DisplayLook{display, look.empty() ? "-" : look});
    if (!displayLookFromWords(words)) {
        return refusal(noDisplayLookSentence(words));
    }
    return answer(setLookOfDisplay(defaults_, chosenLook_.looks(), display, look));
}

int BusFace::holdPause(sd_bus_message* call, const std::string& command) {
    pausing_.add(call);
    automation_.holdPause(command);
    return sd_bus_reply_method_return(call, nullptr);
}

int BusFace::pauseWhileConnected(sd_bus_message* call, void* self, sd_bus_error* /*error*/) {
    return static_cast<BusFace*>(self)->holdPause(call, {});
}

int BusFace::pauseWhileRunning(sd_bus_message* call, void* self, sd_bus_error* error) {
    std::string command;
    if (!readArgument(call, command)) {
        return sd_bus_error_set(error, SD_BUS_ERROR_INVALID_ARGS, nullptr);
    }
    return static_cast<BusFace*>(self)->holdPause(call, command);
}

} // namespace nocturo
