#include "program/instance_lock.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>

// A record lock belongs to one process alone. One that children share can outlive a killed
// Nocturo until the guard that it was just starting has closed its copy.

namespace nocturo {

namespace {

struct flock wholeFile() {
    struct flock lock {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    return lock;
}

} // namespace

const int InstanceLock::kReopenSignal = SIGUSR1;
const int InstanceLock::kSwitchOffSignal = SIGUSR2;

InstanceLock::InstanceLock(const std::filesystem::path& directory)
    : file_(open((directory / "lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600)) {
    struct flock lock = wholeFile();
    held_ = fcntl(file_.get(), F_SETLK, &lock) == 0 || (errno != EACCES && errno != EAGAIN);
}

void InstanceLock::askHolder(int signal) const {
    struct flock holder = wholeFile();
    if (fcntl(file_.get(), F_GETLK, &holder) == 0 && holder.l_type != F_UNLCK && holder.l_pid > 0) {
        kill(holder.l_pid, signal);
    }
}

} // namespace nocturo
