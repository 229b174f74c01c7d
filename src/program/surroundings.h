#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace nocturo {

class XConnection;

// What the process finds around itself. Everything else is handed what it needs of it.

/// Whether there is a desktop that windows can be shown on; `server` is the X server, or null.
bool canShowWindows(const XConnection* server);

/// Lets Qt draw into memory where there is none. To be called before the desktop part is started.
void choosePlatform(const XConnection* server);

/// The X server's name; empty where there is none.
std::string xDisplayName();

/// The Wayland compositor's socket; empty where there is none.
std::string waylandDisplayName();

/// What the desktop calls itself; empty where it does not say.
std::string desktopName();

/// The identifier of the login session; empty where it is not known.
std::string loginSession();

std::filesystem::path settingsPath();

/// Where what is configured for everybody lies.
std::vector<std::filesystem::path> configDirectories();

/// Where what the user made is kept. Need not exist.
std::filesystem::path dataDirectory();

std::vector<std::string> absolutePaths(const std::vector<std::string>& paths);

} // namespace nocturo
