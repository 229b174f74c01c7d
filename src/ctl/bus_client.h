#pragma once

#include "base/property_value.h"

#include <chrono>
#include <functional>
#include <memory>
#include <nlohmann/json.hpp>
#include <span>
#include <string>
#include <systemd/sd-bus.h>

namespace nocturo {

using Json = nlohmann::ordered_json;

/// The running Nocturo, over the session bus. Every member throws Failure.
class BusClient {
  public:
    BusClient();

    /// How long to wait for an answer, instead of the bus library's 25 seconds.
    void setPatience(std::chrono::microseconds patience);

    void call(const char* method);
    void call(const char* method, bool argument);
    void call(const char* method, std::uint32_t argument);
    void call(const char* method, const std::string& argument);
    void call(const char* method, std::span<const std::string> argument);

    /// A picture in PNG of what the effects do on the display of that identifier.
    std::string renderPreview(std::uint32_t display);

    /// `value` is of a type that a setting can have.
    void callSetSetting(const std::string& key, const PropertyValue& value);

    /// All properties, their names with a small first letter: {"active": true, ...}.
    Json properties();

    /// Calls `started` once with all properties, and from then on `changed` with those that
    /// changed, each time that some did, until Nocturo leaves the bus. Misses no change in between.
    void watch(const std::function<void(const Json& properties)>& started,
               const std::function<void(const Json& properties)>& changed);

  private:
    struct Unref {
        void operator()(sd_bus* bus) const { sd_bus_flush_close_unref(bus); }
        void operator()(sd_bus_message* message) const { sd_bus_message_unref(message); }
        void operator()(sd_bus_slot* slot) const { sd_bus_slot_unref(slot); }
    };
    using Message = std::unique_ptr<sd_bus_message, Unref>;
    using Slot = std::unique_ptr<sd_bus_slot, Unref>;

    Message newCall(const char* interface, const char* method);
    Message send(const Message& message);

    std::unique_ptr<sd_bus, Unref> bus_;
};

} // namespace nocturo
