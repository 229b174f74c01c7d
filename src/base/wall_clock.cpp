#include "base/wall_clock.h"

#include "base/directory_watch.h"
#include "base/file_descriptor.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <filesystem>
#include <system_error>
#include <utility>
#include <vector>

#include <sys/timerfd.h>
#include <unistd.h>

namespace nocturo {

namespace {

const std::filesystem::path kZoneLink = "/etc/localtime";

class WallTimer final : public Timer {
  public:
    WallTimer(RunLoop& runLoop, Moment moment, std::function<void()> action)
        : descriptor_(timerfd_create(CLOCK_REALTIME, TFD_CLOEXEC | TFD_NONBLOCK)),
          action_(std::move(action)) {
        itimerspec due{};
        due.it_value.tv_sec = std::max<std::int64_t>(moment.time_since_epoch().count(), 1);
        timerfd_settime(descriptor_.get(), TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET, &due,
                        nullptr);
        watch_ = runLoop.watch(descriptor_.get(), [this] { becameReadable(); });
        zoneFile_ = std::make_unique<DirectoryWatch>(
            std::vector<std::filesystem::path>{kZoneLink.parent_path()}, runLoop, [this] {
                if (zone_ != zoneInForce()) {
                    fireSoon();
                }
            });
    }

  private:
    static std::filesystem::path zoneInForce() {
        std::error_code none;
        return std::filesystem::read_symlink(kZoneLink, none);
    }

    void fireSoon() {
        itimerspec past{};
        past.it_value.tv_sec = 1;
        timerfd_settime(descriptor_.get(), TFD_TIMER_ABSTIME, &past, nullptr);
    }

    void becameReadable() {
        std::array<char, sizeof(std::uint64_t)> expirations{};
        const auto size = ::read(descriptor_.get(), expirations.data(), expirations.size());
        if (size > 0 || errno == ECANCELED) { // the clock was set
            watch_.reset();
            const auto action = std::exchange(action_, {}); // it may destroy this timer
            action();
        }
    }

    FileDescriptor descriptor_;
    std::function<void()> action_;
    std::unique_ptr<Watch> watch_;
    std::filesystem::path zone_ = zoneInForce();
    std::unique_ptr<DirectoryWatch> zoneFile_;
};

} // namespace

Moment SystemWallClock::now() const {
    return std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
}

std::unique_ptr<Timer> SystemWallClock::wakeAt(Moment moment, std::function<void()> action) {
    return std::make_unique<WallTimer>(runLoop_, moment, std::move(action));
}

} // namespace nocturo
