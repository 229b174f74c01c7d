#pragma once

#include "automation/pauses.h"
#include "automation/rules.h"
#include "automation/schedule.h"
#include "automation/who_wins.h"
#include "base/result.h"
#include "base/wall_clock.h"
#include "displays/display_services.h"
#include "documents/effect_document.h"

#include <cstddef>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace nocturo {

class DefaultsStore;
class Looks;
class NDEffect;
class NotificationCenter;
class RunLoop;
class Subjects;

/// Posted on the local notification center when another ruling may hold by itself: not by the
/// user's turning of the switch, which whoever turns it acts on.
inline constexpr std::string_view kRulingNotification = "NocturoRulingNotification";

/// A point of the schedule as it is told.
struct ListedPoint {
    std::string words;            // as the setting has it
    std::optional<Moment> next{}; // nothing where it does not come, or the schedule is not in use
    std::string problem{};        // why it never comes, a sentence of the user's language
};

/// What happens by itself, beside the settings, which stay the user's: pauses, rules and the
/// schedule. Knows who rules what the displays show, and follows the clock with one timer. Main
/// thread only.
class Automation {
  public:
    /// All must outlive this. `stateDirectory` is where a pause outlives the program.
    Automation(DefaultsStore& defaults, NotificationCenter& localCenter, WallClock& clock,
               RunLoop& runLoop, Looks& looks, const std::filesystem::path& stateDirectory);
    ~Automation();
    Automation(const Automation&) = delete;
    Automation& operator=(const Automation&) = delete;

    /// Goes on where the last run ended. To be called before the launch switches anything.
    void start();

    /// What a display shows if the user has switched the effect so. 0 is a display of which nobody
    /// says anything in particular.
    Ruling ruling(bool isSwitchedOn, CGDirectDisplayID display = 0) const;

    /// What applies the look of a ruling; null where it has none. The same one as long as the look
    /// stays as it is.
    std::shared_ptr<NDEffect> effectOf(const Ruling& ruling);

    /// As people read it; empty where it has none.
    std::string titleOfLook(const Ruling& ruling) const;

    /// The user turned the switch: that ends pauses, and holds until the schedule's next point and
    /// as long as the same rules hold.
    void wasSwitchedByHand(bool isOn);

    /// Begins a pause with an end told in words, as endOfPause() reads them; "until next" is the
    /// next point of the schedule, and "until sunrise" or "until sunset-00:30" what the sun does
    /// next.
    Result<void> pause(std::string_view words);

    /// Begins the pause of programs that run, the last of which may be a command in words; and ends
    /// it.
    void holdPause(const std::string& command);
    void releasePause();

    /// Ends all pauses.
    void resume();

    Rules& rules() { return rules_; }
    const Rules& rules() const { return rules_; }

    /// Nobody could read the screens under this look of a rule or of the schedule: it means off
    /// until looks, rules or schedule are changed.
    void refuseLook(const std::string& look);

    /// The name of the look that a display has of its own; empty where it has none.
    std::string lookOfDisplay(CGDirectDisplayID display) const;

    /// All of them, whether the displays are there or not.
    const std::map<CGDirectDisplayID, std::string>& displayLooks() const { return displayLooks_; }

    /// Every point, in the setting's order.
    const std::vector<ListedPoint>& listedPoints() const { return listed_; }

    /// By the clock that it follows.
    Moment now() const { return clock_.now(); }

    /// Whether a point of the schedule has come just now: not one that was slept through, or that
    /// was there before the schedule was changed.
    bool isAtPoint() const;

  private:
    struct AppliedLook {
        EffectDocument effects;
        std::shared_ptr<NDEffect> effect;
    };

    void readDisplayLooks();
    Claims claims(bool isSwitchedOn, CGDirectDisplayID display) const;
    std::optional<Claim> scheduleClaim() const;
    Result<std::optional<Moment>> endOf(std::string_view words);
    void settingsDidChange(const Subjects& settings);
    void effectsWereChosen();
    void readSchedule();
    std::string problemWith(const SchedulePoint& point);
    void explain(const std::vector<std::string>& words, const std::string& consequence);
    void lookAtClock();
    void forgiveLooks();
    void awaitNext();
    void change();

    DefaultsStore& defaults_;
    NotificationCenter& localCenter_;
    WallClock& clock_;
    Looks& looks_;
    Pauses pauses_;
    HandsClaim hand_;                    // over the schedule
    HandsClaim handOverRule_;            // for displays where one holds
    std::set<std::string> refusedLooks_; // names
    std::optional<Place> place_;
    std::optional<Schedule> schedule_; // while it is in use, of the points that can come
    std::vector<std::size_t> indexes_; // of its points in the setting
    Schedule::Around around_;
    std::vector<ListedPoint> listed_;
    std::set<std::string> explained_; // words that were logged, alone or with others
    std::map<std::string, AppliedLook> appliedLooks_;       // by name
    std::map<CGDirectDisplayID, std::string> displayLooks_; // names of looks that there are
    std::unique_ptr<Timer> timer_;
    Rules rules_;
};

} // namespace nocturo
