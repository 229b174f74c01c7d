#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>

#include <systemd/sd-bus.h>
#include <systemd/sd-event.h>

namespace nocturo {

/// The colour profiles that colord has assigned to displays. Everything is asked without waiting: a
/// bus that is absent, slow or silent costs nothing, and colord is never started for it.
class ColordProfiles {
  public:
    /// Connects to the system bus at a D-Bus address. When that is not possible no display has a
    /// profile.
    explicit ColordProfiles(const std::string& busAddress);
    ~ColordProfiles();
    ColordProfiles(const ColordProfiles&) = delete;
    ColordProfiles& operator=(const ColordProfiles&) = delete;

    struct Answer {
        std::string file;    // path of the profile; empty when none is assigned
        bool settled = true; // false until colord has answered for the first time
    };

    /// The profile of the display on a connector such as "DP-1". Asking for the first time asks
    /// colord. While it is away, what it said last holds.
    Answer profileOf(const std::string& connector);

    /// Whether every answer given so far was settled, or would be if it were asked for again.
    bool isSettled() const;

    /// Another number than before whenever an answer may have changed since. Takes in what the bus
    /// has sent.
    std::uint64_t generation();

    /// Readable when generation() should be asked; -1 without a bus.
    int descriptor() const;

  private:
    struct Release {
        void operator()(sd_event* event) const { sd_event_unref(event); }
        void operator()(sd_bus* bus) const { sd_bus_close_unref(bus); }
    };

    struct Lookup {
        ColordProfiles* owner = nullptr;
        std::string connector;
        Answer answer{{}, false};
        bool running = false;
        bool again = false; // something changed while it was running
    };

    using Callback = int (*)(sd_bus_message*, void*, sd_bus_error*);

    void processEvents();
    void askAgain();
    void askForDevice(Lookup& lookup);
    bool askForProperty(Lookup& lookup, const char* path, const char* kind, const char* property,
                        Callback callback);
    void finish(Lookup& lookup, std::string file);
    void fail(Lookup& lookup, sd_bus_message* reply);

    static int onChange(sd_bus_message* message, void* self, sd_bus_error* error);
    static int onOwnerChange(sd_bus_message* message, void* self, sd_bus_error* error);
    static int onDevice(sd_bus_message* reply, void* data, sd_bus_error* error);
    static int onProfiles(sd_bus_message* reply, void* data, sd_bus_error* error);
    static int onFilename(sd_bus_message* reply, void* data, sd_bus_error* error);

    // Brings the bus's timeouts and pending output into the one descriptor.
    std::unique_ptr<sd_event, Release> event_;
    std::unique_ptr<sd_bus, Release> bus_;  // null without one
    std::map<std::string, Lookup> lookups_; // by connector
    std::uint64_t generation_ = 1;
};

} // namespace nocturo
