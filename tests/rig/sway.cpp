#include "rig/sway.h"

#include "rig/wait.h"

#include <sys/socket.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <memory>
#include <stdexcept>

namespace nocturo::rig {

namespace fs = std::filesystem;

namespace {

constexpr uid_t kNobody = 65534; // sway refuses to run as root

bool isRoot() {
    return geteuid() == 0;
}

std::unique_ptr<Process> start(const fs::path& directory, Environment environment,
                               std::string program, std::vector<std::string> arguments) {
    if (isRoot()) {
        const std::string nobody = std::to_string(kNobody);
        arguments.insert(arguments.begin(), {"--reuid=" + nobody, "--regid=" + nobody,
                                             "--clear-groups", "--pdeathsig=KILL", program});
        program = "setpriv";
    }
    environment["HOME"] = directory;
    environment["XDG_RUNTIME_DIR"] = directory;
    return std::make_unique<Process>(program, arguments, environment);
}

} // namespace

std::string Sway::whyMissing() {
#ifdef NOCTURO_SWAY_RAMPS
    for (const char* directory : {"/usr/bin", "/usr/local/bin"}) {
        if (fs::exists(fs::path(directory) / "sway")) {
            return {};
        }
    }
    return "sway is not installed.";
#else
    return "Only the sway of wlroots 0.15 can be given ramps.";
#endif
}

#ifndef NOCTURO_SWAY_RAMPS
#define NOCTURO_SWAY_RAMPS ""
#endif

Sway::Sway(int outputs, std::uint32_t rampSize) {
    const fs::path& directory = directory_.path();
    writeText(directory / "config", "output * bg #808080 solid_color\nxwayland disable\n");
    fs::create_directory(directory / "ramps");
    if (isRoot() && (chown(directory.c_str(), kNobody, kNobody) != 0 ||
                     chown((directory / "ramps").c_str(), kNobody, kNobody) != 0)) {
        throw std::runtime_error("The directory cannot be given away.");
    }
    fs::copy_file(NOCTURO_SWAY_RAMPS, directory / "ramps.so");
    auto environment = cleanEnvironment();
    environment.insert({{"WLR_BACKENDS", "headless"},
                        {"WLR_RENDERER", "pixman"},
                        {"WLR_LIBINPUT_NO_DEVICES", "1"},
                        {"WLR_HEADLESS_OUTPUTS", std::to_string(outputs)},
                        {"SWAYSOCK", directory / "ipc"},
                        {"LD_PRELOAD", directory / "ramps.so"},
                        {"NOCTURO_RAMPS", directory / "ramps"},
                        {"NOCTURO_RAMP_SIZE", std::to_string(rampSize)}});
    process_ = start(directory, environment, "sway", {"--config", directory / "config"});
    // Clients may connect before its own messages are listened to.
    waitUntil([&] {
        return message({"-t", "get_outputs"})->wait() == 0 || !process_->isRunning();
    });
    for (const std::string& name : namesIn(directory)) {
        if (name.starts_with("wayland-") && !name.ends_with(".lock")) {
            fs::create_symlink(name, directory / "socket");
        }
    }
    if (!process_->isRunning() || !fs::exists(directory / "socket")) {
        throw std::runtime_error("sway did not start: " + process_->errors());
    }
}

Sway::~Sway() {
    kill();
}

std::unique_ptr<Process> Sway::message(const std::vector<std::string>& command) const {
    auto environment = cleanEnvironment();
    environment["SWAYSOCK"] = directory_ / "ipc";
    return start(directory_.path(), environment, "swaymsg", command);
}

void Sway::tell(const std::vector<std::string>& command) {
    const auto tool = message(command);
    if (tool->wait() != 0) {
        throw std::runtime_error("swaymsg: " + tool->output() + tool->errors());
    }
}

std::optional<std::array<std::vector<std::uint16_t>, 3>>
Sway::ramp(const std::string& output) const {
    const std::string bytes = readText(directory_.path() / "ramps" / output);
    const std::size_t size = bytes.size() / sizeof(std::uint16_t) / 3;
    if (size == 0) {
        return std::nullopt;
    }
    std::array<std::vector<std::uint16_t>, 3> channels;
    const char* from = bytes.data();
    for (auto& channel : channels) {
        channel.resize(size);
        std::copy_n(from, size * sizeof(std::uint16_t), reinterpret_cast<char*>(channel.data()));
        from += size * sizeof(std::uint16_t);
    }
    return channels;
}

void Sway::kill() {
    process_->signal(SIGKILL);
    process_->wait();
}

} // namespace nocturo::rig
