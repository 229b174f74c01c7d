#pragma once

#include <functional>
#include <memory>
#include <string>

namespace nocturo {

class DefaultsStore;
class NDAppController;
class NotificationCenter;
class RunLoop;
class Timer;

/// Tells the state sentence: from the event loop soon after it is made, and again whenever it is
/// another. Main thread only.
class StateTeller {
  public:
    /// All must outlive the teller.
    StateTeller(const NDAppController& controller, const DefaultsStore& defaults,
                NotificationCenter& localCenter, RunLoop& runLoop,
                std::function<void(const std::string& sentence)> told);
    ~StateTeller();
    StateTeller(const StateTeller&) = delete;
    StateTeller& operator=(const StateTeller&) = delete;

  private:
    void tellSoon();
    void tell();

    const NDAppController& controller_;
    const DefaultsStore& defaults_;
    NotificationCenter& localCenter_;
    RunLoop& runLoop_;
    const std::function<void(const std::string& sentence)> told_;
    std::unique_ptr<Timer> soon_; // many changes are told as one
    std::string sentence_;
};

} // namespace nocturo
