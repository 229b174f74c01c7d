#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace nocturo {

struct KeyEvent;

/// A receiver of actions, which are known by name ("toggleGlobalEffect:").
class ActionTarget {
  public:
    virtual ~ActionTarget() = default;

    /// Senders ask this before every action; an action that is not responded to is never sent.
    virtual bool respondsTo(std::string_view action) const = 0;

    /// Performs the action; `object` is whatever was registered with it, or null.
    virtual void perform(std::string_view action, const KeyEvent& event,
                         const std::shared_ptr<void>& object) = 0;

    /// For log lines.
    virtual std::string description() const = 0;
};

} // namespace nocturo
