#pragma once

#include "rig/process.h"
#include "unit/temporary_directory.h"

#include <optional>
#include <string>
#include <vector>

namespace nocturo::rig {

/// The name of a display that no server on this machine has, such as ":1234".
std::string freeDisplay();

/// A real Xorg on a display number of its own, with up to 16 outputs DUMMY0 to DUMMY15 that exist
/// only in memory. It listens on local sockets only and takes no input device.
class XServer {
  public:
    static constexpr int kWidth = 320; // of every display
    static constexpr int kHeight = 240;

    /// Lights the first `displays` (1 to 16) outputs, side by side. Throws std::runtime_error with
    /// what the server said when it does not start.
    explicit XServer(int displays = 4);
    ~XServer();

    /// Such as ":1234".
    const std::string& display() const { return display_; }

    /// Output number 0 to 15. At its place in the row, unless told otherwise; one that is on moves.
    void switchOn(int output);
    void switchOn(int output, int x, int y);
    /// What unplugging looks like to a client.
    void switchOff(int output);
    /// Runs one of the server's tools, such as xrandr, to its end, which must be success.
    void run(const std::string& program, std::vector<std::string> arguments);
    /// As setxkbmap takes them: "us,ru", "dvorak,". The menu key goes from one to the next.
    void setLayout(const std::string& layouts, const std::string& variants = {});

    void signal(int number) { process_->signal(number); }

    /// Ends the server as a crash would.
    void kill();

  private:
    bool start(const std::string& display);

    TemporaryDirectory directory_;
    std::string display_;
    std::optional<Process> process_;
};

} // namespace nocturo::rig
