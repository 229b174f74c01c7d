#pragma once

#include "app/screen_colors.h"
#include "base/notification_center.h"
#include "displays/burst_settler.h"

#include <memory>
#include <optional>

namespace nocturo {

class DefaultsStore;
class NDAppController;
class RunLoop;
class Timer;

/// Asks "Keep these colors?" when no display that the effect is on can be read, whoever brought
/// that about, and goes back when nobody says so within ten seconds: to the last settings that
/// could be read or were kept, or to no effect where there are none; looks of rules and of the
/// schedule mean off from then on. Where nobody can see the question the seconds alone pass. Colors
/// that were kept are not asked about again until they change.
class KeepColors {
  public:
    static constexpr int kSeconds = 10;

    /// All must outlive this. Nothing is judged before the effect is switched for the first time.
    KeepColors(NDAppController& controller, DefaultsStore& defaults,
               NotificationCenter& localCenter, RunLoop& runLoop);
    ~KeepColors();
    KeepColors(const KeepColors&) = delete;
    KeepColors& operator=(const KeepColors&) = delete;

    /// The colors that are in force now are wanted, readable or not.
    void keep();

    /// Whether the question is open.
    bool isAsking() const { return countdown_ != nullptr; }

  private:
    void judge();
    void considerAsking();
    void ask();
    void showSeconds();
    void tick();
    void answer(bool keepThem);
    void goBack();
    void tellRules(bool asking);
    void withdraw();

    struct State {
        ScreenColors colors;
        std::string look{}; // of whoever rules over the settings' effects; empty for nobody
        bool active = false;
        bool operator==(const State&) const = default;
        bool looksAs(const State& other) const {
            return colors == other.colors && look == other.look;
        }
    };
    State now() const;

    NDAppController& controller_;
    DefaultsStore& defaults_;
    NotificationCenter& localCenter_;
    RunLoop& runLoop_;
    BurstSettler settler_; // changes that belong together, as a document's, are judged once
    std::optional<State> accepted_;   // read or kept last
    std::optional<State> questioned_; // while the question is open
    std::optional<State> kept_;
    std::unique_ptr<Timer> countdown_;
    int secondsLeft_ = 0;
    bool waitsForPointer_ = false;
    bool wasSwitched_ = false;
};

} // namespace nocturo
