#include "base/bus.h"

#include "base/environment.h"
#include "base/event_loop.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <map>
#include <poll.h>
#include <sys/ioctl.h>
#include <system_error>
#include <utility>

namespace nocturo {

namespace {

constexpr const char* kBusService = "org.freedesktop.DBus";
constexpr const char* kBusPath = "/org/freedesktop/DBus";
constexpr std::chrono::milliseconds kPatienceAtTheEnd{50};
constexpr const char* kDefaultSystemBus = "unix:path=/run/dbus/system_bus_socket";

// At least 1, because sd-bus takes 0 for its own choice.
std::uint64_t microsecondsUntil(std::chrono::steady_clock::time_point deadline) {
    const auto left = std::chrono::duration_cast<std::chrono::microseconds>(
        deadline - std::chrono::steady_clock::now());
    return static_cast<std::uint64_t>(std::max<std::int64_t>(left.count(), 1));
}

// Shared, because it may be destroyed while it runs.
using Handler = std::shared_ptr<std::function<void(sd_bus_message*)>>;

class HandledSlot : public BusSlot {
  public:
    explicit HandledSlot(std::function<void(sd_bus_message*)> function)
        : handler(std::make_shared<std::function<void(sd_bus_message*)>>(std::move(function))) {}

    static int handle(sd_bus_message* message, void* self, sd_bus_error* /*error*/) {
        const Handler running = static_cast<HandledSlot*>(self)->handler;
        (*running)(message);
        return 0;
    }

    Handler handler;
    std::unique_ptr<sd_bus_slot, BusRelease> slot;
};

/// Everybody who waits for an answer before calling again has one call here, so what one caller
/// sends in a row says how far it runs ahead of the answers.
class CallersAhead {
  public:
    /// True while the caller of this message may go on; otherwise it has been refused.
    bool admits(sd_bus_message* call) {
        sd_bus* bus = sd_bus_message_get_bus(call);
        const char* sender = sd_bus_message_get_sender(call);
        const auto now = std::chrono::steady_clock::now();
        int waiting = 0;
        if (now > forgotten_ + kMemory ||
            (ioctl(sd_bus_get_fd(bus), FIONREAD, &waiting) == 0 && waiting == 0)) {
            forgotten_ = now;
            calls_.clear();
        }
        if (sender == nullptr || ++calls_[sender] <= kMostCalls) {
            return true;
        }
        sd_bus_reply_method_errorf(call, SD_BUS_ERROR_LIMITS_EXCEEDED, "Wait for the answers.");
        return false;
    }

    static int filter(sd_bus_message* message, void* self, sd_bus_error* /*error*/) {
        return sd_bus_message_is_method_call(message, nullptr, nullptr) > 0 &&
                       !static_cast<CallersAhead*>(self)->admits(message)
                   ? 1
                   : 0;
    }

  private:
    static constexpr int kMostCalls = 100;
    static constexpr std::chrono::seconds kMemory{10};

