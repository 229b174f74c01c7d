#include "automation/rules.h"

#include "automation/word_list.h"
#include "base/run_loop.h"
#include "base/texts/translated.h"
#include "documents/looks.h"
#include "settings/defaults_store.h"
#include "settings/settings_keys.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <strings.h>

namespace nocturo {

namespace {

using namespace std::chrono_literals;

/// A film that leaves the full screen for a moment is to change nothing.
constexpr auto kSettling = 1000ms;

constexpr CGDirectDisplayID kAll = 0;

/// Of Nocturo's own windows, on X servers and under Wayland.
constexpr std::array kOwnPrograms = {"nocturo", "org.nocturo.Nocturo"};

bool isCalled(const std::vector<std::string>& names, const std::string& name) {
    return std::any_of(names.begin(), names.end(), [&](const std::string& each) {
        return strcasecmp(each.c_str(), name.c_str()) == 0;
    });
}

} // namespace

std::string refusedLookSentence(const std::string& look) {
    return translated(
        "Nobody could read the screens under the look \"%@\"; it means off until it is "
        "changed.",
        {look});
}

Rules::Rules(DefaultsStore& defaults, Looks& looks, const std::set<std::string>& refusedLooks,
             RunLoop& runLoop, std::function<void()> changed)
    : defaults_(defaults), looks_(looks), refusedLooks_(refusedLooks), runLoop_(runLoop),
      changed_(std::move(changed)) {}

Rules::~Rules() = default;

void Rules::setSources(RuleSources sources) {
    sources_ = std::move(sources);
    read();
}

void Rules::stopListening() {
    foreground_.reset();
    games_.reset();
    settling_.reset();
    sources_ = {};
}

std::unique_ptr<Foreground> Rules::follow(std::function<void()> changed) const {
    auto followed = sources_.foreground ? sources_.foreground(false, std::move(changed)) : nullptr;
    return followed != nullptr && followed->isTold() ? std::move(followed) : nullptr;
}

bool Rules::canSeeWindows() const {
    if (foreground_ != nullptr) {
        return foreground_->isTold();
    }
    return follow([] {}) != nullptr;
}

void Rules::read() {
    rules_.clear();
    isInUse_ = defaults_.boolForKey(kUseRules);
    for (const std::string& words : wordsOf(defaults_, kRules)) {
        if (rules_.size() == kMostRules) {
            break;
        }
        ReadRule& read = rules_.emplace_back();
        read.words = words;
        read.rule = ruleFromWords(words);
        if (!read.rule) {
            read.problem = noRuleSentence(words);
        } else if (!read.rule->look.empty() && looks_.named(read.rule->look) == nullptr) {
            read.problem = translated("There is no look \"%@\".", {read.rule->look});
            read.rule.reset();
        }
    }
    const bool anyHeld = anyHolds();
    settling_.reset(); // what held until a moment ago are other rules
    listen();
    seen_ = held();
    holding_ = seen_;
    if (anyHeld || anyHolds()) {
        changed_();
    }
}

bool Rules::isAbout(Rule::When when) const {
    return isInUse_ && std::any_of(rules_.begin(), rules_.end(), [&](const ReadRule& each) {
               return each.rule && each.rule->when == when;
           });
}

void Rules::listen() {
    const bool filling = isAbout(Rule::When::fullscreen);
    const bool windows = filling || isAbout(Rule::When::program);
    if (!windows || filling != followsFilling_) {
        foreground_.reset();
    }
    followsFilling_ = filling;
    if (windows && foreground_ == nullptr && sources_.foreground) {
        foreground_ = sources_.foreground(filling, [this] { look(); });
    }
    if (!isAbout(Rule::When::game)) {
        games_.reset();
    } else if (games_ == nullptr && sources_.games) {
        games_ = sources_.games([this] { look(); });
    }
}

void Rules::setAsking(bool asking) {
    isAsking_ = asking;
    look();
}

std::set<Rules::Held> Rules::held() {
    std::set<Held> held;
    const InFront inFront = foreground_ != nullptr ? foreground_->inFront() : InFront();
    const bool isOwn = std::any_of(kOwnPrograms.begin(), kOwnPrograms.end(), [&](const char* own) {
        return isCalled(inFront.programs, own);
    });
    if (!isAsking_ || !isOwn) { // or the question would end the rule that it is about, and itself
        programs_ = inFront.programs;
    }
    const bool areGames = games_ != nullptr && games_->areRunning();
    for (std::size_t i = 0; isInUse_ && i < rules_.size(); ++i) {
        const auto& rule = rules_[i].rule;
        if (!rule) {
            continue;
        }
        switch (rule->when) {
        case Rule::When::fullscreen:
            for (const CGDirectDisplayID display : inFront.filled) {
                held.emplace(i, display);
            }
            break;
        case Rule::When::program:
            if (isCalled(programs_, rule->program)) {
                held.emplace(i, kAll);
            }
            break;
        case Rule::When::game:
            if (areGames) {
                held.emplace(i, kAll);
            }
            break;
        }
    }
    return held;
}

void Rules::look() {
    auto seen = held();
    if (seen == seen_) {
        return;
    }
    seen_ = std::move(seen);
    auto holding = seen_;
    holding.insert(holding_.begin(), holding_.end());
    settling_.reset();
    if (holding != seen_) {
        settling_ = runLoop_.scheduleTimer(kSettling, [this] {
            settling_.reset();
            holding_ = seen_;
            changed_();
        });
    }
    if (holding != holding_) {
        holding_ = std::move(holding);
        changed_();
    }
}

std::optional<Claim> Rules::claim(CGDirectDisplayID display) const {
    for (const auto& [index, where] : holding_) {
        if (where == kAll || where == display) {
            const ReadRule& read = rules_[index];
            const std::string look = isAmongRefused(*read.rule) ? "" : read.rule->look;
            return Claim{!look.empty(), look, {}, read.words};
        }
    }
    return std::nullopt;
}

bool Rules::mayOthersSwitchOn() const {
    const auto rules = listed();
    return isInUse_ && std::any_of(rules.begin(), rules.end(), [](const ListedRule& each) {
               return switchesOn(each.words) && !each.holds && each.problem.empty();
           });
}

void Rules::displaysDidChange() {
    if (foreground_ != nullptr) {
        foreground_->displaysDidChange();
        look();
    }
}

std::vector<ListedRule> Rules::listed() const {
    std::vector<ListedRule> list;
    const bool isBlind =
        isInUse_ && sources_.foreground && (foreground_ == nullptr || !foreground_->isTold());
    for (std::size_t i = 0; i < rules_.size(); ++i) {
        const ReadRule& read = rules_[i];
        ListedRule& told = list.emplace_back();
        told.words = read.words;
        told.problem = read.problem;
        if (read.rule && isAmongRefused(*read.rule)) {
            told.problem = refusedLookSentence(read.rule->look);
        }
        if (read.rule && read.rule->when != Rule::When::game && isBlind) {
            told.problem = translated("This desktop does not tell which window is in front.");
        }
        for (const auto& [index, where] : holding_) {
            if (index == i) {
                told.holds = true;
                if (where != kAll) {
                    told.filled.insert(where);
                }
            }
        }
    }
    return list;
}

} // namespace nocturo
