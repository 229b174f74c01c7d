#include "platform/desktop/instance_lock.h"

#include <array>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <unistd.h>

namespace nocturo {

const int InstanceLock::kReopenSignal = SIGUSR1;

InstanceLock::InstanceLock(const std::filesystem::path& directory)
    : descriptor_(open((directory / "lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600)),
      held_(flock(descriptor_, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK) {
    if (held_ && descriptor_ >= 0) {
        const std::string id = std::to_string(getpid());
        if (ftruncate(descriptor_, 0) != 0 ||
            pwrite(descriptor_, id.data(), id.size(), 0) != static_cast<ssize_t>(id.size())) {
            // Without its number in the file a holder only cannot be asked to re-open.
            [[maybe_unused]] const int ignored = ftruncate(descriptor_, 0);
        }
    }
}

InstanceLock::~InstanceLock() {
    if (descriptor_ >= 0) {
        close(descriptor_);
    }
}

void InstanceLock::askHolderToReopen() const {
    std::array<char, 16> text{};
    const ssize_t length = pread(descriptor_, text.data(), text.size(), 0);
    pid_t holder = 0;
    if (length > 0) {
        std::from_chars(text.data(), text.data() + length, holder);
    }
    if (holder > 0) {
        kill(holder, kReopenSignal);
    }
}

} // namespace nocturo
