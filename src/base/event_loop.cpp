#include "base/event_loop.h"

#include "base/log.h"

#include <csignal>
#include <ctime>
#include <string>
#include <sys/epoll.h>
#include <sys/signalfd.h>
#include <utility>

namespace nocturo {

namespace {

// Timers are promised to the millisecond; by itself sd-event lets them wait a quarter of a second
// for each other.
constexpr std::uint64_t kTimerAccuracyUs = 1000;

// So many handlers run before the outer loop has its turn again.
constexpr int kDispatchesInARow = 64;

std::uint64_t microseconds(std::chrono::milliseconds time) {
    return static_cast<std::uint64_t>(
        std::chrono::duration_cast<std::chrono::microseconds>(time).count());
}

} // namespace

void EventLoop::Release::operator()(sd_event_source* source) const {
    sd_event_source_set_enabled(source, SD_EVENT_OFF);
    sd_event_source_unref(source);
}

/// Shared, because it may be destroyed while it runs.
struct EventLoop::Action {
    std::function<void()> run;
    std::uint64_t intervalUs = 0;            // 0 for what happens once
    std::function<bool()> hasRead = nullptr; // for what reads ahead,
    sd_event_source* reader = nullptr;       // which then calls run
};

class EventLoop::RunningTimer final : public Timer {
  public:
    std::shared_ptr<Action> action;
    Source source;
};

class EventLoop::RunningWatch final : public Watch {
  public:
    std::shared_ptr<Action> action;
    Source source;
    Source reader; // for what reads ahead: runs the action although the descriptor shows nothing
};

EventLoop::EventLoop() {
    sd_event* event = nullptr;
    sd_event_new(&event);
    event_.reset(event);
    sd_event_source* source = nullptr;
    sd_event_add_defer(event, &source, callDeferred, this);
    deferred_.reset(source);
    sd_event_source_set_enabled(source, SD_EVENT_OFF);
}

EventLoop::~EventLoop() = default;

std::unique_ptr<Timer> EventLoop::scheduleRepeatingTimer(std::chrono::milliseconds interval,
                                                         std::function<void()> action) {
    return schedule(interval, interval, std::move(action));
}

std::unique_ptr<Timer> EventLoop::scheduleTimer(std::chrono::milliseconds delay,
                                                std::function<void()> action) {
    return schedule(delay, std::chrono::milliseconds(0), std::move(action));
}

std::unique_ptr<Timer> EventLoop::schedule(std::chrono::milliseconds delay,
                                           std::chrono::milliseconds interval,
                                           std::function<void()> action) {
    auto timer = std::make_unique<RunningTimer>();
    timer->action = std::make_shared<Action>(Action{std::move(action), microseconds(interval)});
    // From now, where sd-event itself would count from when it called the handler that runs: a
    // short pause after long work would be none.
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    const auto due = std::chrono::duration_cast<std::chrono::microseconds>(now + delay).count();
    sd_event_source* source = nullptr;
    sd_event_add_time(event_.get(), &source, CLOCK_MONOTONIC, static_cast<std::uint64_t>(due),
                      kTimerAccuracyUs, timerFired, &timer->action);
    timer->source.reset(source);
    return timer;
}

int EventLoop::timerFired(sd_event_source* source, std::uint64_t due, void* data) {
    const std::shared_ptr<Action> action = *static_cast<std::shared_ptr<Action>*>(data);
    if (action->intervalUs > 0) {
        // From when it was due, so that it keeps its phase; what was missed is not made up for.
        std::uint64_t now = due;
        sd_event_now(sd_event_source_get_event(source), CLOCK_MONOTONIC, &now);
        const std::uint64_t periods = now > due ? (now - due) / action->intervalUs : 0;
        sd_event_source_set_time(source, due + (periods + 1) * action->intervalUs);
        sd_event_source_set_enabled(source, SD_EVENT_ONESHOT);
    }
    action->run();
    return 0;
}

std::unique_ptr<Watch> EventLoop::watch(int descriptor, std::function<void()> action,
                                        std::function<bool()> hasRead) {
    auto watch = this->watch(descriptor, std::move(action));
    if (watch != nullptr) {
        auto& running = static_cast<RunningWatch&>(*watch);
        sd_event_source* source = nullptr;
        sd_event_add_defer(event_.get(), &source, callReader, &running.action);
        running.reader.reset(source);
        sd_event_source_set_enabled(source, SD_EVENT_OFF);
        running.action->hasRead = std::move(hasRead);
        running.action->reader = source;
        sd_event_source_set_prepare(running.source.get(), lookAhead);
    }
    return watch;
}

int EventLoop::callReader(sd_event_source* /*source*/, void* data) {
    const std::shared_ptr<Action> action = *static_cast<std::shared_ptr<Action>*>(data);
    action->run();
    return 0;
}

int EventLoop::lookAhead(sd_event_source* /*source*/, void* data) {
    const Action& action = **static_cast<std::shared_ptr<Action>*>(data);
    if (action.hasRead()) {
        sd_event_source_set_enabled(action.reader, SD_EVENT_ONESHOT);
    }
    return 0;
}

std::unique_ptr<Watch> EventLoop::watch(int descriptor, std::function<void()> action) {
    if (descriptor < 0) {
        return nullptr;
    }
    auto watch = std::make_unique<RunningWatch>();
    watch->action = std::make_shared<Action>(Action{std::move(action)});
    sd_event_source* source = nullptr;
    sd_event_add_io(event_.get(), &source, descriptor, EPOLLIN, becameReadable, &watch->action);
    watch->source.reset(source);
    return watch;
}

int EventLoop::becameReadable(sd_event_source* /*source*/, int /*descriptor*/,
                              std::uint32_t /*events*/, void* data) {
    const std::shared_ptr<Action> action = *static_cast<std::shared_ptr<Action>*>(data);
    action->run();
    return 0;
}

void EventLoop::callSoon(std::function<void()> action) {
    soon_.push_back(std::move(action));
    sd_event_source_set_enabled(deferred_.get(), SD_EVENT_ONESHOT);
}

int EventLoop::callDeferred(sd_event_source* /*source*/, void* self) {
    // What is handed over meanwhile has its turn in the next round.
    for (const auto& action : std::exchange(static_cast<EventLoop*>(self)->soon_, {})) {
        action();
    }
    return 0;
}

void EventLoop::blockSignals(std::span<const int> signalNumbers) {
    sigset_t set;
    sigemptyset(&set);
    for (const int number : signalNumbers) {
        sigaddset(&set, number);
    }
    pthread_sigmask(SIG_BLOCK, &set, nullptr);
}

void EventLoop::handleSignals(std::span<const int> signalNumbers,
                              std::function<void(int)> handler) {
    blockSignals(signalNumbers);
    signalHandler_ = std::move(handler);
    for (const int number : signalNumbers) {
        sd_event_source* source = nullptr;
        sd_event_add_signal(event_.get(), &source, number, signalCame, this);
        sd_event_source_set_priority(source, kSignals);
        signals_.emplace_back(source);
    }
}

int EventLoop::signalCame(sd_event_source* source, const struct signalfd_siginfo* info,
                          void* self) {
    const int number = sd_event_source_get_signal(source);
    logInfo(kLogApp, "The process " + std::to_string(info->ssi_pid) + " has sent the signal " +
                         std::to_string(number) + ".");
    static_cast<EventLoop*>(self)->signalHandler_(number);
    return 0;
}

int EventLoop::run() {
    while (!quitting_) {
        if (outer_) {
            outer_();
        } else {
            dispatching_ = true;
            sd_event_run(event_.get(), UINT64_MAX);
            dispatching_ = false;
        }
    }
    return exitCode_;
}

void EventLoop::quit(int exitCode) {
    if (std::exchange(quitting_, true)) {
        return;
    }
    exitCode_ = exitCode;
    if (endOuter_) {
        endOuter_();
    }
}

void EventLoop::runInside(std::function<void()> outer, std::function<void()> end) {
    outer_ = std::move(outer);
    endOuter_ = std::move(end);
}

int EventLoop::descriptor() const {
    return sd_event_get_fd(event_.get());
}

bool EventLoop::prepare() {
    if (dispatching_) {
        return false;
    }
    sd_event* event = event_.get();
    if (sd_event_get_state(event) == SD_EVENT_ARMED) {
        // What was added since the loop was last prepared is not armed yet.
        sd_event_wait(event, 0);
    }
    return sd_event_get_state(event) == SD_EVENT_PENDING || sd_event_prepare(event) > 0;
}

void EventLoop::dispatchPending() {
    if (dispatching_) {
        return;
    }
    dispatching_ = true;
    sd_event* event = event_.get();
    for (int i = 0; i < kDispatchesInARow && !quitting_; ++i) {
        const bool due =
            sd_event_get_state(event) == SD_EVENT_PENDING ||
            (sd_event_get_state(event) == SD_EVENT_INITIAL && sd_event_prepare(event) > 0) ||
            sd_event_wait(event, 0) > 0;
        if (!due) {
            break;
        }
        sd_event_dispatch(event);
    }
    dispatching_ = false;
}

} // namespace nocturo
