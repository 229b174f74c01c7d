#include "displays/gnome/desktop_shell.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace nocturo {

namespace {

constexpr std::array kShells = {
    ShellNames{"GNOME", "org.gnome.Mutter.DisplayConfig", "/org/gnome/Mutter/DisplayConfig",
               "org.gnome.Mutter.ColorManager", "/org/gnome/Mutter/ColorManager",
               "org.gnome.SettingsDaemon.Color", "/org/gnome/SettingsDaemon/Color"},
    ShellNames{"Cinnamon", "org.cinnamon.Muffin.DisplayConfig",
               "/org/cinnamon/Muffin/DisplayConfig", "org.cinnamon.Muffin.ColorManager",
               "/org/cinnamon/Muffin/ColorManager", "org.cinnamon.SettingsDaemon.Color",
               "/org/cinnamon/SettingsDaemon/Color"}};

constexpr std::size_t kMostOutputs = 256;
constexpr std::size_t kLongestName = 255;
constexpr std::size_t kMostEdidBytes = 32768;
constexpr const char* kVendorOfNested = "MetaProducts Inc.";

constexpr const char* kCrtc = "uxiiiiiuaua{sv}";
constexpr const char* kOutput = "uxiausauaua{sv}";

struct Crtc {
    std::uint32_t id = 0;
    DisplayRect bounds;
};

std::string ownerOf(const Bus& bus, const char* service, int patienceMs) {
    constexpr const char* kBus = "org.freedesktop.DBus";
    const BusMessage question = bus.newCall(kBus, "/org/freedesktop/DBus", kBus, "GetNameOwner");
    sd_bus_message_append(question.get(), "s", service);
    const BusMessage answer = bus.callAndWait(question, patienceMs, nullptr);
    const char* owner = "";
    if (answer != nullptr) {
        sd_bus_message_read(answer.get(), "s", &owner);
    }
    return owner;
}

/// Reads an array of structures: `read` takes one of them, entered already, and says whether it
/// could. False where the message is not of that kind.
template <class Read>
bool readArray(sd_bus_message* message, const char* element, Read read) {
    if (sd_bus_message_enter_container(message, 'a', (std::string("(") + element + ')').c_str()) <=
        0) {
        return false;
    }
    int entered = 0;
    while ((entered = sd_bus_message_enter_container(message, 'r', element)) > 0) {
        if (!read() || sd_bus_message_exit_container(message) < 0) {
            return false;
        }
    }
    return entered == 0 && sd_bus_message_exit_container(message) >= 0;
}

bool readCrtc(sd_bus_message* message, std::vector<Crtc>& crtcs) {
    Crtc crtc;
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;
    if (sd_bus_message_read(message, "uxiiii", &crtc.id, nullptr, &x, &y, &width, &height) <= 0 ||
        sd_bus_message_skip(message, "iuaua{sv}") < 0) {
        return false;
    }
    crtc.bounds = {
        .x = double(x), .y = double(y), .width = double(width), .height = double(height)};
    if (crtcs.size() < kMostOutputs) {
        crtcs.push_back(crtc);
    }
    return true;
}

/// Takes what it knows of the properties. One of another type than is usual counts as missing.
bool readProperties(sd_bus_message* message, ShellOutput& output) {
    if (sd_bus_message_enter_container(message, 'a', "{sv}") < 0) {
        return false;
    }
    int entered = 0;
    while ((entered = sd_bus_message_enter_container(message, 'e', "sv")) > 0) {
        const char* name = "";
        const char* type = nullptr;
        if (sd_bus_message_read(message, "s", &name) <= 0 ||
            sd_bus_message_peek_type(message, nullptr, &type) <= 0) {
            return false;
        }
        const auto is = [&](const char* property, const char* ofType) {
            return std::strcmp(name, property) == 0 && std::strcmp(type, ofType) == 0;
        };
        if (is("vendor", "s")) {
            const char* vendor = "";
            sd_bus_message_read(message, "v", "s", &vendor);
            output.nested = std::strcmp(vendor, kVendorOfNested) == 0;
        } else if (is("primary", "b")) {
            int primary = 0;
            sd_bus_message_read(message, "v", "b", &primary);
            output.primary = primary != 0;
        } else if (is("edid", "ay")) {
            const void* bytes = nullptr;
            std::size_t size = 0;
            sd_bus_message_enter_container(message, 'v', "ay");
            sd_bus_message_read_array(message, 'y', &bytes, &size);
            sd_bus_message_exit_container(message);
            if (bytes != nullptr && size <= kMostEdidBytes) {
                const auto* first = static_cast<const std::uint8_t*>(bytes);
                output.edid.assign(first, first + size);
            }
        } else if (sd_bus_message_skip(message, "v") < 0) {
            return false;
        }
        if (sd_bus_message_exit_container(message) < 0) {
            return false;
        }
    }
    return entered == 0 && sd_bus_message_exit_container(message) >= 0;
}

/// Takes the output where it is on.
bool readOutput(sd_bus_message* message, const std::vector<Crtc>& crtcs,
                std::vector<ShellOutput>& outputs) {
    ShellOutput output;
    std::int32_t crtc = -1;
    const char* name = "";
    if (sd_bus_message_read(message, "uxi", nullptr, nullptr, &crtc) <= 0 ||
        sd_bus_message_skip(message, "au") < 0 || sd_bus_message_read(message, "s", &name) <= 0 ||
        sd_bus_message_skip(message, "auau") < 0) {
        return false;
    }
    output.connector = name;
    const auto shown = std::find_if(crtcs.begin(), crtcs.end(), [&](const Crtc& known) {
        return crtc >= 0 && known.id == static_cast<std::uint32_t>(crtc);
    });
    const auto isOutput = [&](const ShellOutput& other) {
        return other.connector == output.connector;
    };
    if (shown == crtcs.end() || outputs.size() >= kMostOutputs || output.connector.empty() ||
        output.connector.size() > kLongestName ||
        std::any_of(outputs.begin(), outputs.end(), isOutput)) {
        return sd_bus_message_skip(message, "a{sv}") >= 0;
    }
    output.crtc = shown->id;
    output.bounds = shown->bounds;
    if (!readProperties(message, output)) {
        return false;
    }
    outputs.push_back(std::move(output));
    return true;
}

bool readChannel(sd_bus_message* message, std::vector<std::uint16_t>& channel) {
    const void* entries = nullptr;
    std::size_t size = 0;
    if (sd_bus_message_read_array(message, 'q', &entries, &size) < 0 ||
        size / sizeof(std::uint16_t) > kMaxRampSize) {
        return false;
    }
    const auto* first = static_cast<const std::uint16_t*>(entries);
    if (size != 0) {
        channel.assign(first, first + size / sizeof(std::uint16_t));
    }
    return true;
}

bool isError(sd_bus_message* answer) {
    return sd_bus_message_is_method_error(answer, nullptr) > 0;
}

} // namespace

