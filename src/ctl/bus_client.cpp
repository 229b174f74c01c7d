#include "ctl/bus_client.h"

#include "base/texts/translated.h"
#include "bus/bus_names.h"
#include "bus/bus_values.h"
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
    bool is(const char* name) const { return sd_bus_error_has_name(&error_, name) != 0; }
    std::string sentence() const { return error_.message != nullptr ? error_.message : "unknown"; }

  private:
    sd_bus_error error_ = SD_BUS_ERROR_NULL;
};

struct Watching {
    const std::function<void(const Json&)>& changed;
    bool nocturoLeft = false;
};

int propertiesDidChange(sd_bus_message* message, void* context, sd_bus_error* /*error*/) {
    const char* interface = nullptr;
    if (sd_bus_message_read(message, "s", &interface) < 0 ||
        std::string_view(interface) != kNocturoInterface) {
        return 0;
    }
    static_cast<Watching*>(context)->changed(withSmallFirstLetters(readJson(message)));
    return 0;
}

int nameOwnerDidChange(sd_bus_message* message, void* context, sd_bus_error* /*error*/) {
    const char* name = nullptr;
    const char* before = nullptr;
    const char* after = nullptr;
    if (sd_bus_message_read(message, "sss", &name, &before, &after) >= 0 && *after == '\0') {
        static_cast<Watching*>(context)->nocturoLeft = true;
    }
    return 0;
}

} // namespace

BusClient::BusClient() {
    sd_bus* bus = nullptr;
    if (sd_bus_open_user(&bus) < 0) {
        throw Failure{kNotRunning,
                      translated("There is no session bus over which Nocturo could be reached; "
                                 "start it inside a desktop session with: nocturo &")};
    }
    bus_.reset(bus);
}

void BusClient::setPatience(std::chrono::microseconds patience) {
    sd_bus_set_method_call_timeout(bus_.get(), static_cast<std::uint64_t>(patience.count()));
}

void BusClient::call(const char* method) {
    send(newCall(kNocturoInterface, method));
}

void BusClient::call(const char* method, bool argument) {
    const Message message = newCall(kNocturoInterface, method);
    check(sd_bus_message_append(message.get(), "b", static_cast<int>(argument)));
    send(message);
}

void BusClient::call(const char* method, std::uint32_t argument) {
    const Message message = newCall(kNocturoInterface, method);
    check(sd_bus_message_append(message.get(), "u", argument));
    send(message);
}

void BusClient::call(const char* method, const std::string& argument) {
    const Message message = newCall(kNocturoInterface, method);
    check(sd_bus_message_append(message.get(), "s", argument.c_str()));
    send(message);
}

void BusClient::call(const char* method, std::span<const std::string> argument) {
    const Message message = newCall(kNocturoInterface, method);
    check(sd_bus_message_open_container(message.get(), 'a', "s"));
    for (const std::string& text : argument) {
        check(sd_bus_message_append(message.get(), "s", text.c_str()));
    }
    check(sd_bus_message_close_container(message.get()));
    send(message);
}

void BusClient::callSetSetting(const std::string& key, const PropertyValue& value) {
    const Message message = newCall(kNocturoInterface, "SetSetting");
    check(sd_bus_message_append(message.get(), "s", key.c_str()));
    appendVariant(message.get(), busValue(value));
    send(message);
}

std::string BusClient::renderPreview(std::uint32_t display) {
    const Message message = newCall(kNocturoInterface, "RenderPreview");
    check(sd_bus_message_append(message.get(), "u", display));
    const Message reply = send(message);
    const void* bytes = nullptr;
    std::size_t size = 0;
    check(sd_bus_message_read_array(reply.get(), 'y', &bytes, &size));
    return {static_cast<const char*>(bytes), size};
}

Json BusClient::properties() {
    const Message message = newCall(kPropertiesInterface, "GetAll");
    check(sd_bus_message_append(message.get(), "s", kNocturoInterface));
    return withSmallFirstLetters(readJson(send(message).get()));
}

void BusClient::watch(const std::function<void(const Json& properties)>& started,
                      const std::function<void(const Json& properties)>& changed) {
    Watching watching{changed};
    sd_bus_slot* slot = nullptr;
    check(sd_bus_match_signal(bus_.get(), &slot, kBusName, kObjectPath, kPropertiesInterface,
                              "PropertiesChanged", propertiesDidChange, &watching));
    const Slot propertiesSlot(slot);
    const std::string ownerRule =
        std::string("type='signal',sender='org.freedesktop.DBus',"
                    "interface='org.freedesktop.DBus',member='NameOwnerChanged',arg0='") +
        kBusName + "'";
    check(sd_bus_add_match(bus_.get(), &slot, ownerRule.c_str(), nameOwnerDidChange, &watching));
    const Slot ownerSlot(slot);
    started(properties());
    while (!watching.nocturoLeft) {
        const int processed = sd_bus_process(bus_.get(), nullptr);
        check(processed);
        if (processed == 0) {
            check(sd_bus_wait(bus_.get(), UINT64_MAX));
        }
    }
}

BusClient::Message BusClient::newCall(const char* interface, const char* method) {
    sd_bus_message* message = nullptr;
    check(sd_bus_message_new_method_call(bus_.get(), &message, kBusName, kObjectPath, interface,
                                         method));
    Message call(message);
    check(sd_bus_message_set_auto_start(message, 0));
    return call;
}

BusClient::Message BusClient::send(const Message& message) {
    constexpr std::uint64_t kDefaultTimeout = 0;
    BusError error;
    sd_bus_message* reply = nullptr;
    if (sd_bus_call(bus_.get(), message.get(), kDefaultTimeout, error.get(), &reply) >= 0) {
        return Message(reply);
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
    throw Failure{kFailed, translated("Nocturo did not do it: %@", {error.sentence()})};
}

} // namespace nocturo
