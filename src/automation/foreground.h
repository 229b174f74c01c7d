#pragma once

#include "displays/display_services.h"

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace nocturo {

/// What a desktop tells of its windows.
struct InFront {
    std::vector<std::string> programs;    // what the program in front is called; empty for none
    std::set<CGDirectDisplayID> filled{}; // displays that a window fills
    bool operator==(const InFront&) const = default;
};

/// Follows the windows of a desktop while it lives. What windows say of themselves may be wrong in
/// any way.
class Foreground {
  public:
    virtual ~Foreground() = default;

    /// What was told last. False where nobody tells it now, such as a window manager that ended.
    virtual bool isTold() const = 0;
    virtual const InFront& inFront() const = 0;

    /// Displays came, went or moved.
    virtual void displaysDidChange() = 0;
};

/// Follows whether games ask for the machine to themselves, while it lives.
class Games {
  public:
    virtual ~Games() = default;
    virtual bool areRunning() const = 0;
};

/// Where rules hear of what goes on; each may be missing, and may make nothing where the desktop
/// does not tell. `changed` is called from the event loop, as long as what was made lives.
struct RuleSources {
    /// Without `filling` no display is ever told as filled.
    std::function<std::unique_ptr<Foreground>(bool filling, std::function<void()> changed)>
        foreground;
    std::function<std::unique_ptr<Games>(std::function<void()> changed)> games;
};

} // namespace nocturo
