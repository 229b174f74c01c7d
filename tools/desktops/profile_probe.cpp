// Has a real KWin take color profiles for its first output, as displays/kde does, and prints what
// it says to each: files named on the command line, and first one that is made here.

#include "displays/kde/curve_profile.h"
#include "displays/kde/profile_configurations.h"
#include "wayland/wayland_connection.h"

#include <array>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

int main(int argc, char* argv[]) {
    using namespace nocturo;
    constexpr std::chrono::seconds kPatience{5};
    const char* display = std::getenv("WAYLAND_DISPLAY");
    const auto compositor = WaylandConnection::open(display != nullptr ? display : "");
    if (compositor == nullptr || !OutputDevices::areOfferedBy(*compositor)) {
        std::cerr << "There is no KWin 6.\n";
        return 1;
    }
    const OutputDevices devices(*compositor);
    ProfileConfigurations configurations(*compositor);
    compositor->waitUntil([&] { return !devices.all().empty(); }, kPatience);
    if (devices.all().empty()) {
        std::cerr << "It has no output.\n";
        return 1;
    }
    const OutputDevice& device = *devices.all().front();

    std::vector<std::string> files = {"made.icc"};
    files.insert(files.end(), argv + 1, argv + argc);
    const auto made = profileWithCurve(plainProfile({}), identityRamp(kCalibrationSize));
    std::ofstream(files.front(), std::ios::binary)
        .write(reinterpret_cast<const char*>(made->data()),
               static_cast<std::streamsize>(made->size()));
    files.front() = std::string(std::getenv("PWD")) + "/made.icc";
    for (const std::string& file : files) {
        std::string said = "no answer";
        const std::array<ProfileConfigurations::Change, 1> change = {
            {{&device, {file, ColorSource::profile}}}};
        configurations.apply(change, [&](const Result<void>& result) {
            said = result ? "applied" : "refused (" + result.error().text + ")";
        });
        compositor->waitUntil([&] { return !configurations.isUnderWay(); }, kPatience);
        std::cout << file.substr(file.rfind('/') + 1) << ": " << said << "; ";
        if (configurations.isUnderWay()) {
            break;
        }
    }
    std::cout << "the output has \"" << device.setting.path << "\"\n";
    return 0;
}
