// nocturo-guard gives the displays back when Nocturo cannot: it waits, with its connection to the X
// server already made, for the end of the connection to the Nocturo that started it, which the
// kernel brings about however that process ends. It is small because it waits for as long as
// Nocturo runs: statically linked where that is possible, and without streams or locales.

#include "displays/guard/display_repair.h"
#include "displays/guard/guard_process.h"
#include "displays/x11/randr_hardware.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <poll.h>
#include <span>
#include <string>
#include <string_view>
#include <sys/prctl.h>

namespace nocturo {

namespace {

constexpr int kDone = 0;
constexpr int kFailed = 1;
constexpr int kUsage = 2;

// Waits for Nocturo to end, or for the server, with which the ramps go; true for Nocturo.
bool waitForNocturo(XConnection& connection) {
    std::array<pollfd, 2> sources{
        {{kGuardDescriptor, POLLIN, 0}, {connection.descriptor(), POLLIN, 0}}};
    while (sources[0].revents == 0) {
        connection.processEvents();
        if (connection.isLost()) {
            return false;
        }
        poll(sources.data(), sources.size(), -1);
    }
    return true;
}

// Says nothing of a server that cannot be reached: Nocturo cannot reach it either, and says so.
int guard(const std::string& display, const ServerMark::Owner& nocturo) {
    const auto connection = XConnection::open(display);
    const auto hardware = RandrHardware::open(connection.get());
    if (!hardware) {
        return kFailed;
    }
    if (waitForNocturo(*connection)) {
        repairDisplaysAfter(nocturo, **hardware);
    }
    return kDone;
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
    std::span arguments(argv, static_cast<std::size_t>(argc));
    if (arguments.size() > 1 && arguments.back() == kSpareGuard) {
        prctl(PR_SET_NAME, kSpareGuardName);
        arguments = arguments.first(arguments.size() - 1);
    }
    ServerMark::Owner nocturo;
    if (arguments.size() == 5 && std::string_view(arguments[1]) == "--guard" &&
        parse(arguments[3], nocturo.token) && parse(arguments[4], nocturo.window)) {
        return guard(arguments[2], nocturo);
    }
    std::fputs("Nocturo starts this program by itself; nocturoctl restore is what you may want.\n",
               stderr);
    return kUsage;
}
