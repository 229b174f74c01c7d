// Calls Nocturo over the bus, over one connection. "toggle" toggles; "fade" does that slowly, so
// that the next comes on the way; "look" goes on to the next look; "schedule" switches the schedule
// on and off; "ask" asks for everything; "open" opens a thousand files that do not exist; "drag"
// moves a setting to and fro, as a slider does. With a number that often, one after the other; else
// as fast as the bus takes it, until it is killed, without reading an answer.

#include <cstdlib>
#include <string>
#include <vector>

#include <systemd/sd-bus.h>

namespace {

sd_bus_message* newCall(sd_bus* bus, const std::string& what, int left) {
    constexpr const char* kOwn = "org.nocturo.Nocturo1";
    sd_bus_message* call = nullptr;
    const auto make = [&](const char* interface, const char* method) {
        sd_bus_message_new_method_call(bus, &call, "org.nocturo.Nocturo", "/org/nocturo/Nocturo",
                                       interface, method);
    };
    if (what == "ask") {
        make("org.freedesktop.DBus.Properties", "GetAll");
        sd_bus_message_append(call, "s", kOwn);
    } else if (what == "open") {
        make("org.freedesktop.Application", "Open");
        std::string nowhere = "/nowhere";
        std::vector<char*> files(1000, nowhere.data());
        files.push_back(nullptr);
        sd_bus_message_append_strv(call, files.data());
        sd_bus_message_append(call, "a{sv}", 0);
    } else if (what == "drag") {
        make(kOwn, "SetSetting");
        sd_bus_message_append(call, "sv", "NDDimEffectLevel", "d", -0.01 * (left % 100));
    } else if (what == "schedule") {
        make(kOwn, "SetSetting");
        sd_bus_message_append(call, "sv", "UseSchedule", "b", left % 2);
    } else if (what == "look") {
        make(kOwn, "ApplyNextLook");
    } else if (what == "fade" && left % 2 == 0) {
        make(kOwn, "FadeNext");
        sd_bus_message_append(call, "d", 0.05);
    } else {
        make(kOwn, "Toggle");
    }
    return call;
}

} // namespace

int main(int argc, char* argv[]) {
    sd_bus* bus = nullptr;
    if (argc < 2 || sd_bus_open_user(&bus) < 0) {
        return EXIT_FAILURE;
    }
    const bool reads = argc == 3;
    for (int left = reads ? std::stoi(argv[2]) : 1; left > 0; left -= reads ? 1 : 0) {
        sd_bus_message* call = newCall(bus, argv[1], left);
        if (reads ? sd_bus_call(bus, call, 0, nullptr, nullptr) < 0
                  : sd_bus_send(bus, call, nullptr) < 0 || sd_bus_flush(bus) < 0) {
            return EXIT_FAILURE;
        }
        sd_bus_message_unref(call);
    }
    return EXIT_SUCCESS;
}
