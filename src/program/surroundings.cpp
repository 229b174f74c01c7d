#include "program/surroundings.h"

#include "base/environment.h"
#include "x11/x_connection.h"

#include <cstdlib>
#include <system_error>

namespace nocturo {

namespace {

/// Whether Qt, which ends the process where it finds no desktop, has one to show windows on.
bool hasDesktop(const XConnection* server) {
    return !environment("WAYLAND_DISPLAY").empty() || (server != nullptr && !server->isLost());
}

} // namespace

bool canShowWindows(const XConnection* server) {
    const std::string platform = environment("QT_QPA_PLATFORM");
    return platform.empty() ? hasDesktop(server) : !platform.starts_with("offscreen");
}

void choosePlatform(const XConnection* server) {
    if (environment("QT_QPA_PLATFORM").empty() && !hasDesktop(server)) {
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
    }
}

std::string xDisplayName() {
    return environment("DISPLAY");
}

std::string waylandDisplayName() {
    return environment("WAYLAND_DISPLAY");
}

std::string desktopName() {
    return environment("XDG_CURRENT_DESKTOP");
}

std::string loginSession() {
    return environment("XDG_SESSION_ID");
}

std::filesystem::path settingsPath() {
    return userDirectory("XDG_CONFIG_HOME", ".config") / "nocturo" / "settings.plist";
}

std::vector<std::filesystem::path> configDirectories() {
    const std::vector<std::string> given = partsOfList(environment("XDG_CONFIG_DIRS"));
    return given.empty() ? std::vector<std::filesystem::path>{"/etc/xdg"}
                         : std::vector<std::filesystem::path>(given.begin(), given.end());
}

std::filesystem::path dataDirectory() {
    return userDirectory("XDG_DATA_HOME", ".local/share") / "nocturo";
}

std::vector<std::string> absolutePaths(const std::vector<std::string>& paths) {
    std::vector<std::string> absolute;
    for (const std::string& path : paths) {
        std::error_code error;
        const auto full = std::filesystem::absolute(path, error);
        absolute.push_back(error ? path : full.lexically_normal().string());
    }
    return absolute;
}

} // namespace nocturo
