#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>

#include <systemd/sd-bus.h>

namespace nocturo {

class AwaitedBus;
class CallersAhead;
class EventLoop;
class LastingSlots;
class Timer;

/// Releases the handles of sd-bus; a bus is closed at once, without sending what still waits.
struct BusRelease {
    void operator()(sd_bus* bus) const { sd_bus_close_unref(bus); }
    void operator()(sd_bus_message* message) const { sd_bus_message_unref(message); }
    void operator()(sd_bus_slot* slot) const { sd_bus_slot_unref(slot); }
};
using BusHandle = std::unique_ptr<sd_bus, BusRelease>;
using BusMessage = std::unique_ptr<sd_bus_message, BusRelease>;

/// The D-Bus address of the session bus that the environment names, or of the one at its usual
/// place in the runtime directory; empty when there is none. Nothing here ever starts a bus.
std::string sessionBusAddress();
std::string systemBusAddress();

/// A call, a match or an object on a bus. It ends when this is destroyed: then its handler is not
/// called any more. Its own handler may destroy it.
class BusSlot {
  public:
    virtual ~BusSlot() = default;
};

/// A connection to a message bus in the event loop. Only claimName(), callAndWait(), serveUntil()
/// and, for 50 ms at most, the end wait; a bus that is silent or goes away is the same as one where
/// nobody answers.
///
/// Who calls what is on it a hundred times without waiting for answers is refused from then on
/// (LimitsExceeded), until all that came has been read or 10 seconds are over; who wants none has
/// twenty calls in a second. Main thread only.
class Bus {
  public:
    /// Null when nothing listens at the address. The loop must outlive the bus.
    static std::unique_ptr<Bus> connect(const std::string& address, EventLoop& loop);
    ~Bus();
    Bus(const Bus&) = delete;
    Bus& operator=(const Bus&) = delete;

    /// From now on a bus that ends and is there again later, at the same address, is joined again,
    /// with all names, objects and matches. Followed services are told to have no owner meanwhile.
    void rejoin() { rejoins_ = true; }

    /// For building messages and sending signals by sd-bus itself; another one after each
    /// rejoining.
    sd_bus* handle() const { return bus_.get(); }

    /// Takes the name for this connection. Waits for the bus for so long at most, and then counts
    /// it as silent; the name is taken all the same when it answers and nobody has it.
    enum class Claim { granted, taken, busIsSilent };
    Claim claimName(const char* name, int patienceMs) const;

    BusMessage newCall(const char* service, const char* path, const char* interface,
                       const char* method) const;

    /// Sends a call without waiting and without starting the service that it goes to. `answered` is
    /// given the reply or the error (sd_bus_message_is_method_error) from the loop.
    [[nodiscard]] std::unique_ptr<BusSlot>
    call(const BusMessage& call, std::function<void(sd_bus_message* answer)> answered) const;

    /// Sends a call and waits for its reply, for so long at most; null where there was none.
    /// `error` may be null.
    BusMessage callAndWait(const BusMessage& call, int patienceMs, sd_bus_error* error) const;

    /// Answers calls to the object at `path` by sd-bus's table of an interface; `object` is what
    /// its handlers are given. Table and object must outlive the slot.
    [[nodiscard]] std::unique_ptr<BusSlot> addObject(const std::string& path, const char* interface,
                                                     const sd_bus_vtable* table,
                                                     void* object) const;

    /// Calls `handler` with every signal of that kind. Sender and path may be null for all.
    [[nodiscard]] std::unique_ptr<BusSlot>
    onSignal(const char* sender, const char* path, const char* interface, const char* member,
             std::function<void(sd_bus_message* signal)> handler) const;

    /// The same for every message that a match rule of D-Bus selects.
    [[nodiscard]] std::unique_ptr<BusSlot>
    onMatch(const std::string& rule, std::function<void(sd_bus_message* message)> handler) const;

    /// Calls `changed` with the unique name of who owns the service, empty for nobody: first with
    /// who does now, then at every change. Never starts the service.
    [[nodiscard]] std::unique_ptr<BusSlot>
    followOwner(const std::string& service,
                std::function<void(const std::string& owner)> changed) const;

    /// Waits until `isDone`, and meanwhile calls the handlers of this bus: for what cannot return
    /// to the event loop. False when it took too long.
    bool serveUntil(const std::function<bool()>& isDone, std::chrono::milliseconds patience) const;

  private:
    Bus(std::string address, EventLoop& loop);

    using Deadline = std::chrono::steady_clock::time_point;
    bool saysHelloBefore(Deadline deadline) const;
    bool open();
    void openAgain();
    void lookSoon();
    void look();
    static int filter(sd_bus_message* message, void* self, sd_bus_error* error);

    const std::string address_;
    EventLoop& loop_;
    std::unique_ptr<CallersAhead> callers_;
    std::shared_ptr<LastingSlots> lasting_; // what a bus that comes back is given again
    bool rejoins_ = false;
    std::unique_ptr<AwaitedBus> awaited_; // while the bus is gone
    std::unique_ptr<Timer> look_;
    BusHandle bus_;
};

} // namespace nocturo
