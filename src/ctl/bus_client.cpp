#include "ctl/bus_client.h"

#include "base/texts/translated.h"
#include "bus/bus_names.h"
#include "ctl/answer_check.h"
#include "ctl/bus_json.h"
#include "ctl/failure.h"

#include <cstring>
#include <string_view>
#include <utility>
#include <vector>

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

// Waits without end for what the handlers of the bus are given.
void serve(sd_bus* bus, const bool& isOver) {
    while (!isOver) {
        const int processed = sd_bus_process(bus, nullptr);
        check(processed);
        if (processed == 0) {
            check(sd_bus_wait(bus, UINT64_MAX));
        }
    }
}

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

void BusClient::watch(const std::function<void(const Json& properties)>& started,
                      const std::function<void(const Json& properties)>& changed) {
    bool isOver = false;
    std::optional<Failure> failure; // nothing may be thrown through the bus's library
    const auto changes =
        bus_->onSignal(kBusName, kObjectPath, kPropertiesInterface, "PropertiesChanged",
                       [&](sd_bus_message* signal) {
                           const char* interface = nullptr;
                           if (isOver || sd_bus_message_read(signal, "s", &interface) < 0 ||
                               std::string_view(interface) != kNocturoInterface) {
                               return;
                           }
                           try {
                               const Json properties = withSmallFirstLetters(readJson(signal));
                               checkAnswer(properties, Answer::inPart);
                               changed(properties);
                           } catch (const Failure& thrown) {
                               failure = thrown;
                               isOver = true;
                           }
                       });
    std::string owner;
    const auto owners = bus_->followOwner(kBusName, [&](const std::string& name) {
        isOver = isOver || (!owner.empty() && name.empty());
        owner = name;
    });
    started(properties());
    serve(bus_->handle(), isOver);
    if (failure) {
        throw Failure(*failure);
    }
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