    std::map<std::string, int> calls_; // since nothing waited to be read, by sender
    std::chrono::steady_clock::time_point forgotten_;
};

int takeLater(sd_bus_message* /*answer*/, void* /*data*/, sd_bus_error* /*error*/) {
    return 0; // whoever has the name by then keeps it
}

struct FollowedOwner : BusSlot {
    std::unique_ptr<BusSlot> changes;
    std::unique_ptr<BusSlot> question;
};

} // namespace

std::string sessionBusAddress() {
    std::string address = environment("DBUS_SESSION_BUS_ADDRESS");
    if (address.empty()) {
        const std::string directory = environment("XDG_RUNTIME_DIR");
        std::error_code error;
        if (!directory.empty() && std::filesystem::exists(directory + "/bus", error)) {
            address = "unix:path=" + directory + "/bus";
        }
    }
    return address;
}

std::string systemBusAddress() {
    const std::string address = environment("DBUS_SYSTEM_BUS_ADDRESS");
    return address.empty() ? kDefaultSystemBus : address;
}

std::unique_ptr<Bus> Bus::connect(const std::string& address, EventLoop& loop) {
    sd_bus* created = nullptr;
    if (address.empty() || sd_bus_new(&created) < 0) {
        return nullptr;
    }
    BusHandle bus(created);
    if (sd_bus_set_address(created, address.c_str()) < 0 || sd_bus_set_bus_client(created, 1) < 0 ||
        sd_bus_start(created) < 0 ||
        sd_bus_attach_event(created, loop.handle(), EventLoop::kBus) < 0) {
        return nullptr;
    }
    auto callers = std::make_shared<CallersAhead>();
    sd_bus_add_filter(created, nullptr, CallersAhead::filter, callers.get());
    return std::unique_ptr<Bus>(new Bus(std::move(bus), std::move(callers)));
}

Bus::~Bus() {
    // Flushing would wait for a bus that hangs, or whose other clients do not read.
    const auto deadline = std::chrono::steady_clock::now() + kPatienceAtTheEnd;
    std::uint64_t waiting = 0;
    pollfd writable{sd_bus_get_fd(bus_.get()), POLLOUT, 0};
    while (sd_bus_is_ready(bus_.get()) > 0 &&
           sd_bus_get_n_queued_write(bus_.get(), &waiting) >= 0 && waiting > 0 &&
           poll(&writable, 1, static_cast<int>(microsecondsUntil(deadline) / 1000)) > 0 &&
           sd_bus_process(bus_.get(), nullptr) >= 0) {
    }
}

Bus::Claim Bus::claimName(const char* name, int patienceMs) const {
    constexpr std::uint32_t kDoNotQueue = 4;
    constexpr std::uint32_t kOwned = 1;
    constexpr std::uint32_t kOwnedAlready = 4;
    const BusMessage request = newCall(kBusService, kBusPath, kBusService, "RequestName");
    sd_bus_message_append(request.get(), "su", name, kDoNotQueue);
    const BusMessage answer = callAndWait(request, patienceMs, nullptr);
    std::uint32_t result = 0;
    if (answer == nullptr || sd_bus_message_read(answer.get(), "u", &result) <= 0) {
        sd_bus_request_name_async(bus_.get(), nullptr, name, 0, takeLater, nullptr);
        return Claim::busIsSilent;
    }
    return result == kOwned || result == kOwnedAlready ? Claim::granted : Claim::taken;
}

BusMessage Bus::newCall(const char* service, const char* path, const char* interface,
                        const char* method) const {
    sd_bus_message* message = nullptr;
    sd_bus_message_new_method_call(bus_.get(), &message, service, path, interface, method);
    if (message != nullptr) {
        sd_bus_message_set_auto_start(message, 0);
    }
    return BusMessage(message);
}

std::unique_ptr<BusSlot> Bus::call(const BusMessage& call,
                                   std::function<void(sd_bus_message* answer)> answered) const {
    auto pending = std::make_unique<HandledSlot>(std::move(answered));
    sd_bus_slot* slot = nullptr;
    sd_bus_call_async(bus_.get(), &slot, call.get(), HandledSlot::handle, pending.get(), 0);
    pending->slot.reset(slot);
    return pending;
}

BusMessage Bus::callAndWait(const BusMessage& call, int patienceMs, sd_bus_error* error) const {
    const Deadline deadline =
        std::chrono::steady_clock::now() + std::chrono::milliseconds(patienceMs);
    sd_bus_message* answer = nullptr;
    if (saysHelloBefore(deadline)) {
        sd_bus_call(bus_.get(), call.get(), microsecondsUntil(deadline), error, &answer);
    }
    return BusMessage(answer);
}

// sd_bus_call() would wait half a minute for a bus that never says hello.
bool Bus::saysHelloBefore(Deadline deadline) const {
    sd_bus* bus = bus_.get();
    while (sd_bus_is_ready(bus) == 0) {
        const int processed = sd_bus_process(bus, nullptr);
        if (processed < 0 ||
            (processed == 0 && sd_bus_wait(bus, microsecondsUntil(deadline)) <= 0)) {
            return false;
        }
    }
    return sd_bus_is_ready(bus) > 0;
}

std::unique_ptr<BusSlot> Bus::onSignal(const char* sender, const char* path, const char* interface,
                                       const char* member,
                                       std::function<void(sd_bus_message* signal)> handler) const {
    auto match = std::make_unique<HandledSlot>(std::move(handler));
    sd_bus_slot* slot = nullptr;
    sd_bus_match_signal_async(bus_.get(), &slot, sender, path, interface, member,
                              HandledSlot::handle, nullptr, match.get());
    match->slot.reset(slot);
    return match;
}

std::unique_ptr<BusSlot> Bus::onMatch(const std::string& rule,
                                      std::function<void(sd_bus_message* message)> handler) const {
    auto match = std::make_unique<HandledSlot>(std::move(handler));
    sd_bus_slot* slot = nullptr;
    sd_bus_add_match_async(bus_.get(), &slot, rule.c_str(), HandledSlot::handle, nullptr,
                           match.get());
    match->slot.reset(slot);
    return match;
}

std::unique_ptr<BusSlot>
Bus::followOwner(const std::string& service,
                 std::function<void(const std::string& owner)> changed) const {
    auto followed = std::make_unique<FollowedOwner>();
    const std::string rule = "type='signal',sender='" + std::string(kBusService) +
                             "',member='NameOwnerChanged',arg0='" + service + "'";
    followed->changes = onMatch(rule, [changed](sd_bus_message* signal) {
        const char* owner = "";
        if (sd_bus_message_read(signal, "sss", nullptr, nullptr, &owner) > 0) {
            changed(owner);
        }
    });
    const BusMessage question = newCall(kBusService, kBusPath, kBusService, "GetNameOwner");
    sd_bus_message_append(question.get(), "s", service.c_str());
    followed->question = call(question, [changed = std::move(changed)](sd_bus_message* answer) {
        const char* owner = "";
        if (sd_bus_message_is_method_error(answer, nullptr) == 0) {
            sd_bus_message_read(answer, "s", &owner);
        }
        changed(owner);
    });
    return followed;
}

bool Bus::serveUntil(const std::function<bool()>& isDone,
                     std::chrono::milliseconds patience) const {
    using Clock = std::chrono::steady_clock;
    const auto deadline = Clock::now() + patience;
    while (!isDone()) {
        const int processed = sd_bus_process(bus_.get(), nullptr);
        if (processed > 0) {
            continue;
        }
        const auto left =
            std::chrono::ceil<std::chrono::microseconds>(deadline - Clock::now()).count();
        if (processed < 0 || left <= 0 ||
            sd_bus_wait(bus_.get(), static_cast<std::uint64_t>(left)) < 0) {
            return false;
        }
    }
    return true;
}

} // namespace nocturo
