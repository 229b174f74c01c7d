#pragma once

#include "automation/foreground.h"
#include "automation/who_wins.h"
#include "settings/rule_words.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace nocturo {

class DefaultsStore;
class Looks;
class RunLoop;
class Timer;

/// A rule as it is told.
struct ListedRule {
    std::string words;                    // as the setting has it
    bool holds = false;                   // now, or until a moment ago
    std::set<CGDirectDisplayID> filled{}; // for which displays, where it is about one
    std::string problem{};                // why it never holds, a sentence of the user's language
};

/// Says so of a look that is left out because of it, in the user's language.
std::string refusedLookSentence(const std::string& look);

/// The rules of the settings and which of them hold. A rule holds as soon as what it is about
/// comes, and until nothing has changed for a second after that went. Nothing is listened to that
/// no rule is about. Main thread only.
class Rules {
  public:
    /// All must outlive this. A rule with one of the `refusedLooks` means off. `changed` is called
    /// when others hold.
    Rules(DefaultsStore& defaults, Looks& looks, const std::set<std::string>& refusedLooks,
          RunLoop& runLoop, std::function<void()> changed);
    ~Rules();
    Rules(const Rules&) = delete;
    Rules& operator=(const Rules&) = delete;

    /// Until they are there no rule holds.
    void setSources(RuleSources sources);

    /// Hears of nothing any more; what holds goes on holding. For the end of the program.
    void stopListening();

    /// Follows what is in front as long as what is returned lives, which the sources must outlive;
    /// null where the desktop does not tell of its windows. `changed` is called when that changes.
    std::unique_ptr<Foreground> follow(std::function<void()> changed) const;

    /// Whether the desktop tells of its windows, as far as can be said now.
    bool canSeeWindows() const;

    /// Reads the settings; to be called when they or the looks are others.
    void read();

    /// What the first rule says that holds for the display, or for all where it is 0.
    std::optional<Claim> claim(CGDirectDisplayID display) const;

    bool anyHolds() const { return !holding_.empty(); }

    /// Whether a rule that does not hold now would switch the effect on.
    bool mayOthersSwitchOn() const;

    /// While Nocturo asks something about what a rule shows, windows of its own do not count as in
    /// front of the program that it shows that for.
    void setAsking(bool asking);

    /// Displays came, went or moved.
    void displaysDidChange();

    /// In the setting's order.
    std::vector<ListedRule> listed() const;

  private:
    struct ReadRule {
        std::string words;
        std::optional<Rule> rule; // nothing where it never holds
        std::string problem;
    };
    /// The index of a rule and the display that it holds for, 0 for all.
    using Held = std::pair<std::size_t, CGDirectDisplayID>;

    bool isAbout(Rule::When when) const;
    void listen();
    bool isAmongRefused(const Rule& rule) const { return refusedLooks_.contains(rule.look); }
    std::set<Held> held();
    void look();

    DefaultsStore& defaults_;
    Looks& looks_;
    const std::set<std::string>& refusedLooks_;
    RunLoop& runLoop_;
    std::function<void()> changed_;
    RuleSources sources_;
    std::vector<ReadRule> rules_;
    bool isInUse_ = false;
    bool followsFilling_ = false;
    std::unique_ptr<Foreground> foreground_; // while a rule is about windows
    std::unique_ptr<Games> games_;           // while one is about games
    std::vector<std::string> programs_;      // what the one that counts as in front is called
    bool isAsking_ = false;
    std::set<Held> seen_;    // what holds by what is told
    std::set<Held> holding_; // the same with what held until a moment ago
    std::unique_ptr<Timer> settling_;
};

} // namespace nocturo
