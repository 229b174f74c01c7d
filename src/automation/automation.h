#pragma once

#include "automation/pauses.h"
#include "automation/who_wins.h"
#include "base/result.h"
#include "base/wall_clock.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string_view>

namespace nocturo {

class NotificationCenter;

/// Posted on the local notification center when another ruling may hold by itself: not by the
/// user's turning of the switch, which whoever turns it acts on.
inline constexpr std::string_view kRulingNotification = "NocturoRulingNotification";

/// What happens by itself, beside the settings, which stay the user's: pauses. Knows who rules what
/// the displays show, and follows the clock with one timer. Main thread only.
class Automation {
  public:
    /// All must outlive this. `stateDirectory` is where a pause outlives the program.
    Automation(NotificationCenter& localCenter, WallClock& clock,
               const std::filesystem::path& stateDirectory);

    /// Goes on where the last run ended. To be called before the launch switches anything.
    void start();

    /// What the displays show if the user has switched the effect so.
    Ruling ruling(bool isSwitchedOn) const;

    /// The user turned the switch: that ends pauses.
    void wasSwitchedByHand();

    /// Begins a pause with an end told in words, as endOfPause() reads them.
    Result<void> pause(std::string_view words);

    /// Begins or ends the pause of programs that run.
    void holdPause(bool held);

    /// Ends all pauses.
    void resume();

    bool isPaused() const { return pauses_.claim().has_value(); }

  private:
    void follow();
    void change();

    NotificationCenter& localCenter_;
    WallClock& clock_;
    Pauses pauses_;
    std::unique_ptr<Timer> timer_;
};

} // namespace nocturo
