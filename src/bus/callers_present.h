#pragma once

#include <functional>
#include <utility>

#include <systemd/sd-bus.h>

namespace nocturo {

/// Programs that asked for something that ends when they leave the bus, killed or not.
class CallersPresent {
  public:
    /// `allLeft` is called from the event loop when the last one has left.
    explicit CallersPresent(std::function<void()> allLeft) : allLeft_(std::move(allLeft)) {}
    ~CallersPresent();
    CallersPresent(const CallersPresent&) = delete;
    CallersPresent& operator=(const CallersPresent&) = delete;

    /// Counts the sender of the call, who is one however often it calls.
    void add(sd_bus_message* call);

  private:
    static int lastOneLeft(sd_bus_track* track, void* self);

    sd_bus_track* callers_ = nullptr;
    std::function<void()> allLeft_;
};

} // namespace nocturo
