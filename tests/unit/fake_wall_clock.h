#pragma once

#include "base/wall_clock.h"
#include "fake_run_loop.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace nocturo {

/// A wall clock that a test sets.
class FakeWallClock final : public WallClock {
  public:
    explicit FakeWallClock(Moment now) : now_(now) {}

    Moment now() const override { return now_; }
    std::unique_ptr<Timer> wakeAt(Moment moment, std::function<void()> action) override {
        due_ = moment;
        return timers_.scheduleTimer(std::chrono::milliseconds(1), std::move(action));
    }

    /// What is awaited, of which there is one at most.
    std::optional<Moment> awaited() const {
        return timers_.pendingTimers() > 0 ? std::optional(due_) : std::nullopt;
    }

    /// The time passes as it does.
    void passTo(Moment moment) {
        while (awaited() && due_ <= moment) {
            jumpTo(std::max(now_, due_));
        }
        now_ = moment;
    }

    /// The machine wakes up, or somebody sets the clock.
    void jumpTo(Moment moment) {
        now_ = moment;
        timers_.advance(1);
    }

  private:
    Moment now_;
    Moment due_;
    FakeRunLoop timers_;
};

} // namespace nocturo
