#pragma once

#include "base/run_loop.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <vector>

#include <systemd/sd-event.h>

namespace nocturo {

/// The process's event loop, over sd-event. Another loop may run around it, as a toolkit's has to
/// once there are windows; handlers are never entered while another handler of this loop runs.
class EventLoop final : public RunLoop {
  public:
    /// Sources that are ready at the same time are served in this order.
    /// Whatever is watched without one has 0.
    enum Priority : std::int64_t { kSignals = -100, kBus = 100 };

    EventLoop();
    ~EventLoop() override;
    EventLoop(const EventLoop&) = delete;
    EventLoop& operator=(const EventLoop&) = delete;

    std::unique_ptr<Timer> scheduleRepeatingTimer(std::chrono::milliseconds interval,
                                                  std::function<void()> action) override;
    std::unique_ptr<Timer> scheduleTimer(std::chrono::milliseconds delay,
                                         std::function<void()> action) override;
    std::unique_ptr<Watch> watch(int descriptor, std::function<void()> action) override;
    std::unique_ptr<Watch> watch(int descriptor, std::function<void()> action,
                                 std::function<bool()> hasRead) override;
    void callSoon(std::function<void()> action) override;

    /// Blocks signals for the process, so that they wait to be handled. To be called before any
    /// thread is started.
    static void blockSignals(std::span<const int> signalNumbers);

    /// Blocks these signals and calls `handler` with the number of each that is sent, from the
    /// loop. To be called once.
    void handleSignals(std::span<const int> signalNumbers, std::function<void(int)> handler);

    /// For what attaches itself to the loop, as a bus does.
    sd_event* handle() const { return event_.get(); }

    /// Runs until quit() is called and returns its exit code.
    int run();

    /// Ends run() once the handler that runs now has returned. The first exit code counts.
    void quit(int exitCode = 0);
    bool isQuitting() const { return quitting_; }

    /// From now on run() calls `outer` instead of waiting by itself. `outer` serves this loop
    /// through the members below until `end` is called, which happens when this loop quits.
    void runInside(std::function<void()> outer, std::function<void()> end);

    /// Readable when dispatchPending() should be called, if prepare() was called before waiting.
    int descriptor() const;

    /// To be called before the outer loop waits; true when something is due already.
    bool prepare();

    /// Serves what is due. Does nothing inside a handler of this loop.
    void dispatchPending();

  private:
    struct Release {
        void operator()(sd_event* event) const { sd_event_unref(event); }
        void operator()(sd_event_source* source) const;
    };
    using Source = std::unique_ptr<sd_event_source, Release>;
    struct Action;
    class RunningTimer;
    class RunningWatch;

    std::unique_ptr<Timer> schedule(std::chrono::milliseconds delay,
                                    std::chrono::milliseconds interval,
                                    std::function<void()> action);
    static int timerFired(sd_event_source* source, std::uint64_t due, void* data);
    static int becameReadable(sd_event_source* source, int descriptor, std::uint32_t events,
                              void* data);
    static int callReader(sd_event_source* source, void* data);
    static int lookAhead(sd_event_source* source, void* data);
    static int callDeferred(sd_event_source* source, void* self);
    static int signalCame(sd_event_source* source, const struct signalfd_siginfo* info, void* self);

    std::unique_ptr<sd_event, Release> event_;
    Source deferred_;
    std::vector<std::function<void()>> soon_;
    std::vector<Source> signals_;
    std::function<void(int)> signalHandler_;
    std::function<void()> outer_;
    std::function<void()> endOuter_;
    bool dispatching_ = false;
    bool quitting_ = false;
    int exitCode_ = 0;
};

} // namespace nocturo
