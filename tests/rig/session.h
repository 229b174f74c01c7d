#pragma once

#include "rig/process.h"
#include "rig/session_bus.h"
#include "rig/x_client.h"
#include "rig/x_server.h"
#include "unit/temporary_directory.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace nocturo::rig {

/// What a program that ran to its end left. An exit of -1 means that it did not end in time.
struct RunResult {
    int exit = -1;
    std::string output;
    std::string errors;
};

/// What Nocturo says where no effect is selected and nobody can be asked.
inline const std::string kNoEffectSentence = "nocturo.app: No effect has been chosen.\n";

/// A desktop session for a test: home, settings and runtime directories, session bus and X server,
/// all its own. The programs that were built are found by name, others through PATH.
class Session {
  public:
    /// With 0 displays there is no X server.
    explicit Session(int displays = 4);

    XServer& server() { return *server_; }
    SessionBus& bus() { return bus_; }

    /// What programs started from the first call on find as the system bus; without one, there is
    /// none for them.
    SessionBus& systemBus();

    /// Starts a stand-in for services of the desktop (python3-dbusmock) with its arguments, and
    /// waits until it owns `name` on the bus.
    std::unique_ptr<Process> startMock(SessionBus& bus, const std::string& name,
                                       std::vector<std::string> arguments);

    /// Programs started from then on show their windows on the X server. Before, they draw them
    /// into memory, and nocturo answers its own questions.
    void showWindows();

    /// Replaces the settings of a Nocturo that does not run by the elements of a property list's
    /// dictionary, as XML.
    void writeSettings(const std::string& elements) const;

    /// What programs of this session are started with; tests may change it.
    Environment& environment() { return environment_; }
    std::filesystem::path settingsFile() const;
    std::filesystem::path runtimeDirectory() const { return home_ / "RUNTIME"; }

    /// Runs a program to its end, which must not need input.
    RunResult run(const std::string& program, const std::vector<std::string>& arguments = {},
                  Milliseconds timeout = kPatience);

    /// Starts a program without waiting for anything.
    std::unique_ptr<Process> start(const std::string& program,
                                   const std::vector<std::string>& arguments = {});

    /// Starts nocturo and waits until it answers on the bus. Throws std::runtime_error with what it
    /// said when it does not come up.
    std::unique_ptr<Process> startNocturo(const std::vector<std::string>& arguments = {});

  private:
    std::unique_ptr<Process> startOwner(SessionBus& bus, const std::string& name,
                                        const std::string& program,
                                        const std::vector<std::string>& arguments);

    TemporaryDirectory home_;
    SessionBus bus_;
    std::optional<SessionBus> systemBus_;
    std::optional<XServer> server_;
    Environment environment_;
};

} // namespace nocturo::rig
