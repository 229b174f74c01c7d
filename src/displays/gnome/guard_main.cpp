// nocturo-bus-guard gives the displays of a shell that keeps ramps back when Nocturo cannot: it
// waits for the end of the connection to the Nocturo that started it, which the kernel brings about
// however that process ends, and speaks to the bus only then.

#include "base/event_loop.h"
#include "displays/gnome/shell_journal.h"
#include "displays/guard/guard_process.h"

#include <cerrno>
#include <cstdio>
#include <poll.h>
#include <span>
#include <string_view>
#include <sys/prctl.h>

namespace nocturo {

namespace {

constexpr int kDone = 0;
constexpr int kFailed = 1;
constexpr int kUsage = 2;
constexpr int kPatienceMs = 2000;

void waitForNocturo() {
    pollfd source{kGuardDescriptor, POLLIN, 0};
    while (poll(&source, 1, -1) < 0 && errno == EINTR) {
    }
}

int guard(const char* directory, std::string_view displays, const std::string& connection) {
    waitForNocturo();
    EventLoop loop;
    const auto bus = Bus::connect(sessionBusAddress(), loop);
    const auto shell = bus != nullptr ? findShell(*bus, kPatienceMs, displays) : std::nullopt;
    if (!shell) {
        return kDone; // with it its ramps have gone
    }
    const auto repaired =
        repairShell(*bus, *shell, shellJournalFile(directory, *bus, *shell), connection);
    return repaired == ShellRepair::failed ? kFailed : kDone;
}

} // namespace

} // namespace nocturo

int main(int argc, char* argv[]) {
    using namespace nocturo;
    const std::span arguments(argv, static_cast<std::size_t>(argc));
    if (arguments.size() >= 5 && std::string_view(arguments[1]) == "--guard") {
        if (arguments.back() == kSpareGuard) {
            prctl(PR_SET_NAME, kSpareGuardName);
        }
        return guard(arguments[2], arguments[3], arguments[4]);
    }
    std::fputs("Nocturo starts this program by itself; nocturoctl restore is what you may want.\n",
               stderr);
    return kUsage;
}
