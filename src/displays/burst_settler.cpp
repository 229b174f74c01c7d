#include "displays/burst_settler.h"

#include "base/run_loop.h"

#include <chrono>
#include <utility>

namespace nocturo {

using namespace std::chrono_literals;

BurstSettler::BurstSettler(RunLoop& runLoop, std::function<void()> settled)
    : runLoop_(runLoop), settled_(std::move(settled)) {}

BurstSettler::~BurstSettler() = default;

void BurstSettler::note() {
    quiet_ = runLoop_.scheduleTimer(50ms, [this] { settle(); });
    if (limit_ == nullptr) {
        limit_ = runLoop_.scheduleTimer(250ms, [this] { settle(); });
    }
}

void BurstSettler::settle() {
    quiet_.reset();
    limit_.reset();
    settled_();
}

} // namespace nocturo
