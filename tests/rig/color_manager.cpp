#include "rig/color_manager.h"

#include <stdexcept>

#include <systemd/sd-bus.h>
#include <unistd.h>

namespace nocturo::rig {

namespace {

namespace fs = std::filesystem;

constexpr const char* kService = "org.freedesktop.ColorManager";
constexpr const char* kPath = "/org/freedesktop/ColorManager";

using Message = std::unique_ptr<sd_bus_message, decltype(&sd_bus_message_unref)>;

void check(int result, const char* what) {
    if (result < 0) {
        throw std::runtime_error(std::string("colord failed: ") + what);
    }
}

std::string daemonProgram() {
    for (const char* path : {"/usr/libexec/colord", "/usr/lib/colord/colord", "/usr/lib/colord"}) {
        if (fs::is_regular_file(path)) {
            return path;
        }
    }
    throw std::runtime_error("colord is not installed");
}

} // namespace

void ColorManager::Close::operator()(sd_bus* bus) const {
    sd_bus_close_unref(bus);
}

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
    sd_bus* raw = nullptr;
    check(sd_bus_new(&raw), "new");
    client_.reset(raw);
    check(sd_bus_set_address(raw, bus_.address().c_str()), "address");
    check(sd_bus_set_bus_client(raw, true), "client");
    check(sd_bus_start(raw), "start");
}

std::string ColorManager::create(const char* method, const std::string& id,
                                 const std::map<std::string, std::string>& properties) {
    sd_bus_message* raw = nullptr;
    check(sd_bus_message_new_method_call(client_.get(), &raw, kService, kPath, kService, method),
          method);
    const Message call(raw, sd_bus_message_unref);
    check(sd_bus_message_append(raw, "ss", id.c_str(), "temp"), method);
    check(sd_bus_message_open_container(raw, 'a', "{ss}"), method);
    for (const auto& [key, value] : properties) {
        check(sd_bus_message_append(raw, "{ss}", key.c_str(), value.c_str()), method);
    }
    check(sd_bus_message_close_container(raw), method);
    sd_bus_message* answer = nullptr;
    check(sd_bus_call(client_.get(), raw, 0, nullptr, &answer), method);
    const Message reply(answer, sd_bus_message_unref);
    const char* path = nullptr;
    check(sd_bus_message_read(answer, "o", &path), method);
    return path;
}

void ColorManager::assign(const std::string& connector, const fs::path& profile) {
    std::string& device = devices_[connector];
    if (device.empty()) {
        device = create("CreateDevice", "display-" + connector,
                        {{"Kind", "display"}, {"Colorspace", "rgb"}, {"XRANDR_name", connector}});
    }
    const std::string id = "profile-" + std::to_string(++profiles_);
    const std::string made = create("CreateProfile", id, {{"Filename", profile}});
    const std::string interface = std::string(kService) + ".Device";
    check(sd_bus_call_method(client_.get(), kService, device.c_str(), interface.c_str(),
                             "AddProfile", nullptr, nullptr, "so", "hard", made.c_str()),
          "AddProfile");
    check(sd_bus_call_method(client_.get(), kService, device.c_str(), interface.c_str(),
                             "MakeProfileDefault", nullptr, nullptr, "o", made.c_str()),
          "MakeProfileDefault");
}

void ColorManager::remove(const std::string& connector) {
    check(sd_bus_call_method(client_.get(), kService, kPath, kService, "DeleteDevice", nullptr,
                             nullptr, "o", devices_.at(connector).c_str()),
          "DeleteDevice");
    devices_.erase(connector);
}

} // namespace nocturo::rig
