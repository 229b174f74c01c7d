#include "displays/calibration/colord_profiles.h"

#include <algorithm>
#include <string_view>

// A lookup is three questions in a row: the device of a connector, the device's profiles (the first
// is the one in force), the profile's file. colord announces every change of any of them, in
// bursts; each announcement asks again, and one that comes during a lookup asks once more after it.

namespace nocturo {

namespace {

constexpr const char* kService = "org.freedesktop.ColorManager";
constexpr const char* kManagerPath = "/org/freedesktop/ColorManager";
constexpr const char* kDevice = "org.freedesktop.ColorManager.Device";
constexpr const char* kProfile = "org.freedesktop.ColorManager.Profile";

BusMessage propertyCall(const Bus& bus, const char* path, const char* interface,
                        const char* property) {
    BusMessage call = bus.newCall(kService, path, "org.freedesktop.DBus.Properties", "Get");
    sd_bus_message_append(call.get(), "ss", interface, property);
    return call;
}

bool isError(sd_bus_message* reply) {
    return sd_bus_message_is_method_error(reply, nullptr) > 0;
}

} // namespace

ColordProfiles::ColordProfiles(Bus* bus) : bus_(bus) {
    if (bus_ != nullptr) {
        slots_.push_back(
            bus_->onSignal(kService, nullptr, nullptr, nullptr, [this](auto*) { askAgain(); }));
        slots_.push_back(
            bus_->followOwner(kService, [this](const std::string& owner) { ownerChanged(owner); }));
    }
}

ColordProfiles::Answer ColordProfiles::profileOf(const std::string& connector) {
    if (bus_ == nullptr) {
        return {};
    }
    const auto [entry, isNew] = lookups_.try_emplace(connector);
    Lookup& lookup = entry->second;
    if (isNew) {
        lookup.connector = connector;
        askForDevice(lookup);
    }
    return lookup.answer;
}

bool ColordProfiles::isSettled() const {
    return std::all_of(lookups_.begin(), lookups_.end(),
                       [](const auto& entry) { return entry.second.answer.settled; });
}

bool ColordProfiles::waitUntilSettled(std::chrono::milliseconds patience) const {
    return bus_ == nullptr || bus_->serveUntil([this] { return isSettled(); }, patience);
}

void ColordProfiles::askAgain() {
    for (auto& [connector, lookup] : lookups_) {
        if (lookup.question != nullptr) {
            lookup.again = true;
        } else {
            askForDevice(lookup);
        }
    }
}

// Who owns the name at first has been asked already.
void ColordProfiles::ownerChanged(const std::string& owner) {
    if (std::exchange(ownerIsKnown_, true) && !owner.empty()) {
        askAgain();
    }
}

void ColordProfiles::askForDevice(Lookup& lookup) {
    const BusMessage call = bus_->newCall(kService, kManagerPath, kService, "FindDeviceByProperty");
    sd_bus_message_append(call.get(), "ss", "XRANDR_name", lookup.connector.c_str());
    lookup.question = bus_->call(call, [this, &lookup](sd_bus_message* reply) {
        const char* device = nullptr;
        if (isError(reply) || sd_bus_message_read(reply, "o", &device) <= 0) {
            fail(lookup, reply);
        } else {
            askForProfiles(lookup, device);
        }
    });
}

void ColordProfiles::askForProfiles(Lookup& lookup, const char* device) {
    const BusMessage call = propertyCall(*bus_, device, kDevice, "Profiles");
    lookup.question = bus_->call(call, [this, &lookup](sd_bus_message* reply) {
        const char* profile = nullptr;
        if (isError(reply) || sd_bus_message_enter_container(reply, 'v', "ao") <= 0 ||
            sd_bus_message_enter_container(reply, 'a', "o") < 0) {
            fail(lookup, reply);
        } else if (sd_bus_message_read(reply, "o", &profile) <= 0) {
            finish(lookup, {});
        } else {
            askForFile(lookup, profile);
        }
    });
}

void ColordProfiles::askForFile(Lookup& lookup, const char* profile) {
    const BusMessage call = propertyCall(*bus_, profile, kProfile, "Filename");
    lookup.question = bus_->call(call, [this, &lookup](sd_bus_message* reply) {
        const char* file = nullptr;
        if (isError(reply) || sd_bus_message_read(reply, "v", "s", &file) <= 0) {
            fail(lookup, reply);
        } else {
            finish(lookup, file);
        }
    });
}

void ColordProfiles::finish(Lookup& lookup, std::string file) {
    lookup.question.reset();
    if (std::exchange(lookup.again, false)) {
        askForDevice(lookup);
        return;
    }
    // The same path may hold another profile by now.
    const bool isChange = !lookup.answer.settled || !file.empty() || file != lookup.answer.file;
    lookup.answer = {std::move(file), true};
    if (isChange) {
        ++generation_;
        if (look_) {
            look_();
        }
    }
}

void ColordProfiles::fail(Lookup& lookup, sd_bus_message* reply) {
    const sd_bus_error* error = sd_bus_message_get_error(reply);
    const std::string_view name = error != nullptr && error->name != nullptr ? error->name : "";
    // Its own errors say that it knows no such device; others, that it could not be asked.
    const bool isFromColord = name.starts_with(kService);
    finish(lookup, isFromColord ? std::string() : lookup.answer.file);
}

} // namespace nocturo
