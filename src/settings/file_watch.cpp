#include "settings/file_watch.h"

#include "base/files.h"
#include "base/log.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <sys/inotify.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace nocturo {

FileWatch::FileWatch(std::filesystem::path file)
    : file_(std::move(file)), events_(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
    if (events_.get() < 0) {
        explainOnce(errno);
        return;
    }
    makePrivateDirectories(file_.parent_path());
    renew();
}

bool FileWatch::processEvents() {
    if (events_.get() < 0) {
        return false;
    }
    bool changed = false;
    std::array<char, 4096> buffer;
    for (;;) {
        const ssize_t got = ::read(events_.get(), buffer.data(), buffer.size());
        if (got <= 0) {
            return changed;
        }
        inotify_event event{};
        for (std::size_t at = 0; at < static_cast<std::size_t>(got);
             at += sizeof event + event.len) {
            std::memcpy(&event, buffer.data() + at, sizeof event);
            const bool missedSome = (event.mask & std::uint32_t{IN_Q_OVERFLOW}) != 0;
            const char* name = event.len > 0 ? buffer.data() + at + sizeof event : "";
            changed = changed || missedSome || concerns(event.wd, name);
        }
    }
}

void FileWatch::renew() {
    if (events_.get() < 0) {
        return;
    }
    watched_.clear();
    watch(file_);
    if (const std::filesystem::path target = followLinks(file_); target != file_) {
        watch(target);
    }
}

void FileWatch::watch(const std::filesystem::path& file) {
    // The file itself would not do: whoever replaces it leaves the watch on the old one.
    const int directory = ::inotify_add_watch(events_.get(), file.parent_path().c_str(),
                                              IN_CLOSE_WRITE | IN_MOVED_TO | IN_ONLYDIR);
    if (directory < 0) {
        explainOnce(errno);
        return;
    }
    watched_.push_back({directory, file.filename().string()});
}

bool FileWatch::concerns(int directory, const char* name) const {
    return std::any_of(watched_.begin(), watched_.end(), [&](const Watched& watched) {
        return watched.directory == directory && watched.name == name;
    });
}

void FileWatch::explainOnce(int errorNumber) {
    if (std::exchange(explained_, true)) {
        return;
    }
    logInfo(kLogSettings, "Edits of " + file_.string() +
                              " are noticed only at the next start or save (" +
                              std::generic_category().message(errorNumber) + ").");
}

} // namespace nocturo
