// The directory is watched and not the file: the link count of a program that runs says nothing,
// since who replaces it unlinks it too. The directory going itself is told as well.

#include "base/program_watch.h"

#include <array>
#include <cstdint>
#include <system_error>
#include <utility>

#include <sys/inotify.h>
#include <unistd.h>

namespace nocturo {

ProgramWatch::ProgramWatch(std::filesystem::path program, RunLoop& runLoop,
                           std::function<void()> gone, std::chrono::milliseconds patience)
    : program_(std::move(program)), runLoop_(runLoop), gone_(std::move(gone)), patience_(patience),
      events_(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
    constexpr std::uint32_t kRemovals =
        IN_DELETE | IN_MOVED_FROM | IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR;
    ::inotify_add_watch(events_.get(), program_.parent_path().c_str(), kRemovals);
    watch_ = runLoop_.watch(events_.get(), [this] { takeEvents(); });
}

void ProgramWatch::takeEvents() {
    std::array<char, 4096> ignored;
    while (::read(events_.get(), ignored.data(), ignored.size()) > 0) {
    }
    if (isThere()) {
        absence_.reset();
    } else if (absence_ == nullptr) {
        absence_ = runLoop_.scheduleTimer(patience_, [this] {
            absence_.reset();
            if (!isThere()) {
                watch_.reset();
                gone_();
            }
        });
    }
}

bool ProgramWatch::isThere() const {
    std::error_code unknown;
    return std::filesystem::exists(program_, unknown) || unknown;
}

std::filesystem::path ownProgram() {
    std::error_code unknown;
    return std::filesystem::read_symlink("/proc/self/exe", unknown);
}

} // namespace nocturo
