#include "control/nocturoctl/restore.h"

#include "control/nocturoctl/bus_client.h"
#include "control/nocturoctl/failure.h"
#include "platform/displays/guarded/guard_process.h"

#include <cerrno>
#include <cstring>
#include <iostream>
#include <unistd.h>

namespace nocturo {

namespace {

// Somebody sits in front of screens that cannot be read.
constexpr std::chrono::seconds kPatience{1};

bool switchOffOverTheBus() {
    try {
        BusClient client;
        client.setPatience(kPatience);
        client.call("SetActive", false);
        return true;
    } catch (const Failure&) {
        return false; // whatever it is, the guard program needs no bus
    }
}

} // namespace

void restoreDisplays() {
    if (switchOffOverTheBus()) {
        std::cout << "Nocturo has switched its effect off and given the displays back.\n";
        return;
    }
    std::string program = guardProgram().string();
    std::string verb = "--restore";
    char* const arguments[] = {program.data(), verb.data(), nullptr};
    execv(program.c_str(), arguments);
    throw Failure{kFailed, "The displays cannot be given back, because " + program +
                               " cannot be started: " + std::strerror(errno) + "."};
}

} // namespace nocturo
