#pragma once

#include "platform/run_loop.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <utility>

namespace nocturo {

/// A run loop whose time passes only when a test says so.
class FakeRunLoop final : public RunLoop {
  public:
    std::unique_ptr<Timer> scheduleRepeatingTimer(std::chrono::milliseconds interval,
                                                  std::function<void()> action) override {
        return schedule(interval, interval, std::move(action));
    }

    std::unique_ptr<Timer> scheduleTimer(std::chrono::milliseconds delay,
                                         std::function<void()> action) override {
        return schedule(delay, {}, std::move(action));
    }

    /// Lets time pass and fires what falls due, in the order of due times and then of scheduling.
    /// Timers may be scheduled and destroyed meanwhile.
    void advance(std::int64_t milliseconds) {
        const std::chrono::milliseconds end = now_ + std::chrono::milliseconds(milliseconds);
        for (;;) {
            const auto next = std::min_element(
                entries_->begin(), entries_->end(),
                [](const auto& a, const auto& b) { return a.second.due < b.second.due; });
            if (next == entries_->end() || next->second.due > end) {
                break;
            }
            now_ = next->second.due;
            const std::function<void()> action = next->second.action;
            if (next->second.interval.count() > 0) {
                next->second.due += next->second.interval;
            } else {
                entries_->erase(next);
            }
            action();
        }
        now_ = end;
    }

    /// Timers that have yet to fire.
    std::size_t pendingTimers() const { return entries_->size(); }

    /// Since the loop was made.
    std::chrono::milliseconds now() const { return now_; }

  private:
    struct Entry {
        std::chrono::milliseconds due;
        std::chrono::milliseconds interval; // 0 for a single shot
        std::function<void()> action;
    };
    using Entries = std::map<std::uint64_t, Entry>; // by order of scheduling

    struct FakeTimer final : Timer {
        FakeTimer(std::shared_ptr<Entries> allEntries, std::uint64_t ownNumber)
            : entries(std::move(allEntries)), number(ownNumber) {}
        ~FakeTimer() override { entries->erase(number); }
        FakeTimer(const FakeTimer&) = delete;
        FakeTimer& operator=(const FakeTimer&) = delete;

        std::shared_ptr<Entries> entries; // timers may outlive the loop
        std::uint64_t number;
    };

    std::unique_ptr<Timer> schedule(std::chrono::milliseconds delay,
                                    std::chrono::milliseconds interval,
                                    std::function<void()> action) {
        const std::uint64_t number = ++lastNumber_;
        entries_->emplace(number, Entry{now_ + delay, interval, std::move(action)});
        return std::make_unique<FakeTimer>(entries_, number);
    }

    std::shared_ptr<Entries> entries_ = std::make_shared<Entries>();
    std::uint64_t lastNumber_ = 0;
    std::chrono::milliseconds now_{0};
};

} // namespace nocturo
