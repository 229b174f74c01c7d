#include "bus_message.h"
#include "ctl/answer_check.h"
#include "ctl/bus_json.h"
#include "ctl/failure.h"
#include "ctl/output.h"
#include "ctl/report.h"

#include <cstdint>
#include <sys/socket.h>

using namespace nocturo;

namespace {

sd_bus* unconnectedBus() {
    std::array<int, 2> ends{};
    socketpair(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK, 0, ends.data());
    sd_bus* bus = nullptr;
    sd_bus_new(&bus);
    sd_bus_set_fd(bus, ends[0], ends[0]);
    sd_bus_start(bus);
    return bus;
}

struct Told {
    const char* name;
    const char* type;
};
constexpr Told kTold[] = {{"Active", "b"},
                          {"Paused", "b"},
                          {"Ruler", "s"},
                          {"RulesUntil", "x"},
                          {"RuledLook", "s"},
                          {"Rule", "s"},
                          {"AbsentDisplays", "aa{sv}"},
                          {"Looks", "aa{sv}"},
                          {"Look", "s"},
                          {"Temperature", "u"},
                          {"DisplayServices", "s"},
                          {"Displays", "aa{sv}"},
                          {"Effects", "as"},
                          {"DimLevel", "d"},
                          {"ColorFilterHue", "d"},
                          {"ColorFilterVividness", "d"},
                          {"AffectedScreenSet", "ax"},
                          {"HotKey", "a{sv}"},
                          {"Settings", "a{sv}"},
                          {"Disturbances", "u"},
                          {"Disturber", "s"}};
constexpr Told kOfDisplays[] = {{"number", "i"}, {"id", "u"},       {"name", "s"},
                                {"main", "b"},   {"rampSize", "u"}, {"affected", "b"},
                                {"applied", "b"}};
constexpr Told kOfHotKeys[] = {{"text", "s"}, {"enabled", "b"}, {"registered", "b"}};

template <std::size_t count>
void appendTold(sd_bus_message* message, const Told (&members)[count], FuzzedDataProvider& data) {
    sd_bus_message_open_container(message, 'a', "{sv}");
    for (const Told& member : members) {
        const bool isOdd = data.ConsumeProbability<float>() > 0.98F;
        const std::string type = isOdd ? fuzz::anySignature(data) : member.type;
        sd_bus_message_open_container(message, 'e', "sv");
        sd_bus_message_append(message, "s", member.name);
        sd_bus_message_open_container(message, 'v', type.c_str());
        if (type == "aa{sv}") {
            sd_bus_message_open_container(message, 'a', "a{sv}");
            for (int i = data.ConsumeIntegralInRange(0, 3); i > 0; --i) {
                appendTold(message, kOfDisplays, data);
            }
            sd_bus_message_close_container(message);
        } else if (type == "a{sv}" && data.ConsumeBool()) {
            appendTold(message, kOfHotKeys, data);
        } else {
            fuzz::append(message, type, data);
        }
        sd_bus_message_close_container(message);
        sd_bus_message_close_container(message);
    }
    sd_bus_message_close_container(message);
}

} // namespace

/// Whatever answers in Nocturo's name is either told in text that no terminal obeys, or refused.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static sd_bus* const bus = unconnectedBus();
    FuzzedDataProvider data(bytes, size);
    sd_bus_message* message = nullptr;
    sd_bus_message_new_signal(bus, &message, "/", "a.b", "c");
    if (data.ConsumeProbability<float>() > 0.98F) {
        fuzz::append(message, fuzz::anySignature(data), data);
    } else {
        appendTold(message, kTold, data);
    }
    const int sealed = sd_bus_message_seal(message, 1, 0);
    sd_bus_message_rewind(message, 1);
    try {
        const Json answer =
            withSmallFirstLetters(sealed < 0 ? Json() : readJson(message)); // as nocturoctl does
        checkAnswer(answer, Answer::inPart);
        changeObject(answer).dump();
        checkAnswer(answer, Answer::whole);
        const std::string text = statusReport(answer, true) + effectsReport(answer) +
                                 screensReport(answer) + statusObject(answer).dump();
        if (visible(text).find('\033') != std::string::npos) {
            __builtin_trap();
        }
    } catch (const Failure&) {
    }
    sd_bus_message_unref(message);
    return 0;
}
