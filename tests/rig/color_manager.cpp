#include "rig/color_manager.h"

#include <stdexcept>

namespace nocturo::rig {

namespace {

constexpr const char* kService = "org.freedesktop.ColorManager";
constexpr const char* kPath = "/org/freedesktop/ColorManager";
constexpr const char* kDevice = "org.freedesktop.ColorManager.Device";
constexpr const char* kScope = "normal"; // outlives the connection that made it

std::string daemonProgram() {
    for (const char* path : {"/usr/libexec/colord", "/usr/lib/colord/colord", "/usr/lib/colord"}) {
        if (std::filesystem::is_regular_file(path)) {
            return path;
        }
    }
    throw std::runtime_error("colord is not installed");
}

} // namespace

// Its database is at a fixed place, so that place is another one for it.
ColorManager::ColorManager() {
    auto environment = cleanEnvironment();
    environment["DBUS_SYSTEM_BUS_ADDRESS"] = bus_.address();
    const std::string script = "mount -t tmpfs none /var/lib/colord && exec " + daemonProgram();
    process_.emplace("unshare", std::vector<std::string>{"--mount", "sh", "-c", script},
                     environment);
    if (!bus_.waitForName(kService, *process_)) {
        throw std::runtime_error("colord cannot run here: " + process_->errors());
    }
}

void ColorManager::assign(const std::string& connector, const std::filesystem::path& profile) {
    std::string& device = devices_[connector];
    if (device.empty()) {
        device = bus_.call(kService, kPath, kService, "CreateDevice", "ssa{ss}", connector.c_str(),
                           kScope, 3, "Kind", "display", "Colorspace", "rgb", "XRANDR_name",
                           connector.c_str());
    }
    const std::string made = bus_.call(kService, kPath, kService, "CreateProfile", "ssa{ss}",
                                       profile.c_str(), kScope, 1, "Filename", profile.c_str());
    bus_.call(kService, device.c_str(), kDevice, "AddProfile", "so", "hard", made.c_str());
    bus_.call(kService, device.c_str(), kDevice, "MakeProfileDefault", "o", made.c_str());
}

void ColorManager::remove(const std::string& connector) {
    bus_.call(kService, kPath, kService, "DeleteDevice", "o", devices_.at(connector).c_str());
    devices_.erase(connector);
}

} // namespace nocturo::rig
