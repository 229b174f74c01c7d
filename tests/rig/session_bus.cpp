#include "rig/session_bus.h"

#include <csignal>
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

void check(int result, const char* what) {
    if (result < 0) {
        throw std::runtime_error(std::string("the session bus failed: ") + what);
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
    const std::unique_ptr<sd_bus_message, decltype(&sd_bus_message_unref)> reply(
        raw, sd_bus_message_unref);
    int owned = 0;
    check(sd_bus_message_read(raw, "b", &owned), "NameHasOwner");
    return owned != 0;
}

} // namespace

SessionBus::SessionBus() {
    const std::string directory = directory_.path();
    const std::string configuration = directory + "/bus.conf";
    std::ofstream(configuration) << "<busconfig><type>session</type><listen>unix:dir=" << directory
                                 << "</listen><policy context=\"default\">"
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

bool SessionBus::waitForName(const std::string& name, Process& owner, Milliseconds timeout) {
    const auto deadline = timeAfter(timeout);
    const Bus bus = connectTo(address_);
    const std::string rule = "type='signal',member='NameOwnerChanged',arg0='" + name + "'";
    check(sd_bus_add_match(bus.get(), nullptr, rule.c_str(), nullptr, nullptr), "match");
    while (!hasOwner(bus.get(), name)) {
        if (millisecondsUntil(deadline) == 0 || !owner.isRunning()) {
            return false;
        }
        // Wakes with the change, or in time to see that the owner has ended.
        check(sd_bus_wait(bus.get(), 50000), "wait");
        while (sd_bus_process(bus.get(), nullptr) > 0) {
        }
    }
    return true;
}

void SessionBus::kill() {
    process_->signal(SIGKILL);
    process_->wait();
}

} // namespace nocturo::rig
