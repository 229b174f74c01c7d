// nocturo-profile-guard gives the outputs of a KWin their own colour profiles back when Nocturo
// cannot: it waits for the end of the connection to the Nocturo that started it, which the kernel
// brings about however that process ends. Only then does it connect to the compositor, which may
// have ended as well and be about to start anew.

#include "displays/guard/guard_process.h"
#include "displays/kde/profile_journal.h"
#include "displays/kde/restore_profiles.h"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <span>
#include <string>
#include <string_view>
#include <sys/prctl.h>
#include <thread>
#include <unistd.h>

namespace nocturo {

namespace {

using namespace std::chrono_literals;

constexpr int kDone = 0;
constexpr int kFailed = 1;
constexpr int kUsage = 2;

constexpr int kAttempts = 20;
constexpr auto kPause = 500ms;

void waitForNocturo() {
    char byte = 0;
    while (read(kGuardDescriptor, &byte, 1) < 0 && errno == EINTR) {
    }
}

int guard(const std::string& display, const std::filesystem::path& state, const std::string& run) {
    waitForNocturo();
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        if (ProfileJournal(state).run() != run) {
            return kDone; // all was given back, or a newer Nocturo sees to it
        }
        const auto compositor = WaylandConnection::open(display);
        if (compositor != nullptr && OutputDevices::areOfferedBy(*compositor) &&
            restoreProfiles(*compositor, state, run) != ProfileRepair::failed) {
            return kDone;
        }
        std::this_thread::sleep_for(kPause); // nothing tells of a compositor that starts
    }
    return kFailed;
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
    if (arguments.size() == 5 && std::string_view(arguments[1]) == "--guard") {
        return guard(arguments[2], arguments[3], arguments[4]);
    }
    std::fputs("Nocturo starts this program by itself; nocturoctl restore is what you may want.\n",
               stderr);
    return kUsage;
}
