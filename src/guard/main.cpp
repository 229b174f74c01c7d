// nocturo-guard gives the displays back when Nocturo cannot: it waits, with its connection to the X
// server already made, for the end of the connection to the Nocturo that started it, which the
// kernel brings about however that process ends. It is small because it waits for as long as
// Nocturo runs: statically linked where that is possible, and without streams or locales.

#include "platform/desktop/runtime_directory.h"
#include "platform/displays/guarded/display_repair.h"
#include "platform/displays/guarded/guard_process.h"
#include "platform/displays/guarded/journal.h"
#include "platform/displays/randr/randr_hardware.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <poll.h>
#include <span>
#include <string>
#include <string_view>

namespace nocturo {

namespace {

constexpr int kDone = 0;
constexpr int kFailed = 1;
constexpr int kUsage = 2;

int say(const std::string& sentence, int status) {
    std::fprintf(status == kDone ? stdout : stderr, "%s\n", sentence.c_str());
    return status;
}

// Waits for Nocturo to end, or for the server, with which the ramps go; true for Nocturo.
bool waitForNocturo(RandrHardware& hardware) {
    std::array<pollfd, 2> sources{
        {{kGuardDescriptor, POLLIN, 0}, {hardware.descriptor(), POLLIN, 0}}};
    while (sources[0].revents == 0) {
        hardware.processEvents();
        if (hardware.connectionLost()) {
            return false;
        }
        poll(sources.data(), sources.size(), -1);
    }
    return true;
}

// Says nothing of a server that cannot be reached: Nocturo cannot reach it either, and says so.
int guard(const std::string& display, const char* journal, const ServerMark::Content& nocturo) {
    const RandrOpening opening = RandrHardware::open(display);
    if (opening.hardware == nullptr) {
        return kFailed;
    }
    if (waitForNocturo(*opening.hardware)) {
        repairDisplaysAfter(nocturo, *opening.hardware, journal);
    }
    return kDone;
}

// True when a running Nocturo switched off. One that cannot be told from another program by its
// number, or that has just ended, is sent nothing.
bool askToSwitchOff(RandrHardware& hardware, pid_t nocturo) {
    return nocturo > 0 && kill(nocturo, kSwitchOffSignal) == 0 && waitUntilGivenBack(hardware);
}

int restore() {
    const char* display = std::getenv("DISPLAY");
    const auto directory = runtimeDirectory();
    if (display == nullptr || *display == '\0') {
        return say("There is no X server whose displays could be given back, because DISPLAY is "
                   "not set.",
                   kFailed);
    }
    if (!directory) {
        return say("The runtime directory cannot be used; set XDG_RUNTIME_DIR to one of yours.",
                   kFailed);
    }
    const RandrOpening opening = RandrHardware::open(display);
    if (opening.hardware == nullptr) {
        return say("The displays cannot be given back: " + opening.reason + ".", kFailed);
    }
    RandrHardware& hardware = *opening.hardware;
    const auto journal = journalFile(*directory, display);
    if (const auto nocturo = changingProcess(hardware, journal)) {
        if (askToSwitchOff(hardware, *nocturo)) {
            return say("Nocturo has switched its effect off and given the displays back.", kDone);
        }
    }
    switch (repairDisplays(hardware, journal)) {
    case Repair::ownRamps:
        return say("The displays have their own colors back, as they were before Nocturo changed "
                   "them.",
                   kDone);
    case Repair::plainRamps:
        return say("The displays have plain colors now.", kDone);
    case Repair::inUse:
        overwriteDisplays(hardware, journal);
        return say("The displays have been given back, but a Nocturo that does not answer still "
                   "runs and may change them again.",
                   kDone);
    case Repair::notNeeded:
        break;
    }
    writePlainRamps(hardware);
    return say("Nocturo had left no display changed; the displays have plain colors now.", kDone);
}

template <class Number>
bool parse(std::string_view text, Number& number) {
    const char* end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && rest == end;
}

} // namespace

} // namespace nocturo

int main(int argc, char* argv[]) {
    using namespace nocturo;
    const std::span arguments(argv, static_cast<std::size_t>(argc));
    ServerMark::Content nocturo;
    if (arguments.size() == 6 && std::string_view(arguments[1]) == "--guard" &&
        parse(arguments[4], nocturo.token) && parse(arguments[5], nocturo.window)) {
        return guard(arguments[2], arguments[3], nocturo);
    }
    if (arguments.size() == 2 && std::string_view(arguments[1]) == "--restore") {
        return restore();
    }
    return say("Nocturo starts this program by itself; nocturoctl restore is what you may want.",
               kUsage);
}
