#include "ctl/bus_client.h"

#include "base/texts/translated.h"
#include "bus/bus_names.h"
#include "ctl/answer_check.h"
#include "ctl/bus_json.h"
#include "ctl/failure.h"
#include "ctl/output.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstring>
#include <optional>
#include <poll.h>
#include <string_view>
#include <unistd.h>

namespace nocturo {

namespace {

constexpr const char* kPropertiesInterface = "org.freedesktop.DBus.Properties";

[[noreturn]] void failBecauseNotRunning() {
    throw Failure{kNotRunning, translated("Nocturo is not running; start it with: nocturo &")};
}

void check(int result) {
    if (result < 0) {
        throw Failure{kFailed, translated("The session bus failed: %@.", {std::strerror(-result)})};
    }
}

class BusError {
  public:
    BusError() = default;
    ~BusError() { sd_bus_error_free(&error_); }
    BusError(const BusError&) = delete;
    BusError& operator=(const BusError&) = delete;

    sd_bus_error* get() { return &error_; }
    bool isSet() const { return sd_bus_error_is_set(&error_) != 0; }
    bool is(const char* name) const { return sd_bus_error_has_name(&error_, name) != 0; }
    std::string sentence() const { return error_.message != nullptr ? error_.message : "unknown"; }

  private:
    sd_bus_error error_{};
};

} // namespace

BusClient::BusClient() : bus_(Bus::connect(sessionBusAddress(), loop_)) {
    if (bus_ == nullptr) {
        throw Failure{kNotRunning,
                      translated("There is no session bus over which Nocturo could be reached; "
                                 "start it inside a desktop session with: nocturo &")};
    }
}

void BusClient::callWith(const char* method, const std::vector<BusValue>& arguments) {
    const BusMessage message = newCall(kNocturoInterface, method);
    for (const BusValue& argument : arguments) {
        appendValue(message.get(), argument);
    }
    send(message);
}

std::unique_ptr<BusSlot> BusClient::callThoseToCome(const char* method,
                                                    const std::string& argument) {
    return bus_->followOwner(
        kBusName, [this, method, argument, isFirst = true](const std::string& owner) mutable {
            if (!std::exchange(isFirst, false) && !owner.empty()) {
                const BusMessage message = newCall(kNocturoInterface, method);
                appendValue(message.get(), argument);
                sd_bus_send(bus_->handle(), message.get(), nullptr);
            }
        });
}

void BusClient::saveSettings() {
    try {
        call("SaveSettings");
    } catch (const Failure& failure) {
        throw NotSaved{failure};
    }
}

void BusClient::callSetSetting(const std::string& key, const PropertyValue& value) {
    const BusMessage message = newCall(kNocturoInterface, "SetSetting");
    check(sd_bus_message_append(message.get(), "s", key.c_str()));
    appendVariant(message.get(), busValue(value));
    send(message);
}

std::string BusClient::renderPreview(std::uint32_t display) {
    const BusMessage message = newCall(kNocturoInterface, "RenderPreview");
    check(sd_bus_message_append(message.get(), "u", display));
    const BusMessage reply = send(message);
    const void* bytes = nullptr;
    std::size_t size = 0;
    if (sd_bus_message_read_array(reply.get(), 'y', &bytes, &size) < 0) {
        failBecauseNotUnderstood();
    }
    return {static_cast<const char*>(bytes), size};
}

Json BusClient::properties() {
    const BusMessage message = newCall(kPropertiesInterface, "GetAll");
    check(sd_bus_message_append(message.get(), "s", kNocturoInterface));
    Json properties = withSmallFirstLetters(readJson(send(message).get()));
    checkAnswer(properties, Answer::whole);
    return properties;
}

struct BusClient::Watching {
    Follower& follower;
    std::optional<std::string> owner;
    bool isToldAll = false;
    bool isOver = false;
    std::optional<Failure> failure; // nothing may be thrown through the bus's library

    void propertiesChanged(sd_bus_message* signal) {
        const char* interface = nullptr;
        if (isOver || !isToldAll || sd_bus_message_read(signal, "s", &interface) < 0 ||
            std::string_view(interface) != kNocturoInterface) {
            return;
        }
        try {
            const Json properties = withSmallFirstLetters(readJson(signal));
            checkAnswer(properties, Answer::inPart);
            follower.change(properties);
        } catch (const Failure& thrown) {
            failure = thrown;
            isOver = true;
        }
    }

