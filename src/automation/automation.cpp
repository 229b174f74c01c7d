#include "automation/automation.h"

#include "automation/display_looks_setting.h"
#include "automation/schedule_setting.h"
#include "automation/word_list.h"
#include "base/log.h"
#include "base/notification_center.h"
#include "base/notification_names.h"
#include "base/texts/shortened.h"
#include "base/texts/translated.h"
#include "documents/look_effect.h"
#include "documents/looks.h"
#include "effects/group_effect.h"
#include "settings/defaults_store.h"
#include "settings/settings_keys.h"

#include <algorithm>
#include <array>
#include <utility>

namespace nocturo {

namespace {

constexpr std::array kScheduleSettings = {kUseSchedule, kSchedule, kPlace};
constexpr std::array kRuleSettings = {kUseRules, kRules};

bool isOfTheSun(const SchedulePoint& point) {
    return point.anchor != SchedulePoint::Anchor::midnight;
}

/// Of words such as "until sunset-00:30".
std::optional<SchedulePoint> pointOfSun(std::string_view words) {
    constexpr std::string_view kUntil = "until ";
    auto point = words.starts_with(kUntil)
                     ? schedulePoint(std::string(words.substr(kUntil.size())) + " off")
                     : std::nullopt;
    return point && isOfTheSun(*point) ? point : std::nullopt;
}

std::optional<Moment> earlier(std::optional<Moment> one, std::optional<Moment> other) {
    return one && other ? std::min(*one, *other) : one ? one : other;
}

} // namespace

Automation::Automation(DefaultsStore& defaults, NotificationCenter& localCenter, WallClock& clock,
                       RunLoop& runLoop, Looks& looks, const std::filesystem::path& stateDirectory)
    : defaults_(defaults), localCenter_(localCenter), clock_(clock), looks_(looks),
      pauses_(stateDirectory / "pause.plist"),
      rules_(defaults, looks, refusedLooks_, runLoop, [this] {
          handOverRule_ = {};
          change();
      }) {}

Automation::~Automation() {
    localCenter_.removeObserver(this);
}

void Automation::start() {
    pauses_.restore(clock_.now());
    localCenter_.addObserver(this, NSUserDefaultsDidChangeNotification,
                             [this](const Subjects& settings) { settingsDidChange(settings); });
    localCenter_.addObserver(this, kLooksDidChangeNotification, [this] {
        forgiveLooks();
        if (!listed_.empty()) {
            readSchedule();
            change();
        }
        if (!wordsOf(defaults_, kRules).empty()) {
            rules_.read();
        }
        if (!wordsOf(defaults_, kDisplayLooks).empty()) {
            readDisplayLooks();
            change();
        }
    });
    localCenter_.addObserver(this, NSApplicationDidChangeScreenParametersNotification,
                             [this] { rules_.displaysDidChange(); });
    readDisplayLooks();
    readSchedule();
    rules_.read();
}

void Automation::readDisplayLooks() {
    std::vector<std::string> leftOut;
    displayLooks_ = looksOfDisplays(defaults_, looks_,
                                    [&](const std::string& words) { leftOut.push_back(words); });
    explain(leftOut, "gives a display no look; it has the effects of all.");
}

/// Says it once, however many they are.
void Automation::explain(const std::vector<std::string>& words, const std::string& consequence) {
    const std::string* first = nullptr;
    std::size_t others = 0;
    for (const std::string& each : words) {
        if (explained_.insert(each).second) {
            others += first != nullptr ? 1 : 0;
            first = first != nullptr ? first : &each;
        }
    }
    if (first != nullptr) {
        const std::string more = others > 0 ? ", as " + std::to_string(others) + " others," : "";
        logWarning(kLogApp, "\"" + shortened(*first) + "\"" + more + ' ' + consequence);
    }
}

std::string Automation::lookOfDisplay(CGDirectDisplayID display) const {
    const auto found = displayLooks_.find(display);
    return found != displayLooks_.end() ? found->second : std::string();
}

std::optional<Claim> Automation::scheduleClaim() const {
    if (!around_.current) {
        return std::nullopt;
    }
    const std::string& own = schedule_->points()[around_.current->point].look;
    const std::string look = refusedLooks_.contains(own) ? "" : own;
    return Claim{!look.empty(), look,
                 around_.next ? std::optional(around_.next->moment) : std::nullopt};
}

Claims Automation::claims(bool isSwitchedOn, CGDirectDisplayID display) const {
    auto rule = rules_.claim(display);
    return {.hand = rule ? handOverRule_ : hand_,
            .pause = pauses_.claim(),
            .rule = std::move(rule),
            .schedule = scheduleClaim(),
            .look = lookOfDisplay(display),
            .isSwitchedOn = isSwitchedOn};
}

Ruling Automation::ruling(bool isSwitchedOn, CGDirectDisplayID display) const {
    return whoWins(claims(isSwitchedOn, display));
}

std::shared_ptr<NDEffect> Automation::effectOf(const Ruling& ruling) {
    const Look* look = ruling.look.empty() ? nullptr : looks_.named(ruling.look);
    if (look == nullptr) {
        return nullptr;
    }
    AppliedLook& applied = appliedLooks_[look->name];
    if (applied.effect == nullptr || applied.effects != look->effects) {
        applied = {look->effects, std::make_shared<LookEffect>(look->effects)};
    }
    return applied.effect;
}

std::string Automation::titleOfLook(const Ruling& ruling) const {
    const Look* look = ruling.look.empty() ? nullptr : looks_.named(ruling.look);
    return look != nullptr ? look->title : ruling.look;
}

void Automation::wasSwitchedByHand(bool isOn) {
    const auto scheduled = scheduleClaim();
    hand_.isOn = scheduled && scheduled->isOn != isOn ? std::optional(isOn) : std::nullopt;
    if (rules_.anyHolds()) {
        handOverRule_.isOn = isOn;
        handOverRule_.untilRuleEnds = true;
    }
    if (pauses_.end()) {
        awaitNext();
    }
}

void Automation::refuseLook(const std::string& look) {
    refusedLooks_.insert(look);
    lookAtClock();
    change();
}

void Automation::forgiveLooks() {
    if (!std::exchange(refusedLooks_, {}).empty()) {
        lookAtClock();
        change();
    }
}

Result<std::optional<Moment>> Automation::endOf(std::string_view words) {
    const Moment now = clock_.now();
    std::optional<Moment> end;
    if (words == "until next") {
        end = around_.next ? std::optional(around_.next->moment) : std::nullopt;
    } else if (const auto point = pointOfSun(words)) {
        end = Schedule({*point}, placeOfSchedule(defaults_)).next(0, now);
    } else {
        return endOfPause(words, now);
    }
    if (!end) {
        return failed(translated("Nobody knows when that is: \"%@\".", {shortened(words)}));
    }
    return end;
}

Result<void> Automation::pause(std::string_view words) {
    const auto until = endOf(words);
    if (!until) {
        return tl::unexpected(until.error());
    }
    pauses_.begin(*until);
    change();
    return {};
}

void Automation::holdPause(const std::string& command) {
    pauses_.hold(command);
    change();
}

void Automation::releasePause() {
    pauses_.release();
    change();
}

void Automation::resume() {
    if (pauses_.end()) {
        change();
    }
}

void Automation::settingsDidChange(const Subjects& settings) {
    const bool schedule = settings.containAnyOf(kScheduleSettings);
    const bool rules = settings.containAnyOf(kRuleSettings);
    if (schedule || rules) {
        forgiveLooks();
    }
    if (schedule) {
        hand_ = {};
        readSchedule();
        change();
    }
    if (rules) {
        rules_.read();
    }
    if (settings.contain(kDisplayLooks)) {
        readDisplayLooks();
        change();
    }
    if (!schedule && !rules && settings.containAnyOf(kEffectSettings)) {
        effectsWereChosen();
    }
}

void Automation::effectsWereChosen() {
    const bool overSchedule = !hand_.choseEffects && scheduleClaim().value_or(Claim{}).isOn;
    const bool overRule = !handOverRule_.choseEffects && rules_.anyHolds();
    hand_.choseEffects = hand_.choseEffects || overSchedule;
    if (overRule) {
        handOverRule_.choseEffects = handOverRule_.untilRuleEnds = true;
    }
    if (overSchedule || overRule) {
        change();
    }
}

std::string Automation::problemWith(const SchedulePoint& point) {
    if (!point.look.empty() && looks_.named(point.look) == nullptr) {
        return translated("There is no look \"%@\".", {point.look});
    }
    if (isOfTheSun(point) && !place_) {
        return translated("The time zone has no place for the sun; set one with: nocturoctl set "
                          "SchedulePlace \"52.5 13.4\"");
    }
    return {};
}

void Automation::readSchedule() {
    const bool isInUse = defaults_.boolForKey(kUseSchedule);
    const std::vector<std::string> texts = wordsOf(defaults_, kSchedule);
    std::vector<SchedulePoint> points;
    std::vector<std::string> useless;
    place_ = texts.empty() ? std::nullopt : placeOfSchedule(defaults_);
    listed_.clear();
    indexes_.clear();
    for (const std::string& words : texts) {
        if (listed_.size() == kMostSchedulePoints) {
            break;
        }
        const auto point = schedulePoint(words);
        listed_.push_back({words, {}, point ? problemWith(*point) : noPointSentence(words)});
        if (listed_.back().problem.empty()) {
            points.push_back(*point);
            indexes_.push_back(listed_.size() - 1);
        } else if (isInUse) {
            useless.push_back(words);
        }
    }
    explain(useless, "in the schedule changes nothing; nocturoctl schedule tells why.");
    schedule_.reset();
    if (isInUse && !points.empty()) {
        schedule_.emplace(std::move(points), place_);
    }
    lookAtClock();
}

void Automation::lookAtClock() {
    const Moment now = clock_.now();
    pauses_.expire(now);
    const auto around = schedule_ ? schedule_->around(now) : Schedule::Around{};
    if (around.current != around_.current) {
        hand_ = {};
    }
    around_ = around;
    for (std::size_t i = 0; schedule_ && i < indexes_.size(); ++i) {
        ListedPoint& listed = listed_[indexes_[i]];
        const std::string& look = schedule_->points()[i].look;
        listed.next = schedule_->next(i, now);
        listed.problem = refusedLooks_.contains(look) ? refusedLookSentence(look) : "";
    }
}

bool Automation::isAtPoint() const {
    constexpr std::chrono::seconds kLate{2};
    return around_.current && now() - around_.current->moment < kLate;
}

void Automation::awaitNext() {
    const auto pause = pauses_.claim();
    const auto moment = earlier(pause ? pause->until : std::nullopt,
                                around_.next ? std::optional(around_.next->moment) : std::nullopt);
    timer_.reset();
    if (moment) {
        timer_ = clock_.wakeAt(*moment, [this] {
            readSchedule(); // the time zone may be another one, and so its place
            change();
        });
    }
}

void Automation::change() {
    awaitNext();
    localCenter_.post(kRulingNotification);
}

} // namespace nocturo