std::optional<Shell> findShell(const Bus& bus, int patienceMs) {
    for (const ShellNames& names : kShells) {
        if (auto shell = findShell(bus, patienceMs, names.displays)) {
            return shell;
        }
    }
    return std::nullopt;
}

std::optional<Shell> findShell(const Bus& bus, int patienceMs, std::string_view displays) {
    for (const ShellNames& names : kShells) {
        if (names.displays == displays) {
            std::string owner = ownerOf(bus, names.displays, patienceMs);
            if (owner.empty()) {
                break;
            }
            const bool lends = !ownerOf(bus, names.colors, patienceMs).empty();
            return Shell{&names, std::move(owner), lends};
        }
    }
    return std::nullopt;
}

BusMessage resourcesCall(const Bus& bus, const ShellNames& shell) {
    return bus.newCall(shell.displays, shell.displaysPath, shell.displays, "GetResources");
}

std::optional<ShellResources> resourcesIn(sd_bus_message* answer) {
    ShellResources resources;
    std::vector<Crtc> crtcs;
    if (isError(answer) || sd_bus_message_read(answer, "u", &resources.serial) <= 0 ||
        !readArray(answer, kCrtc, [&] { return readCrtc(answer, crtcs); }) ||
        !readArray(answer, kOutput, [&] { return readOutput(answer, crtcs, resources.outputs); })) {
        return std::nullopt;
    }
    return resources;
}

BusMessage readRampCall(const Bus& bus, const ShellNames& shell, std::uint32_t serial,
                        std::uint32_t crtc) {
    BusMessage call =
        bus.newCall(shell.displays, shell.displaysPath, shell.displays, "GetCrtcGamma");
    sd_bus_message_append(call.get(), "uu", serial, crtc);
    return call;
}

std::optional<Ramp> rampIn(sd_bus_message* answer) {
    Ramp ramp;
    if (isError(answer) || !readChannel(answer, ramp.red) || !readChannel(answer, ramp.green) ||
        !readChannel(answer, ramp.blue) || ramp.green.size() != ramp.red.size() ||
        ramp.blue.size() != ramp.red.size()) {
        return std::nullopt;
    }
    return ramp;
}

BusMessage writeRampCall(const Bus& bus, const ShellNames& shell, std::uint32_t serial,
                         std::uint32_t crtc, const Ramp& ramp) {
    BusMessage call =
        bus.newCall(shell.displays, shell.displaysPath, shell.displays, "SetCrtcGamma");
    sd_bus_message_append(call.get(), "uu", serial, crtc);
    append(call, ramp);
    return call;
}

void append(const BusMessage& call, const Ramp& ramp) {
    for (const auto* channel : {&ramp.red, &ramp.green, &ramp.blue}) {
        sd_bus_message_append_array(call.get(), 'q', channel->data(),
                                    channel->size() * sizeof(channel->front()));
    }
}

bool isStale(const sd_bus_error& error) {
    return sd_bus_error_has_name(&error, SD_BUS_ERROR_ACCESS_DENIED) > 0;
}

bool isStale(sd_bus_message* answer) {
    const sd_bus_error* error = sd_bus_message_get_error(answer);
    return error != nullptr && isStale(*error);
}

} // namespace nocturo
