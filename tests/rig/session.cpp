#include "rig/session.h"

#include <fstream>
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
    environment_["DBUS_SYSTEM_BUS_ADDRESS"] = "unix:path=" + (home_.path() / "no-bus").string();
    environment_["XDG_SESSION_TYPE"] = "x11";
    environment_["QT_QPA_PLATFORM"] = "offscreen";
    const std::pair<const char*, fs::path> directories[] = {
        {"XDG_CONFIG_HOME", home_.path() / "config"}, {"XDG_DATA_HOME", home_.path() / "data"},
        {"XDG_STATE_HOME", home_.path() / "state"},   {"XDG_CACHE_HOME", home_.path() / "cache"},
        {"XDG_RUNTIME_DIR", runtimeDirectory()},
    };
    for (const auto& [name, path] : directories) {
        fs::create_directory(path);
        fs::permissions(path, fs::perms::owner_all);
        environment_[name] = path;
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
    std::ofstream(settingsFile()) << "<plist version=\"1.0\"><dict>" << elements
                                  << "</dict></plist>";
}

SessionBus& Session::systemBus() {
    if (!systemBus_) {
        systemBus_.emplace();
        environment_["DBUS_SYSTEM_BUS_ADDRESS"] = systemBus_->address();
    }
    return *systemBus_;
}

// The distribution's own interpreter, which its packages of modules are for.
std::unique_ptr<Process> Session::startMock(SessionBus& bus, const std::string& name,
                                            const std::vector<std::string>& arguments) {
    std::vector<std::string> words = {"-m", "dbusmock"};
    words.insert(words.end(), arguments.begin(), arguments.end());
    auto mock = start("/usr/bin/python3", words);
    if (!bus.waitForName(name, *mock)) {
        mock->signal(9);
        mock->wait();
        throw std::runtime_error("dbusmock did not come up: " + mock->errors());
    }
    return mock;
}

fs::path Session::settingsFile() const {
    return home_.path() / "config" / "nocturo" / "settings.plist";
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

std::unique_ptr<Process> Session::startNocturo(const std::vector<std::string>& arguments) {
    auto nocturo = start("nocturo", arguments);
    if (!bus_.waitForName("org.nocturo.Nocturo", *nocturo)) {
        nocturo->signal(9);
        nocturo->wait();
        throw std::runtime_error("nocturo did not come up: " + nocturo->errors());
    }
    return nocturo;
}

} // namespace nocturo::rig
