#include "rig/session_bus.h"

#include <csignal>
#include <stdexcept>

namespace nocturo::rig {

SessionBus::SessionBus() {
    const std::string directory = directory_.path();
    writeText(directory_ / "bus.conf", "<busconfig><type>session</type><listen>unix:path=" +
                                           directory + "/bus</listen><servicedir>" + directory +
                                           "</servicedir><policy context=\"default\">"
                                           "<allow send_destination=\"*\" eavesdrop=\"true\"/>"
                                           "<allow eavesdrop=\"true\"/><allow own=\"*\"/>"
                                           "</policy></busconfig>");
    start();
}

void SessionBus::start() {
    const std::string configuration = directory_ / "bus.conf";
    process_.emplace("dbus-daemon",
                     std::vector<std::string>{"--config-file=" + configuration, "--nofork",
                                              "--nopidfile", "--print-address=1"},
                     cleanEnvironment());
    const auto line = process_->readLine();
    if (!line) {
        throw std::runtime_error("dbus-daemon did not start: " + process_->errors());
    }
    address_ = line->substr(0, line->find(',')); // the one that follows has another identifier
}

void SessionBus::end() {
    process_->signal(SIGKILL);
    process_->wait();
}

SessionBus::Bus SessionBus::connect(const std::string& address) {
    sd_bus* raw = nullptr;
    sd_bus_new(&raw);
    Bus bus(raw);
    if (sd_bus_set_address(raw, address.c_str()) < 0 || sd_bus_set_bus_client(raw, true) < 0 ||
        sd_bus_start(raw) < 0) {
        throw std::runtime_error("no bus at " + address);
    }
    return bus;
}

void SessionBus::offerService(const std::string& name, const std::string& program,
                              const Environment& environment) {
    std::string start = "/usr/bin/env";
    const auto inherited = cleanEnvironment();
    for (const auto& [variable, value] : environment) {
        const auto same = inherited.find(variable);
        if (same == inherited.end() || same->second != value) {
            start += " '" + variable + "=" + value + "'";
        }
    }
    writeText(directory_ / (name + ".service"),
              "[D-BUS Service]\nName=" + name + "\nExec=" + start + " " + program + "\n");
    call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "ReloadConfig",
         "");
}

bool SessionBus::waitForName(const std::string& name, Process& owner) {
    const Bus bus = connect();
    bool owned = false;
    waitUntil([&] {
        sd_bus_creds* creds = nullptr;
        owned = sd_bus_get_name_creds(bus.get(), name.c_str(), 0, &creds) >= 0;
        sd_bus_creds_unref(creds);
        return owned || !owner.isRunning();
    });
    return owned;
}

std::string SessionBus::objectIn(sd_bus_message* reply, sd_bus_error& error,
                                 const std::string& method) {
    if (reply == nullptr) {
        const std::string reason = error.message != nullptr ? error.message : "no reason given";
        sd_bus_error_free(&error);
        throw std::runtime_error("the bus failed: " + method + ": " + reason);
    }
    const char* object = nullptr;
    const std::string path = sd_bus_message_read(reply, "o", &object) > 0 ? object : "";
    sd_bus_message_unref(reply);
    return path;
}

} // namespace nocturo::rig
