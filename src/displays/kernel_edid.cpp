#include "displays/kernel_edid.h"

#include <fstream>
#include <iterator>
#include <string_view>
#include <system_error>

namespace nocturo {

namespace {

constexpr std::size_t kMostEdidBytes = 32768;

// HDMI connectors of the common kind, A, are the only ones that are called differently.
std::string kernelsName(const std::string& connector) {
    constexpr std::string_view kHdmi = "HDMI-";
    const bool lacksKind = connector.starts_with(kHdmi) && connector.size() > kHdmi.size() &&
                           connector[kHdmi.size()] >= '0' && connector[kHdmi.size()] <= '9';
    return lacksKind ? "HDMI-A-" + connector.substr(kHdmi.size()) : connector;
}

} // namespace

std::vector<std::uint8_t> kernelEdid(const std::filesystem::path& connectors,
                                     const std::string& connector) {
    const std::string wanted = kernelsName(connector);
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(connectors, error)) {
        const std::string name = entry.path().filename(); // card0-DP-1
        const auto dash = name.find('-');
        if (dash == std::string::npos || name.substr(dash + 1) != wanted) {
            continue;
        }
        std::ifstream file(entry.path() / "edid", std::ios::binary);
        std::vector<std::uint8_t> edid(std::istreambuf_iterator<char>(file), {});
        if (!edid.empty() && edid.size() <= kMostEdidBytes) {
            return edid;
        }
    }
    return {};
}

} // namespace nocturo
