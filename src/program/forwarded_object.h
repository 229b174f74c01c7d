#pragma once

#include "base/bus.h"

#include <cstdint>
#include <map>
#include <memory>

namespace nocturo {

/// An object that Qt's connection to the session bus offers, under the application's name, which
/// the core's connection has. Goes once no object is on Qt's connection any more.
class ForwardedObject {
  public:
    /// `bus`, which may be null, must outlive this.
    ForwardedObject(const Bus* bus, const char* path);
    ForwardedObject(const ForwardedObject&) = delete;
    ForwardedObject& operator=(const ForwardedObject&) = delete;

  private:
    static int forward(sd_bus_message* call, void* self, sd_bus_error* error);

    const Bus* bus_;
    std::unique_ptr<sd_bus_slot, BusRelease> object_;
    std::map<std::uint64_t, std::unique_ptr<BusSlot>> pending_;
    std::uint64_t last_ = 0;
};

} // namespace nocturo
