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
    std::ofstream service(directory_ / (name + ".service"));
    service << "[D-BUS Service]\nName=" << name << "\nExec=/usr/bin/env";
    const auto inherited = cleanEnvironment();
    for (const auto& [variable, value] : environment) {
        const auto same = inherited.find(variable);
        if (same == inherited.end() || same->second != value) {
            service << " '" << variable << '=' << value << '\'';
        }
    }
    service << ' ' << program << '\n' << std::flush;
    call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "ReloadConfig",
         "");
}

bool SessionBus::waitForName(const std::string& name, Process& owner) {
    const Bus bus = connectTo(address_);
    bool owned = false;
    waitUntil([&] {
        sd_bus_creds* creds = nullptr;
        owned = sd_bus_get_name_creds(bus.get(), name.c_str(), 0, &creds) >= 0;
        sd_bus_creds_unref(creds);
        return owned || !owner.isRunning();
    });
    return owned;
}

std::string SessionBus::callWith(const char* service, const char* path, const char* interface,
                                 const char* method,
                                 const std::function<int(sd_bus_message*)>& append) {
    const Bus bus = connectTo(address_);
    sd_bus_message* raw = nullptr;
    check(sd_bus_message_new_method_call(bus.get(), &raw, service, path, interface, method),
          method);
    const Message call(raw);
    check(append(raw), method);
    sd_bus_error error = SD_BUS_ERROR_NULL;
    sd_bus_message* answer = nullptr;
    const int result = sd_bus_call(bus.get(), raw, 0, &error, &answer);
    const Message reply(answer);
    const std::string reason = error.message != nullptr ? error.message : "no reason given";
    sd_bus_error_free(&error);
    check(result, (std::string(method) + ": " + reason).c_str());
    const char* object = nullptr;
    return sd_bus_message_read(answer, "o", &object) > 0 ? object : "";
}

} // namespace nocturo::rig
