#include "base/bus.h"

#include "base/awaited_bus.h"
#include "base/callers_ahead.h"
#include "base/environment.h"
#include "base/event_loop.h"
#include "base/lasting_slots.h"
#include "base/log.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <poll.h>
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

Handler shared(std::function<void(sd_bus_message*)> function) {
    return std::make_shared<std::function<void(sd_bus_message*)>>(std::move(function));
}

struct PendingCall : BusSlot {
    explicit PendingCall(std::function<void(sd_bus_message*)> function)
        : handler(shared(std::move(function))) {}

    static int handle(sd_bus_message* answer, void* self, sd_bus_error* /*error*/) {
        const Handler running = static_cast<PendingCall*>(self)->handler;
        (*running)(answer);
        return 0;
    }

    Handler handler;
    std::unique_ptr<sd_bus_slot, BusRelease> slot;
};

struct Match : LastingSlot {
    Match(const std::shared_ptr<LastingSlots>& all, std::string matchRule,
          std::function<void(sd_bus_message*)> function)
        : LastingSlot(all), rule(std::move(matchRule)), handler(shared(std::move(function))) {}

    static int handle(sd_bus_message* message, void* self, sd_bus_error* /*error*/) {
        const Handler running = static_cast<Match*>(self)->handler;
        (*running)(message);
        return 0;
    }

    void join(sd_bus* bus) override {
        sd_bus_slot* joined = nullptr;
        sd_bus_add_match_async(bus, &joined, rule.c_str(), handle, nullptr, this);
        slot.reset(joined);
    }

    std::string rule;
    Handler handler;
    std::unique_ptr<sd_bus_slot, BusRelease> slot;
};

struct Object : LastingSlot {
    using LastingSlot::LastingSlot;

    void join(sd_bus* bus) override {
        sd_bus_slot* joined = nullptr;
        sd_bus_add_object_vtable(bus, &joined, path.c_str(), interface.c_str(), table, self);
        slot.reset(joined);
    }

    std::string path;
    std::string interface;
    const sd_bus_vtable* table = nullptr;
    void* self = nullptr;
    std::unique_ptr<sd_bus_slot, BusRelease> slot;
};

using OwnerChanged = std::function<void(const std::string& owner)>;

struct FollowedOwner : LastingSlot {
    using LastingSlot::LastingSlot;

    void join(sd_bus* /*bus*/) override { ask(); }
    void leave() override {
        const OwnerChanged running = changed;
        running("");
    }

    OwnerChanged changed;
    std::function<void()> ask;
    std::unique_ptr<BusSlot> changes;
    std::unique_ptr<BusSlot> question;
};

/// What the bus would answer to a call that cannot be sent.
BusMessage answerOfNobody(sd_bus_message* call) {
    sd_bus_message* answer = nullptr;
    sd_bus_message_seal(call, 1, 0);
    sd_bus_message_new_method_errorf(call, &answer, SD_BUS_ERROR_DISCONNECTED, "There is no bus.");
    return BusMessage(answer);
}

int takeLater(sd_bus_message* /*answer*/, void* /*data*/, sd_bus_error* /*error*/) {
    return 0; // whoever has the name by then keeps it
}

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
    std::unique_ptr<Bus> bus(new Bus(address, loop));
    return bus->open() ? std::move(bus) : nullptr;
}

Bus::Bus(std::string address, EventLoop& loop)
    : address_(std::move(address)), loop_(loop), callers_(std::make_unique<CallersAhead>()),
      lasting_(std::make_shared<LastingSlots>()) {}

bool Bus::open() {
    sd_bus* created = nullptr;
    if (address_.empty() || sd_bus_new(&created) < 0) {
        return false;
    }
    BusHandle bus(created);
    if (sd_bus_set_address(created, address_.c_str()) < 0 ||
        sd_bus_set_bus_client(created, 1) < 0 || sd_bus_set_connected_signal(created, 1) < 0 ||
        sd_bus_start(created) < 0 ||
        sd_bus_attach_event(created, loop_.handle(), EventLoop::kBus) < 0) {
        return false;
    }
    sd_bus_add_filter(created, nullptr, filter, this);
    bus_ = std::move(bus);
    return true;
}

int Bus::filter(sd_bus_message* message, void* self, sd_bus_error* /*error*/) {
    constexpr const char* kLocal = "org.freedesktop.DBus.Local"; // from nobody on the bus
    Bus& bus = *static_cast<Bus*>(self);
    if (sd_bus_message_is_signal(message, kLocal, nullptr) > 0) { // connected or disconnected
        bus.lookSoon();
    }
    return sd_bus_message_is_method_call(message, nullptr, nullptr) > 0 &&
                   !bus.callers_->admits(message)
               ? 1
               : 0;
}

