#include "base/awaited_bus.h"

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <utility>

namespace nocturo {

namespace {

using namespace std::chrono_literals;

// A socket has its name a moment before anybody listens at it.
constexpr std::chrono::milliseconds kFirstPause = 10ms;
constexpr std::chrono::milliseconds kLongestPause = 5min;

/// Where the first socket of an address lies; empty for one that is no file.
std::filesystem::path socketOf(const std::string& address) {
    constexpr std::string_view kPath = "unix:path=";
    const std::size_t found = address.find(kPath);
    if (found == std::string::npos) {
        return {};
    }
    const std::size_t begin = found + kPath.size();
    return address.substr(begin, address.find_first_of(",;", begin) - begin);
}

} // namespace

AwaitedBus::AwaitedBus(const std::string& address, RunLoop& runLoop,
                       std::function<void()> tryToJoin)
    : runLoop_(runLoop), tryToJoin_(std::move(tryToJoin)), pause_(kFirstPause) {
    if (const auto socket = socketOf(address); !socket.empty()) {
        socket_.emplace(std::vector{socket.parent_path()}, runLoop, [this] {
            pause_ = kFirstPause;
            tryLater();
        });
    }
    tryLater();
}

void AwaitedBus::tryLater() {
    nextTry_ = runLoop_.scheduleTimer(pause_, [this] {
        tryToJoin_();
        tryLater();
    });
    pause_ = std::min(pause_ * 2, kLongestPause);
}

} // namespace nocturo
