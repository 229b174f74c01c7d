#include "session/color_scheme.h"

#include "base/bus.h"

#include <cstdint>
#include <string_view>
#include <systemd/sd-bus.h>
#include <utility>

namespace nocturo {

namespace {

constexpr const char* kPortal = "org.freedesktop.portal.Desktop";
constexpr const char* kPath = "/org/freedesktop/portal/desktop";
constexpr const char* kSettings = "org.freedesktop.portal.Settings";
constexpr const char* kNamespace = "org.freedesktop.appearance";
constexpr const char* kKey = "color-scheme";
constexpr std::uint32_t kDark = 1; // 2 is light, 0 and everything else no wish

} // namespace

ColorScheme::ColorScheme(const Bus& bus, Told told) : bus_(bus), told_(std::move(told)) {
    changes_ = bus.onSignal(kPortal, kPath, kSettings, "SettingChanged", [this](auto* signal) {
        const char* space = nullptr;
        const char* key = nullptr;
        std::uint32_t scheme = 0;
        if (sd_bus_message_read(signal, "ss", &space, &key) > 0 &&
            std::string_view(space) == kNamespace && std::string_view(key) == kKey &&
            sd_bus_message_read(signal, "v", "u", &scheme) > 0) {
            told_(scheme == kDark);
        }
    });
    owner_ = bus.followOwner(kPortal, [this](const std::string& owner) {
        if (!owner.empty()) {
            ask();
        }
    });
}

ColorScheme::~ColorScheme() = default;

void ColorScheme::ask() {
    const BusMessage call = bus_.newCall(kPortal, kPath, kSettings, "Read");
    sd_bus_message_append(call.get(), "ss", kNamespace, kKey);
    answer_ = bus_.call(call, [this](sd_bus_message* answer) {
        std::uint32_t scheme = 0;
        // Read wraps what it answers twice.
        if (sd_bus_message_is_method_error(answer, nullptr) == 0 &&
            sd_bus_message_enter_container(answer, 'v', "v") > 0 &&
            sd_bus_message_read(answer, "v", "u", &scheme) > 0) {
            told_(scheme == kDark);
        }
    });
}

} // namespace nocturo
