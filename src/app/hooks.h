#pragma once

#include "session/hook_runner.h"

#include <string>

namespace nocturo {

class ChosenLook;
class NDAppController;
class NotificationCenter;

/// Tells the user's hooks of what changes: "active-changed" and "paused" with "off" and "on",
/// "look-changed" with the names of looks, empty for none. Tells from the event loop, once
/// everybody else has acted, and what came to nothing meanwhile not at all. Main thread only.
class Hooks {
  public:
    /// All must outlive the hooks.
    Hooks(NDAppController& controller, ChosenLook& chosenLook, NotificationCenter& localCenter,
          RunLoop& runLoop, std::filesystem::path directory);
    ~Hooks();
    Hooks(const Hooks&) = delete;
    Hooks& operator=(const Hooks&) = delete;

    /// The look of now is where changes begin from.
    void launchDidFinish();

    /// Tells at once of what has changed, for when the event loop has ended.
    void tell();

  private:
    void tellSoon();
    void tell(const char* event, std::string& known, std::string now);

    NDAppController& controller_;
    ChosenLook& chosenLook_;
    NotificationCenter& localCenter_;
    RunLoop& runLoop_;
    HookRunner runner_;
    bool isToTell_ = false;
    bool knowsLook_ = false;
    std::string active_ = "off";
    std::string paused_ = "off";
    std::string look_;
};

} // namespace nocturo
