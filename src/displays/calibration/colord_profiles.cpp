#include "displays/calibration/colord_profiles.h"

#include <algorithm>
#include <string_view>
#include <utility>

// A lookup is three questions in a row: the device of a connector, the device's profiles (the first
// is the one in force), the profile's file. colord announces every change of any of them, in
// bursts; each announcement asks again, and one that comes during a lookup asks once more after it.

namespace nocturo {

namespace {

constexpr const char* kService = "org.freedesktop.ColorManager";
constexpr const char* kManagerPath = "/org/freedesktop/ColorManager";
constexpr std::uint64_t kPatience = 5'000'000; // in microseconds

struct MessageUnref {
    void operator()(sd_bus_message* message) const { sd_bus_message_unref(message); }
};
using Message = std::unique_ptr<sd_bus_message, MessageUnref>;

Message newCall(sd_bus* bus, const char* path, const char* interface, const char* method) {
    sd_bus_message* raw = nullptr;
    if (sd_bus_message_new_method_call(bus, &raw, kService, path, interface, method) < 0) {
        return nullptr;
    }
    sd_bus_message_set_auto_start(raw, false);
    return Message(raw);
}

} // namespace

ColordProfiles::ColordProfiles(const std::string& busAddress) {
    sd_event* event = nullptr;
    sd_bus* bus = nullptr;
    if (sd_event_new(&event) < 0) {
        return;
    }
    event_.reset(event);
    if (sd_bus_new(&bus) < 0) {
        return;
    }
    bus_.reset(bus);
    if (sd_bus_set_address(bus, busAddress.c_str()) < 0 || sd_bus_set_bus_client(bus, true) < 0 ||
        sd_bus_start(bus) < 0 || sd_bus_attach_event(bus, event, SD_EVENT_PRIORITY_NORMAL) < 0) {
        bus_.reset();
        return;
    }
    sd_bus_add_match_async(bus, nullptr, "type='signal',sender='org.freedesktop.ColorManager'",
                           onChange, nullptr, this);
    sd_bus_add_match_async(bus, nullptr,
                           "type='signal',sender='org.freedesktop.DBus',"
                           "member='NameOwnerChanged',arg0='org.freedesktop.ColorManager'",
                           onOwnerChange, nullptr, this);
    processEvents();
}

ColordProfiles::~ColordProfiles() {
    if (bus_ != nullptr) {
        sd_bus_detach_event(bus_.get());
    }
}

ColordProfiles::Answer ColordProfiles::profileOf(const std::string& connector) {
    if (bus_ == nullptr) {
        return {};
    }
    const auto [entry, isNew] = lookups_.try_emplace(connector);
    Lookup& lookup = entry->second;
    if (isNew) {
        lookup.owner = this;
        lookup.connector = connector;
        askForDevice(lookup);
        processEvents();
    }
    return lookup.answer;
}

bool ColordProfiles::isSettled() const {
    return std::all_of(lookups_.begin(), lookups_.end(),
                       [](const auto& entry) { return entry.second.answer.settled; });
}

std::uint64_t ColordProfiles::generation() {
    processEvents();
    return generation_;
}

int ColordProfiles::descriptor() const {
    return bus_ != nullptr ? sd_event_get_fd(event_.get()) : -1;
}

void ColordProfiles::processEvents() {
    while (bus_ != nullptr && sd_event_run(event_.get(), 0) > 0) {
    }
}

void ColordProfiles::askAgain() {
    for (auto& [connector, lookup] : lookups_) {
        if (lookup.running) {
            lookup.again = true;
        } else {
            askForDevice(lookup);
        }
    }
}

void ColordProfiles::askForDevice(Lookup& lookup) {
    const Message call = newCall(bus_.get(), kManagerPath, kService, "FindDeviceByProperty");
    lookup.running =
        call != nullptr &&
        sd_bus_message_append(call.get(), "ss", "XRANDR_name", lookup.connector.c_str()) >= 0 &&
        sd_bus_call_async(bus_.get(), nullptr, call.get(), onDevice, &lookup, kPatience) >= 0;
    if (!lookup.running) {
        lookup.answer.settled = true;
        ++generation_;
    }
}

bool ColordProfiles::askForProperty(Lookup& lookup, const char* path, const char* kind,
                                    const char* property, Callback callback) {
    const Message call = newCall(bus_.get(), path, "org.freedesktop.DBus.Properties", "Get");
    const std::string interface = std::string(kService) + "." + kind;
    return call != nullptr &&
           sd_bus_message_append(call.get(), "ss", interface.c_str(), property) >= 0 &&
           sd_bus_call_async(bus_.get(), nullptr, call.get(), callback, &lookup, kPatience) >= 0;
}

void ColordProfiles::finish(Lookup& lookup, std::string file) {
    lookup.running = false;
    if (std::exchange(lookup.again, false)) {
        askForDevice(lookup);
        return;
    }
    // The same path may hold another profile by now.
    if (!lookup.answer.settled || !file.empty() || file != lookup.answer.file) {
        ++generation_;
    }
    lookup.answer = {std::move(file), true};
}

void ColordProfiles::fail(Lookup& lookup, sd_bus_message* reply) {
    const sd_bus_error* error = sd_bus_message_get_error(reply);
    const std::string_view name = error != nullptr && error->name != nullptr ? error->name : "";
    // Its own errors say that it knows no such device; others, that it could not be asked.
    const bool isFromColord = name.starts_with(kService);
    finish(lookup, isFromColord ? std::string() : lookup.answer.file);
}

int ColordProfiles::onChange(sd_bus_message*, void* self, sd_bus_error*) {
    static_cast<ColordProfiles*>(self)->askAgain();
    return 0;
}

int ColordProfiles::onOwnerChange(sd_bus_message* message, void* self, sd_bus_error*) {
    const char* name = nullptr;
    const char* before = nullptr;
    const char* now = nullptr;
    if (sd_bus_message_read(message, "sss", &name, &before, &now) >= 0 && *now != '\0') {
        static_cast<ColordProfiles*>(self)->askAgain();
    }
    return 0;
}

int ColordProfiles::onDevice(sd_bus_message* reply, void* data, sd_bus_error*) {
    auto& lookup = *static_cast<Lookup*>(data);
    const char* device = nullptr;
    if (sd_bus_message_is_method_error(reply, nullptr) > 0 ||
        sd_bus_message_read(reply, "o", &device) < 0 ||
        !lookup.owner->askForProperty(lookup, device, "Device", "Profiles", onProfiles)) {
        lookup.owner->fail(lookup, reply);
    }
    return 0;
}

int ColordProfiles::onProfiles(sd_bus_message* reply, void* data, sd_bus_error*) {
    auto& lookup = *static_cast<Lookup*>(data);
    const bool readable = sd_bus_message_is_method_error(reply, nullptr) == 0 &&
                          sd_bus_message_enter_container(reply, 'v', "ao") >= 0 &&
                          sd_bus_message_enter_container(reply, 'a', "o") >= 0;
    const char* profile = nullptr;
    if (readable && sd_bus_message_read(reply, "o", &profile) == 0) {
        lookup.owner->finish(lookup, {});
    } else if (!readable || profile == nullptr ||
               !lookup.owner->askForProperty(lookup, profile, "Profile", "Filename", onFilename)) {
        lookup.owner->fail(lookup, reply);
    }
    return 0;
}

int ColordProfiles::onFilename(sd_bus_message* reply, void* data, sd_bus_error*) {
    auto& lookup = *static_cast<Lookup*>(data);
    const char* file = nullptr;
    if (sd_bus_message_is_method_error(reply, nullptr) > 0 ||
        sd_bus_message_read(reply, "v", "s", &file) < 0) {
        lookup.owner->fail(lookup, reply);
    } else {
        lookup.owner->finish(lookup, file);
    }
    return 0;
}

} // namespace nocturo
