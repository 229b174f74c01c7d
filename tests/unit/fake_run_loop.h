#pragma once

#include "base/run_loop.h"

#include <algorithm>
#include <utility>
#include <vector>

#include <poll.h>

namespace nocturo {

/// A run loop whose time passes only when a test says so.
class FakeRunLoop final : public RunLoop {
  public:
    std::unique_ptr<Timer> scheduleRepeatingTimer(std::chrono::milliseconds interval,
                                                  std::function<void()> action) override {
        return schedule({interval, interval, std::move(action)});
    }
    std::unique_ptr<Timer> scheduleTimer(std::chrono::milliseconds delay,
                                         std::function<void()> action) override {
        return schedule({delay, std::chrono::milliseconds(0), std::move(action)});
    }
    std::unique_ptr<Watch> watch(int descriptor, std::function<void()> action) override {
        auto watch = std::make_unique<FakeWatch>(
            std::make_shared<Watched>(Watched{descriptor, std::move(action)}));
        watched_.push_back(watch->watched);
        return watch;
    }
    std::unique_ptr<Watch> watch(int /*descriptor*/, std::function<void()> /*action*/,
                                 std::function<bool()> /*hasRead*/) override {
        return std::make_unique<Watch>();
    }
    /// Called at the next advance(), before time passes.
    void callSoon(std::function<void()> action) override { soon_.push_back(std::move(action)); }

    /// Lets time pass and fires what falls due, in the order of due times and then of scheduling.
    /// Timers may be scheduled and destroyed meanwhile.
    void advance(std::int64_t milliseconds) {
        const std::chrono::milliseconds end = now_ + std::chrono::milliseconds(milliseconds);
        for (;;) {
            for (const auto& action : std::exchange(soon_, {})) {
                action();
            }
            const auto timers = pending();
            const auto next =
                std::min_element(timers.begin(), timers.end(),
                                 [](const auto& a, const auto& b) { return a->due < b->due; });
            if (next == timers.end() || (*next)->due > end) {
                break;
            }
            Entry& entry = **next;
            now_ = entry.due;
            entry.due += entry.interval;
            entry.isPending = entry.interval.count() > 0;
            entry.action();
        }
        now_ = end;
    }

    /// Calls the actions of the descriptors that are readable now; whether there was one. Time
    /// passes without.
    bool serveDescriptors() {
        bool served = false;
        for (const auto& each : std::vector(watched_)) {
            const auto watched = each.lock();
            pollfd source{watched != nullptr ? watched->descriptor : -1, POLLIN, 0};
            if (::poll(&source, 1, 0) == 1) {
                watched->action();
                served = true;
            }
        }
        return served;
    }

    /// What has passed so far.
    std::chrono::milliseconds now() const { return now_; }

    /// Timers that have yet to fire.
    std::size_t pendingTimers() const { return pending().size(); }

  private:
    struct Entry {
        std::chrono::milliseconds due;
        std::chrono::milliseconds interval; // 0 for a single shot
        std::function<void()> action;
        bool isPending = true;
    };
    struct Watched {
        int descriptor;
        std::function<void()> action;
    };
    struct FakeWatch final : Watch {
        explicit FakeWatch(std::shared_ptr<Watched> own) : watched(std::move(own)) {}
        std::shared_ptr<Watched> watched; // gone with the watch
    };
    struct FakeTimer final : Timer {
        explicit FakeTimer(std::shared_ptr<Entry> own) : entry(std::move(own)) {}
        std::shared_ptr<Entry> entry; // gone with the timer
    };

    std::unique_ptr<Timer> schedule(Entry entry) {
        entry.due += now_;
        std::erase_if(entries_, [](const auto& each) { return each.expired(); });
        auto timer = std::make_unique<FakeTimer>(std::make_shared<Entry>(std::move(entry)));
        entries_.push_back(timer->entry);
        return timer;
    }
    std::vector<std::shared_ptr<Entry>> pending() const {
        std::vector<std::shared_ptr<Entry>> found;
        for (const auto& each : entries_) {
            if (auto entry = each.lock(); entry != nullptr && entry->isPending) {
                found.push_back(std::move(entry));
            }
        }
        return found;
    }

    std::vector<std::weak_ptr<Entry>> entries_; // in the order of scheduling
    std::vector<std::weak_ptr<Watched>> watched_;
    std::vector<std::function<void()>> soon_;
    std::chrono::milliseconds now_{0};
};

} // namespace nocturo
