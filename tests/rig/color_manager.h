#pragma once

#include "rig/process.h"
#include "rig/session_bus.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string>

namespace nocturo::rig {

/// colord on a system bus of the test's own. What it remembers is kept from the machine's colord.
class ColorManager {
  public:
    /// Throws std::runtime_error, with what is missing, when it cannot be run here.
    ColorManager();

    const std::string& busAddress() const { return bus_.address(); }

    /// Makes a profile file the one of the display on a connector, which is announced if it is new.
    void assign(const std::string& connector, const std::filesystem::path& profile);

    /// Takes the display away.
    void remove(const std::string& connector);

  private:
    SessionBus bus_;
    std::optional<Process> process_;
    std::map<std::string, std::string> devices_; // object paths by connector
};

} // namespace nocturo::rig
