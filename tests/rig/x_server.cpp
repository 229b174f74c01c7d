#include "rig/x_server.h"

#include <csignal>
#include <filesystem>
#include <random>
#include <stdexcept>

namespace nocturo::rig {

namespace {

namespace fs = std::filesystem;

constexpr const char* kMode = "rig"; // of every display
// As large as the screen may become, so that nothing but the outputs changes.
constexpr const char* kScreen = "5120x480";

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
std::string lockPath(const std::string& display) {
    return "/tmp/.X" + display.substr(1) + "-lock";
}
std::string outputCalled(int number) {
    return "DUMMY" + std::to_string(number);
}
/// What xrandr is told to light the output there.
std::vector<std::string> placed(int output, int x, int y) {
    return {"--fb",   kScreen, "--output", outputCalled(output),
            "--mode", kMode,   "--pos",    std::to_string(x) + "x" + std::to_string(y)};
}

} // namespace

// The server looks for a free number by taking over sockets that nobody answers on, which may be
// the user's seen from a container. So the number is chosen here, far from those in use.
std::string freeDisplay() {
    std::random_device random;
    std::uniform_int_distribution number(1000, 29999);
    while (true) {
        std::string display = ":" + std::to_string(number(random));
        if (!fs::exists(socketPath(display)) && !fs::exists(lockPath(display))) {
            return display;
        }
    }
}

XServer::XServer(int displays) {
    // Another server may take the number between the choice and the start.
    for (int attempt = 0; !start(freeDisplay()); ++attempt) {
        if (attempt == 4) {
            throw std::runtime_error("Xorg did not start: " + process_->errors() +
                                     readText(directory_ / "xorg.log"));
        }
    }
    std::vector<std::string> modes;
    for (int output = 1; output < 16; ++output) {
        modes.insert(modes.end(), {"--addmode", outputCalled(output), kMode});
    }
    run("xrandr", modes);
    std::vector<std::string> places;
    for (int output = 0; output < displays; ++output) {
        const auto place = placed(output, output * kWidth, 0);
        places.insert(places.end(), place.begin(), place.end());
    }
    run("xrandr", places);
}

bool XServer::start(const std::string& display) {
    const std::string directory = directory_.path();
    auto environment = cleanEnvironment();
    // Keeps the server from asking the machine's login manager for a seat.
    environment["DBUS_SYSTEM_BUS_ADDRESS"] = "unix:path=" + directory + "/no-bus";
    environment["HOME"] = directory;
    process_.emplace(serverProgram(),
                     std::vector<std::string>{display, "-displayfd", "1", "-noreset", "-nolisten",
                                              "tcp", "-novtswitch", "-sharevts", "-config",
                                              NOCTURO_XORG_CONFIGURATION, "-configdir", directory,
                                              "-logfile", directory + "/xorg.log"},
                     environment);
    if (!process_->readLine()) {
        return false;
    }
    display_ = display;
    return true;
}

XServer::~XServer() {
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
    fs::remove(lockPath(display_), ignored);
}

void XServer::run(const std::string& program, std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"-display", display_});
    Process tool(program, arguments, cleanEnvironment());
    if (tool.wait() != 0) {
        throw std::runtime_error(program + ": " + tool.errors());
    }
}

void XServer::switchOn(int output) {
    switchOn(output, output * kWidth, 0);
}

void XServer::switchOn(int output, int x, int y) {
    run("xrandr", placed(output, x, y));
}

void XServer::switchOff(int output) {
    run("xrandr", {"--fb", kScreen, "--output", outputCalled(output), "--off"});
}

void XServer::setLayout(const std::string& layouts, const std::string& variants) {
    run("setxkbmap", {"-rules", "evdev", "-model", "pc105", "-layout", layouts, "-variant",
                      variants, "-option", "", "-option", "grp:menu_toggle"});
}

} // namespace nocturo::rig
