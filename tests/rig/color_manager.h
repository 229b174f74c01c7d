#pragma once

#include "rig/process.h"
#include "rig/session_bus.h"

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>

struct sd_bus;

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
    struct Close {
        void operator()(sd_bus* bus) const;
    };

    std::string create(const char* method, const std::string& id,
                       const std::map<std::string, std::string>& properties);

    SessionBus bus_;
    std::optional<Process> process_;
    std::unique_ptr<sd_bus, Close> client_;      // displays and profiles are gone with it
    std::map<std::string, std::string> devices_; // object paths by connector
    int profiles_ = 0;
};

} // namespace nocturo::rig
