#include "rig/session_bus.h"

#include <fstream>
#include <memory>
#include <stdexcept>

#include <systemd/sd-bus.h>

namespace nocturo::rig {

namespace {

struct BusCloser {
    void operator()(sd_bus* bus) const { sd_bus_close_unref(bus); }
};
using Bus = std::unique_ptr<sd_bus, BusCloser>;

struct MessageUnref {
    void operator()(sd_bus_message* message) const { sd_bus_message_unref(message); }
};
using Message = std::unique_ptr<sd_bus_message, MessageUnref>;

void check(int result, const char* what) {
    if (result < 0) {
        throw std::runtime_error(std::string("the bus failed: ") + what);
    }
}

Bus connectTo(const std::string& address) {
    sd_bus* raw = nullptr;
    check(sd_bus_new(&raw), "new");
    Bus bus(raw);
    check(sd_bus_set_address(raw, address.c_str()), "address");
    check(sd_bus_set_bus_client(raw, true), "client");
    check(sd_bus_start(raw), "start");
    return bus;
}

bool hasOwner(sd_bus* bus, const std::string& name) {
    sd_bus_message* raw = nullptr;
    check(sd_bus_call_method(bus, "org.freedesktop.DBus", "/org/freedesktop/DBus",
                             "org.freedesktop.DBus", "NameHasOwner", nullptr, &raw, "s",
                             name.c_str()),
          "NameHasOwner");
    const Message reply(raw);
    int owned = 0;
    check(sd_bus_message_read(raw, "b", &owned), "NameHasOwner");
    return owned != 0;
}

} // namespace

SessionBus::SessionBus() {
    const std::string directory = directory_.path();
    const std::string configuration = directory + "/bus.conf";
    std::ofstream(configuration) << "<busconfig><type>session</type><listen>unix:dir=" << directory
                                 << "</listen><servicedir>" << directory
                                 << "</servicedir><policy context=\"default\">"
                                    "<allow send_destination=\"*\" eavesdrop=\"true\"/>"
                                    "<allow eavesdrop=\"true\"/><allow own=\"*\"/>"
                                    "</policy></busconfig>";
    process_.emplace("dbus-daemon",
                     std::vector<std::string>{"--config-file=" + configuration, "--nofork",
                                              "--nopidfile", "--print-address=1"},
                     cleanEnvironment());
    const auto line = process_->readLine();
    if (!line) {
        throw std::runtime_error("dbus-daemon did not start: " + process_->errors());
    }
    address_ = *line;
}

void SessionBus::offerService(const std::string& name, const std::string& program,
                              const Environment& environment) {
    std::ofstream(directory_.path() / (name + ".service"))
        << "[D-BUS Service]\nName=" << name << "\nExec=" << program << "\n";
    callWith("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
             "UpdateActivationEnvironment", [&](sd_bus_message* message) {
                 int result = sd_bus_message_open_container(message, 'a', "{ss}");
                 for (const auto& [variable, value] : environment) {
                     if (result >= 0) {
                         result = sd_bus_message_append(message, "{ss}", variable.c_str(),
                                                        value.c_str());
                     }
                 }
                 return result < 0 ? result : sd_bus_message_close_container(message);
             });
    call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "ReloadConfig",
         "");
}

bool SessionBus::waitForName(const std::string& name, Process& owner) {
    const Bus bus = connectTo(address_);
    bool owned = false;
    waitUntil([&] { return (owned = hasOwner(bus.get(), name)) || !owner.isRunning(); });
    return owned;
}

void SessionBus::callWith(const char* service, const char* path, const char* interface,
                          const char* method, const std::function<int(sd_bus_message*)>& append) {
    const Bus bus = connectTo(address_);
    sd_bus_message* raw = nullptr;
    check(sd_bus_message_new_method_call(bus.get(), &raw, service, path, interface, method),
          method);
    const Message call(raw);
    check(append(raw), method);
    sd_bus_error error = SD_BUS_ERROR_NULL;
    const int result = sd_bus_call(bus.get(), raw, 0, &error, nullptr);
    const std::string reason = error.message != nullptr ? error.message : "no reason given";
    sd_bus_error_free(&error);
    check(result, (std::string(method) + ": " + reason).c_str());
}

} // namespace nocturo::rig
