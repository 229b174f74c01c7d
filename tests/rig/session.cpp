#include "rig/session.h"

#include <stdexcept>

namespace nocturo::rig {

namespace fs = std::filesystem;

namespace {

std::string programPath(const std::string& program) {
    const fs::path built = fs::path(NOCTURO_BIN_DIR) / program;
    return program.find('/') == std::string::npos && fs::exists(built) ? built.string() : program;
}

} // namespace

Session::Session(int displays) : environment_(cleanEnvironment()) {
    environment_["HOME"] = home_.path();
    environment_["DBUS_SESSION_BUS_ADDRESS"] = bus_.address();
    environment_["DBUS_SYSTEM_BUS_ADDRESS"] = "unix:path=" + (home_ / "no-bus").string();
    environment_["XDG_SESSION_TYPE"] = "x11";
    environment_["QT_QPA_PLATFORM"] = "offscreen";
    for (const std::string name : {"CONFIG", "DATA", "STATE", "CACHE", "RUNTIME"}) {
        const fs::path path = home_ / name;
        fs::create_directory(path);
        fs::permissions(path, fs::perms::owner_all);
        environment_["XDG_" + name + (name == "RUNTIME" ? "_DIR" : "_HOME")] = path;
    }
    if (displays > 0) {
        server_.emplace(displays);
        environment_["DISPLAY"] = server_->display();
    }
}

void Session::showWindows() {
    environment_.erase("QT_QPA_PLATFORM");
}

void Session::writeSettings(const std::string& elements) const {
    fs::create_directories(settingsFile().parent_path());
    writeText(settingsFile(), "<plist version=\"1.0\"><dict>" + elements + "</dict></plist>");
}

SessionBus& Session::systemBus() {
    if (!systemBus_) {
        systemBus_.emplace();
        environment_["DBUS_SYSTEM_BUS_ADDRESS"] = systemBus_->address();
    }
    return *systemBus_;
}

fs::path Session::settingsFile() const {
    return home_ / "CONFIG/nocturo/settings.plist";
}

std::unique_ptr<Process> Session::start(const std::string& program,
                                        const std::vector<std::string>& arguments) {
    return std::make_unique<Process>(programPath(program), arguments, environment_);
}

RunResult Session::run(const std::string& program, const std::vector<std::string>& arguments,
                       Milliseconds timeout) {
    const auto process = start(program, arguments);
    const int exit = process->wait(timeout).value_or(-1);
    return {exit, process->output(), process->errors()};
}

std::unique_ptr<Process> Session::startOwner(SessionBus& bus, const std::string& name,
                                             const std::string& program,
                                             const std::vector<std::string>& arguments) {
    auto owner = start(program, arguments);
    if (!bus.waitForName(name, *owner)) {
        throw std::runtime_error(name + " did not come up: " + owner->errors());
    }
    return owner;
}

std::unique_ptr<Process> Session::startNocturo(const std::vector<std::string>& arguments) {
    return startOwner(bus_, "org.nocturo.Nocturo", "nocturo", arguments);
}

// By the distribution's own interpreter, which its packages of modules are for.
std::unique_ptr<Process> Session::startMock(SessionBus& bus, const std::string& name,
                                            std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"-m", "dbusmock"});
    return startOwner(bus, name, "/usr/bin/python3", arguments);
}

} // namespace nocturo::rig
