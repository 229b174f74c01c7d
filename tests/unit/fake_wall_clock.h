#pragma once

#include "base/wall_clock.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace nocturo {

/// A wall clock that a test sets.
class FakeWallClock final : public WallClock {
  public:
    explicit FakeWallClock(Moment now) : now_(now) {}

    Moment now() const override { return now_; }
    std::unique_ptr<Timer> wakeAt(Moment moment, std::function<void()> action) override {
        auto timer =
            std::make_unique<FakeTimer>(std::make_shared<Entry>(Entry{moment, std::move(action)}));
        entry_ = timer->entry;
        return timer;
    }

    /// What is awaited, of which there is one at most.
    std::optional<Moment> awaited() const {
        const auto entry = entry_.lock();
        return entry != nullptr ? std::optional(entry->due) : std::nullopt;
    }

    /// The time passes as it does.
    void passTo(Moment moment) {
        while (awaited() && *awaited() <= moment) {
            now_ = std::max(now_, *awaited());
            fire();
        }
        now_ = moment;
    }

    /// The machine wakes up, or somebody sets the clock.
    void jumpTo(Moment moment) {
        now_ = moment;
        fire();
    }

  private:
    struct Entry {
        Moment due;
        std::function<void()> action;
    };
    struct FakeTimer final : Timer {
        explicit FakeTimer(std::shared_ptr<Entry> own) : entry(std::move(own)) {}
        std::shared_ptr<Entry> entry;
    };
    void fire() {
        if (const auto entry = entry_.lock()) {
            entry_.reset();
            entry->action();
        }
    }

    std::weak_ptr<Entry> entry_;
    Moment now_;
};

} // namespace nocturo
