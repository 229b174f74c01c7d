#include "bus/callers_language.h"

#include "base/bus.h"
#include "base/files.h"
#include "base/texts/users_language.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <sys/ioctl.h>

namespace nocturo {

namespace {

constexpr std::uint64_t kPatience = 100'000; // microseconds
constexpr std::size_t kLongestEnvironment = 4U << 20U;

/// Whoever waits for an answer meanwhile takes all of it into the memory.
bool isMoreWaiting(sd_bus* bus) {
    std::uint64_t queued = 0;
    int unread = 0;
    return (sd_bus_get_n_queued_read(bus, &queued) >= 0 && queued > 0) ||
           (ioctl(sd_bus_get_fd(bus), FIONREAD, &unread) == 0 && unread > 0);
}

std::uint32_t processOf(sd_bus_message* call) {
    constexpr const char* kBusService = "org.freedesktop.DBus";
    sd_bus* bus = sd_bus_message_get_bus(call);
    sd_bus_message* created = nullptr;
    sd_bus_message_new_method_call(bus, &created, kBusService, "/org/freedesktop/DBus", kBusService,
                                   "GetConnectionUnixProcessID");
    const BusMessage question(created);
    sd_bus_message_append(created, "s", sd_bus_message_get_sender(call));
    sd_bus_message* received = nullptr;
    sd_bus_call(bus, created, kPatience, nullptr, &received);
    const BusMessage answer(received);
    std::uint32_t process = 0;
    if (answer != nullptr) {
        sd_bus_message_read(received, "u", &process);
    }
    return process;
}

/// The value in a block of variables that end with a zero each; empty where it is not set.
std::string valueIn(std::string_view variables, std::string_view name) {
    while (!variables.empty()) {
        const std::string_view variable = variables.substr(0, variables.find('\0'));
        if (variable.starts_with(name) && variable.substr(name.size()).starts_with('=')) {
            return std::string(variable.substr(name.size() + 1));
        }
        variables.remove_prefix(std::min(variable.size() + 1, variables.size()));
    }
    return {};
}

} // namespace

std::optional<std::string> languageOfCaller(sd_bus_message* call) {
    if (isMoreWaiting(sd_bus_message_get_bus(call))) {
        return std::nullopt;
    }
    const std::uint32_t process = processOf(call);
    const auto file = openRegularFile("/proc/" + std::to_string(process) + "/environ");
    const auto variables =
        file ? readAll(file->descriptor, kLongestEnvironment) : Result<std::string>(failed(""));
    if (process == 0 || !variables) {
        return std::nullopt;
    }
    return languageBy([&](const char* name) { return valueIn(*variables, name); });
}

} // namespace nocturo