// Not within sd-bus, which is about to call others of that bus.
void Bus::lookSoon() {
    if (rejoins_) {
        look_ = loop_.scheduleTimer(std::chrono::milliseconds(0), [this] { look(); });
    }
}

void Bus::look() {
    if (sd_bus_is_open(bus_.get()) <= 0) {
        if (awaited_ == nullptr) {
            logInfo(kLogBus, "A bus has gone; it is joined again when it is back.");
            awaited_ = std::make_unique<AwaitedBus>(address_, loop_, [this] { openAgain(); });
        }
        lasting_->forEach([](LastingSlot& slot) { slot.leave(); });
    } else if (awaited_ != nullptr && sd_bus_is_ready(bus_.get()) > 0) {
        logInfo(kLogBus, "A bus that had gone is joined again.");
        awaited_.reset();
    }
}

// One that listens and says no more is left alone until it ends, as any bus that hangs.
void Bus::openAgain() {
    if (sd_bus_is_open(bus_.get()) > 0 || !open()) {
        return;
    }
    lasting_->forEach([this](LastingSlot& slot) { slot.join(bus_.get()); });
    for (const std::string& name : lasting_->names) {
        sd_bus_request_name_async(bus_.get(), nullptr, name.c_str(), 0, takeLater, nullptr);
    }
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
        lasting_->names.emplace_back(name);
        return Claim::busIsSilent;
    }
    if (result != kOwned && result != kOwnedAlready) {
        return Claim::taken;
    }
    lasting_->names.emplace_back(name);
    return Claim::granted;
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
    auto pending = std::make_unique<PendingCall>(std::move(answered));
    sd_bus_slot* slot = nullptr;
    if (sd_bus_call_async(bus_.get(), &slot, call.get(), PendingCall::handle, pending.get(), 0) <
        0) {
        const std::weak_ptr handler = pending->handler;
        const std::shared_ptr<sd_bus_message> answer = answerOfNobody(call.get());
        loop_.callSoon([handler, answer] {
            if (const Handler running = handler.lock(); running && answer) {
                (*running)(answer.get());
            }
        });
    }
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

std::unique_ptr<BusSlot> Bus::addObject(const std::string& path, const char* interface,
                                        const sd_bus_vtable* table, void* object) const {
    auto added = std::make_unique<Object>(lasting_);
    added->path = path;
    added->interface = interface;
    added->table = table;
    added->self = object;
    added->join(bus_.get());
    return added;
}

std::unique_ptr<BusSlot> Bus::onSignal(const char* sender, const char* path, const char* interface,
                                       const char* member,
                                       std::function<void(sd_bus_message* signal)> handler) const {
    std::string rule = "type='signal'";
    const auto add = [&rule](const char* key, const char* value) {
        if (value != nullptr) {
            rule += std::string(",") + key + "='" + value + "'";
        }
    };
    add("sender", sender);
    add("path", path);
    add("interface", interface);
    add("member", member);
    return onMatch(rule, std::move(handler));
}

std::unique_ptr<BusSlot> Bus::onMatch(const std::string& rule,
                                      std::function<void(sd_bus_message* message)> handler) const {
    auto match = std::make_unique<Match>(lasting_, rule, std::move(handler));
    match->join(bus_.get());
    return match;
}

std::unique_ptr<BusSlot> Bus::followOwner(const std::string& service, OwnerChanged changed) const {
    const std::string rule = "type='signal',sender='" + std::string(kBusService) +
                             "',member='NameOwnerChanged',arg0='" + service + "'";
    auto changes = onMatch(rule, [changed](sd_bus_message* signal) {
        const char* owner = "";
        if (sd_bus_message_read(signal, "sss", nullptr, nullptr, &owner) > 0) {
            changed(owner);
        }
    });
    auto followed = std::make_unique<FollowedOwner>(lasting_); // after its match, as it is joined
    followed->changes = std::move(changes);
    followed->changed = std::move(changed);
    followed->ask = [this, service, followed = followed.get()] {
        const BusMessage question = newCall(kBusService, kBusPath, kBusService, "GetNameOwner");
        sd_bus_message_append(question.get(), "s", service.c_str());
        followed->question = call(question, [changed = followed->changed](sd_bus_message* answer) {
            const char* owner = "";
            if (sd_bus_message_is_method_error(answer, nullptr) == 0) {
                sd_bus_message_read(answer, "s", &owner);
            }
            changed(owner);
        });
    };
    followed->ask();
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
