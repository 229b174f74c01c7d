// Calls Nocturo over the bus as fast as the bus takes it, until it is killed, and reads no answer.
// "toggle" toggles; "ask" asks for everything; "open" opens a thousand files that do not exist.

#include <cstdlib>
#include <cstring>
#include <string>

#include <systemd/sd-bus.h>

namespace {

sd_bus_message* newCall(sd_bus* bus, const std::string& what) {
    const bool asks = what == "ask";
    const char* interface = asks             ? "org.freedesktop.DBus.Properties"
                            : what == "open" ? "org.freedesktop.Application"
                                             : "org.nocturo.Nocturo1";
    sd_bus_message* call = nullptr;
    sd_bus_message_new_method_call(bus, &call, "org.nocturo.Nocturo", "/org/nocturo/Nocturo",
                                   interface,
                                   asks             ? "GetAll"
                                   : what == "open" ? "Open"
                                                    : "Toggle");
    if (asks) {
        sd_bus_message_append(call, "s", "org.nocturo.Nocturo1");
    } else if (what == "open") {
        sd_bus_message_open_container(call, 'a', "s");
        for (int i = 0; i < 1000; ++i) {
            sd_bus_message_append(call, "s", "/nowhere");
        }
        sd_bus_message_close_container(call);
        sd_bus_message_append(call, "a{sv}", 0);
    }
    return call;
}

} // namespace

int main(int argc, char* argv[]) {
    sd_bus* bus = nullptr;
    if (argc != 2 || sd_bus_open_user(&bus) < 0) {
        return EXIT_FAILURE;
    }
    for (;;) {
        sd_bus_message* call = newCall(bus, argv[1]);
        if (sd_bus_send(bus, call, nullptr) < 0 || sd_bus_flush(bus) < 0) {
            return EXIT_FAILURE;
        }
        sd_bus_message_unref(call);
    }
}
