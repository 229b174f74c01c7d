#pragma once

#include <map>
#include <string>
#include <string_view>

namespace nocturo {

class NotificationCenter;

/// Brings together what the sources say about the screen saver: one start is posted on the
/// distributed center when the first of them turns active, one stop when the last turns inactive.
class ScreenSaverState {
  public:
    explicit ScreenSaverState(NotificationCenter& distributedCenter);

    /// What the source `name` says. A source exists from the first time it speaks.
    void setActive(std::string_view name, bool active);

    /// The source does not exist any more, so it is not active either.
    void forget(std::string_view name);

    /// Whether the session is locked; it stands for the screen saver only while no source exists.
    void setSessionLocked(bool locked);

  private:
    void tell();

    NotificationCenter& distributedCenter_;
    std::map<std::string, bool, std::less<>> sources_; // active or not, by name
    bool sessionLocked_ = false;
    bool toldActive_ = false;
};

} // namespace nocturo
