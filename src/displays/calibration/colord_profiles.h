#pragma once

#include "base/bus.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace nocturo {

/// The colour profiles that colord has assigned to displays. Everything is asked without waiting: a
/// bus that is absent, slow or silent costs nothing, and colord is never started for it.
class ColordProfiles {
  public:
    /// The system bus, which must outlive this, or null: then no display has a profile.
    explicit ColordProfiles(Bus* bus);

    struct Answer {
        std::string file;    // path of the profile; empty when none is assigned
        bool settled = true; // false until colord has answered for the first time
    };

    /// The profile of the display on a connector such as "DP-1". Asking for the first time asks
    /// colord. While it is away, what it said last holds.
    Answer profileOf(const std::string& connector);

    /// Another number than before whenever an answer may have changed since.
    std::uint64_t generation() const { return generation_; }

    /// Has `look` called from the event loop when that number is another.
    void whenChanged(std::function<void()> look) { look_ = std::move(look); }

    /// Waits, no longer than that, until every answer given so far is settled or would be if it
    /// were asked for again. False when it is not.
    bool waitUntilSettled(std::chrono::milliseconds patience) const;

  private:
    struct Lookup {
        std::string connector;
        Answer answer{{}, false};
        std::unique_ptr<BusSlot> question; // null when none is open
        bool again = false;                // something changed meanwhile
    };

    bool isSettled() const;
    void askAgain();
    void ownerChanged(const std::string& owner);
    void askForDevice(Lookup& lookup);
    void askForProfiles(Lookup& lookup, const char* device);
    void askForFile(Lookup& lookup, const char* profile);
    void finish(Lookup& lookup, std::string file);
    void fail(Lookup& lookup, sd_bus_message* reply);

    Bus* bus_;
    std::map<std::string, Lookup> lookups_; // by connector
    std::uint64_t generation_ = 1;
    std::function<void()> look_;
    bool ownerIsKnown_ = false;
    std::vector<std::unique_ptr<BusSlot>> slots_;
};

} // namespace nocturo