    void ownerIs(const std::string& name) {
        if (owner && name != *owner) {
            isToldAll = false; // another Nocturo, or none
            isOver = isOver || (name.empty() && !follower.end());
        }
        owner = name;
    }

    bool isToBeToldAll() const { return !isToldAll && owner && !owner->empty(); }
};

bool BusClient::watch(Follower& follower) {
    Watching watching{follower, {}, false, false, {}};
    const auto changes =
        bus_->onSignal(kBusName, kObjectPath, kPropertiesInterface, "PropertiesChanged",
                       [&](sd_bus_message* signal) { watching.propertiesChanged(signal); });
    const auto owners =
        bus_->followOwner(kBusName, [&](const std::string& name) { watching.ownerIs(name); });
    watching.isToldAll = tellAll(follower);
    PatientOutput output;
    while (!watching.isOver) {
        if (watching.isToBeToldAll()) {
            watching.isToldAll = tellAll(follower);
        }
        if (output.isDone()) {
            output.write(follower.next());
        }
        const int processed = sd_bus_process(bus_->handle(), nullptr);
        check(processed);
        if (processed == 0 && !wait(output)) {
            return false;
        }
    }
    if (watching.failure) {
        throw Failure(*watching.failure);
    }
    do {
        output.write(output.isDone() ? follower.next() : "");
    } while (!output.isDone() && wait(output));
    return true;
}

bool BusClient::tellAll(Follower& follower) {
    try {
        follower.start(properties());
        return true;
    } catch (const Failure& failure) {
        if (failure.exitStatus != kNotRunning || !follower.end()) {
            throw;
        }
        return false;
    }
}

// Returns false where nobody reads the output any more.
bool BusClient::wait(PatientOutput& output) {
    std::uint64_t until = UINT64_MAX; // of the monotonic clock
    check(sd_bus_get_timeout(bus_->handle(), &until));
    const auto now = std::chrono::duration_cast<std::chrono::microseconds>(
        std::chrono::steady_clock::now().time_since_epoch());
    const auto left = static_cast<std::int64_t>(until) - now.count();
    const auto events = static_cast<short>(sd_bus_get_events(bus_->handle()));
    const short wanted = output.isDone() ? 0 : POLLOUT;
    std::array<pollfd, 2> polled{
        {{sd_bus_get_fd(bus_->handle()), events, 0}, {STDOUT_FILENO, wanted, 0}}};
    poll(polled.data(), polled.size(),
         until == UINT64_MAX
             ? -1
             : static_cast<int>(std::clamp<std::int64_t>(left / 1000 + 1, 0, 60000)));
    const short answer = polled[1].revents;
    if ((answer & (POLLOUT | POLLNVAL)) != 0) {
        output.goOn();
    }
    return (answer & (POLLERR | POLLHUP)) == 0;
}

BusMessage BusClient::newCall(const char* interface, const char* method) {
    return bus_->newCall(kBusName, kObjectPath, interface, method);
}

BusMessage BusClient::send(const BusMessage& message) {
    BusError error;
    BusMessage reply = bus_->callAndWait(message, static_cast<int>(patience_.count()), error.get());
    if (reply != nullptr) {
        return reply;
    }
    if (error.is(SD_BUS_ERROR_SERVICE_UNKNOWN) || error.is(SD_BUS_ERROR_NAME_HAS_NO_OWNER)) {
        failBecauseNotRunning();
    }
    if (error.is(kInvalidArgumentError)) {
        throw Failure{kUsage, error.sentence()};
    }
    if (error.is(kFailedError)) {
        throw Failure{kFailed, error.sentence()};
    }
    if (!error.isSet() || error.is(SD_BUS_ERROR_NO_REPLY) || error.is(SD_BUS_ERROR_TIMEOUT)) {
        throw Failure{kFailed, translated("The Nocturo that runs does not answer.")};
    }
    throw Failure{kFailed, translated("Nocturo did not do it: %@", {error.sentence()})};
}

} // namespace nocturo
