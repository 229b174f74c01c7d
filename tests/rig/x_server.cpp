#include "rig/x_server.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <stdexcept>

namespace nocturo::rig {

namespace {

namespace fs = std::filesystem;

constexpr const char* kConfiguration = R"(
Section "ServerFlags"
    Option "AutoAddDevices" "false"
    Option "AutoAddGPU" "false"
EndSection
Section "Device"
    Identifier "device"
    Driver "dummy"
    VideoRam 256000
EndSection
Section "Monitor"
    Identifier "monitor"
    HorizSync 1-1000
    VertRefresh 1-1000
EndSection
Section "Screen"
    Identifier "screen"
    Device "device"
    Monitor "monitor"
    DefaultDepth 24
    SubSection "Display"
        Depth 24
        Modes "640x480"
        Virtual 5120 640
    EndSubSection
EndSection
)";

// The server itself where distributions keep it: "Xorg" may be a wrapper that lets only users on a
// console in and refuses configurations by absolute path.
std::string serverProgram() {
    for (const char* path : {"/usr/lib/xorg/Xorg", "/usr/libexec/Xorg", "/usr/lib/Xorg"}) {
        if (fs::exists(path)) {
            return path;
        }
    }
    return "Xorg";
}

std::string socketPath(const std::string& display) {
    return "/tmp/.X11-unix/X" + display.substr(1);
}

} // namespace

// The server looks for a free number by taking over sockets that nobody answers on, which may be
// the user's seen from a container. So the number is chosen here, far from those in use.
std::string freeDisplay() {
    std::random_device random;
    std::uniform_int_distribution number(1000, 29999);
    while (true) {
        std::string display = ":" + std::to_string(number(random));
        if (!fs::exists(socketPath(display)) &&
            !fs::exists("/tmp/.X" + display.substr(1) + "-lock")) {
            return display;
        }
    }
}

XServer::XServer(int displays) : display_(freeDisplay()) {
    const std::string directory = directory_.path();
    std::ofstream(directory + "/xorg.conf") << kConfiguration;
    auto environment = cleanEnvironment();
    // Keeps the server from asking the machine's login manager for a seat.
    environment["DBUS_SYSTEM_BUS_ADDRESS"] = "unix:path=" + directory + "/no-bus";
    environment["HOME"] = directory;
    process_.emplace(serverProgram(),
                     std::vector<std::string>{display_, "-displayfd", "1", "-noreset", "-nolisten",
                                              "tcp", "-novtswitch", "-sharevts", "-config",
                                              directory + "/xorg.conf", "-configdir", directory,
                                              "-logfile", directory + "/xorg.log"},
                     environment);
    if (!process_->readLine()) {
        std::ostringstream log;
        log << std::ifstream(directory + "/xorg.log").rdbuf();
        throw std::runtime_error("Xorg did not start: " + process_->errors() + log.str());
    }
    client_.emplace(display_);
    mode_ = client_->createMode(kWidth, kHeight);
    switchOn(0);
    client_->setScreenSize(kMaximumDisplays * kWidth, 2 * kHeight);
    for (int output = 1; output < displays; ++output) {
        switchOn(output);
    }
}

XServer::~XServer() {
    client_.reset();
    process_->signal(SIGTERM);
    if (!process_->wait(Milliseconds(2000))) {
        kill();
    }
}

void XServer::kill() {
    process_->signal(SIGKILL);
    process_->wait();
    std::error_code ignored;
    fs::remove(socketPath(display_), ignored);
    fs::remove("/tmp/.X" + display_.substr(1) + "-lock", ignored);
}

Output XServer::outputNumber(int number) {
    return client_->outputs().at(static_cast<std::size_t>(number));
}

void XServer::switchOn(int output) {
    switchOn(output, output * kWidth, 0);
}

void XServer::switchOn(int output, int x, int y) {
    client_->switchOn(outputNumber(output), mode_, x, y);
}

void XServer::switchOff(int output) {
    client_->switchOff(outputNumber(output));
}

void XServer::setEdid(int output, const std::vector<std::uint8_t>& edid) {
    client_->setEdid(outputNumber(output), edid);
}

} // namespace nocturo::rig
