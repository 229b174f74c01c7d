#pragma once

#include "base/bus.h"
#include "base/event_loop.h"
#include "base/property_value.h"
#include "bus/bus_values.h"

#include <chrono>
#include <functional>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace nocturo {

using Json = nlohmann::ordered_json;

/// The running Nocturo, over the session bus. Every member throws Failure, also where the answer is
/// none that this version understands.
class BusClient {
  public:
    BusClient();

    /// How long to wait for an answer, instead of 5 seconds.
    void setPatience(std::chrono::milliseconds patience) { patience_ = patience; }

    /// Calls a method with arguments of types that the bus has.
    template <class... Arguments>
    void call(const char* method, const Arguments&... arguments) {
        callWith(method, {BusValue(arguments)...});
    }

    /// A picture in PNG of what the effects do on the display of that identifier.
    std::string renderPreview(std::uint32_t display);

    /// `value` is of a type that a setting can have.
    void callSetSetting(const std::string& key, const PropertyValue& value);

    /// All properties, their names with a small first letter: {"active": true, ...}. Those that
    /// this version knows are there, and of their types.
    Json properties();

    /// Calls `started` once with all properties, and from then on `changed` with those that
    /// changed, each time that some did, until Nocturo leaves the bus. Misses no change in between.
    /// Those that this version knows are of their types.
    void watch(const std::function<void(const Json& properties)>& started,
               const std::function<void(const Json& properties)>& changed);

  private:
    void callWith(const char* method, const std::vector<BusValue>& arguments);
    BusMessage newCall(const char* interface, const char* method);
    BusMessage send(const BusMessage& message);

    EventLoop loop_;
    std::unique_ptr<Bus> bus_;
    std::chrono::milliseconds patience_{5000};
};

} // namespace nocturo
