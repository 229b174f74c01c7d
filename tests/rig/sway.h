#pragma once

#include "rig/process.h"
#include "unit/temporary_directory.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace nocturo::rig {

/// A real sway whose outputs, HEADLESS-1 and so on, exist only in memory and have gamma ramps.
class Sway {
  public:
    /// Why there is none here, in one sentence; empty where there is one.
    static std::string whyMissing();

    /// Throws std::runtime_error with what it said when it does not start.
    explicit Sway(int outputs = 1, std::uint32_t rampSize = 256);
    ~Sway();

    /// The path of its socket, as $WAYLAND_DISPLAY may be.
    std::string display() const { return directory_ / "socket"; }

    /// What swaymsg takes, such as {"create_output"}.
    void tell(const std::vector<std::string>& command);

    /// What the output holds: red, green, blue; nothing while it has the compositor's own ramp.
    std::optional<std::array<std::vector<std::uint16_t>, 3>> ramp(const std::string& output) const;

    /// Has the file of an output that holds a ramp, replaced whenever one is written.
    std::filesystem::path rampDirectory() const { return directory_ / "ramps"; }

    /// Ends it as a crash would.
    void kill();

  private:
    std::unique_ptr<Process> message(const std::vector<std::string>& command) const;

    TemporaryDirectory directory_;
    std::unique_ptr<Process> process_;
};

} // namespace nocturo::rig
