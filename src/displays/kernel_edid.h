#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace nocturo {

/// Where the kernel has a directory for each connector.
inline constexpr const char* kKernelConnectors = "/sys/class/drm";

/// The kernel's copy of the EDID of the monitor on a connector, for desktops that pass none on.
/// Empty where there is none. The connector may have the kernel's own name, such as "HDMI-A-1", or
/// the one that it has in GNOME and on an X server, "HDMI-1".
std::vector<std::uint8_t> kernelEdid(const std::filesystem::path& connectors,
                                     const std::string& connector);

} // namespace nocturo
