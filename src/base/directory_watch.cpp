#include "base/directory_watch.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <utility>

#include <sys/inotify.h>
#include <unistd.h>

namespace nocturo {

namespace {

constexpr std::chrono::milliseconds kSettling(50); // of many files that are copied
constexpr std::uint32_t kChanges = IN_CLOSE_WRITE | IN_MOVED_TO | IN_MOVED_FROM | IN_DELETE |
                                   IN_CREATE | IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR;

} // namespace

DirectoryWatch::DirectoryWatch(std::vector<std::filesystem::path> directories, RunLoop& runLoop,
                               std::function<void()> changed)
    : directories_(std::move(directories)), runLoop_(runLoop), changed_(std::move(changed)) {
    watchAll();
}

void DirectoryWatch::watchAll() {
    watch_.reset();
    events_ = FileDescriptor(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
    for (std::filesystem::path path : directories_) {
        // One that is missing is waited for in the nearest that is there.
        while (::inotify_add_watch(events_.get(), path.c_str(), kChanges) < 0 && errno == ENOENT &&
               path.has_relative_path()) {
            path = path.parent_path();
        }
    }
    watch_ = runLoop_.watch(events_.get(), [this] { takeEvents(); });
}

void DirectoryWatch::takeEvents() {
    std::array<char, 4096> ignored;
    while (::read(events_.get(), ignored.data(), ignored.size()) > 0) {
    }
    if (settling_ == nullptr) {
        settling_ = runLoop_.scheduleTimer(kSettling, [this] {
            settling_.reset();
            watchAll(); // a directory may have come
            changed_();
        });
    }
}

} // namespace nocturo
