#pragma once

#include "base/bus.h"
#include "base/event_loop.h"
#include "base/property_value.h"
#include "bus/bus_values.h"

#include <chrono>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace nocturo {

class PatientOutput;

using Json = nlohmann::ordered_json;

/// Somebody who follows what Nocturo does and prints it. Properties are told as by
/// BusClient::properties().
class Follower {
  public:
    virtual ~Follower() = default;

    /// Nocturo is there: all properties.
    virtual void start(const Json& properties) = 0;

    /// Those that have changed.
    virtual void change(const Json& properties) = 0;

    /// There is no Nocturo, or none any more; whether to wait for one.
    virtual bool end() = 0;

    /// What is to be printed next, empty for nothing. Asked when all before has been read, so that
    /// nothing piles up where nobody reads.
    virtual std::string next() = 0;
};

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

    /// The same for what changes settings, which are on the disk afterwards.
    template <class... Arguments>
    void callAndSave(const char* method, const Arguments&... arguments) {
        call(method, arguments...);
        saveSettings();
    }
    /// Throws NotSaved.
    void saveSettings();

    /// Calls each Nocturo that comes after the one that runs now, from loop(), whatever it answers.
    [[nodiscard]] std::unique_ptr<BusSlot> callThoseToCome(const char* method,
                                                           const std::string& argument);

    EventLoop& loop() { return loop_; }

    /// A picture in PNG of what the effects do on the display of that identifier.
    std::string renderPreview(std::uint32_t display);

    /// `value` is of a type that a setting can have.
    void callSetSetting(const std::string& key, const PropertyValue& value);

    /// All properties, their names with a small first letter: {"active": true, ...}. Those that
    /// this version knows are there, and of their types.
    Json properties();

    /// Tells the follower of everything and prints what it says, until it has enough, Nocturo ends
    /// or nobody reads any more, which is then answered by false. Misses no change.
    bool watch(Follower& follower);

  private:
    struct Watching;

    void callWith(const char* method, const std::vector<BusValue>& arguments);
    bool tellAll(Follower& follower);
    bool wait(PatientOutput& output);
    BusMessage newCall(const char* interface, const char* method);
    BusMessage send(const BusMessage& message);

    EventLoop loop_;
    std::unique_ptr<Bus> bus_;
    std::chrono::milliseconds patience_{5000};
};

} // namespace nocturo
