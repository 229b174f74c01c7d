#include "bus/told_state.h"

#include "app/app_controller.h"
#include "app/disturbance_watch.h"
#include "automation/automation.h"
#include "displays/affected_screen_set.h"
#include "displays/display_functions.h"
#include "displays/display_names.h"
#include "documents/chosen_look.h"
#include "documents/looks.h"
#include "effects/color_filter_effect.h"
#include "effects/dim_effect.h"
#include "effects/effect_choices.h"
#include "hotkeys/hot_key_center.h"
#include "hotkeys/hot_key_text.h"
#include "hotkeys/key_naming.h"
#include "hotkeys/saved_hot_key.h"
#include "settings/defaults_store.h"
#include "settings/settings_keys.h"
#include "settings/settings_table.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace nocturo {

namespace {

std::string toldObstacle(Obstacle obstacle) {
    switch (obstacle) {
    case Obstacle::none:
        break;
    case Obstacle::heldByOther:
        return "held-by-other";
    case Obstacle::takesNoProfile:
        return "takes-no-profile";
    case Obstacle::highDynamicRange:
        return "high-dynamic-range";
    case Obstacle::refused:
        return "refused";
    }
    return {};
}

std::int64_t endOf(const Ruling& ruling) {
    return ruling.until ? ruling.until->time_since_epoch().count() : 0;
}

std::vector<std::string> namesOf(const std::set<CGDirectDisplayID>& displays) {
    std::vector<std::string> names;
    DisplayServices* services = displayServices();
    const auto* online = services != nullptr ? services->onlineDisplays() : nullptr;
    for (std::size_t i = 0; online != nullptr && i < online->size(); ++i) {
        if (displays.contains((*online)[i].id)) {
            names.push_back((*online)[i].name);
        }
    }
    return names;
}

} // namespace

const std::map<std::string_view, ToldState::Property>& ToldState::properties() {
    static constexpr std::span<const std::string_view> kNone;
    static constexpr std::array kEffects = {kGroupEffect};
    static constexpr std::array kSchedules = {kUseSchedule, kSchedule, kPlace};
    static constexpr std::array kRuleSettings = {kUseRules, kRules};
    static constexpr std::array kOfDisplays = {kAffectedScreenSet, kAffectedScreens, kDisplayLooks};
    static constexpr std::array kDim = {kDimLevel.key};
    static constexpr std::array kHue = {kColorFilterHue.key};
    static constexpr std::array kVividness = {kColorFilterVividness.key};
    static const std::vector<std::string_view> all = [] {
        std::vector<std::string_view> keys;
        for (const Setting& setting : settingsTable()) {
            keys.push_back(setting.key);
        }
        return keys;
    }();
    static const std::map<std::string_view, Property> table = {
        {"Active", {&ToldState::active, kNone}},
        {"Paused", {&ToldState::paused, kNone}},
        {"Ruler", {&ToldState::ruler, kNone}},
        {"RulesUntil", {&ToldState::rulesUntil, kNone}},
        {"RuledLook", {&ToldState::ruledLook, kNone}},
        {"Rule", {&ToldState::rule, kNone}},
        {"Schedule", {&ToldState::schedule, kSchedules}},
        {"Rules", {&ToldState::rules, kRuleSettings}},
        {"DisplayServices", {&ToldState::displayServicesName, kNone}},
        {"Displays", {&ToldState::displays, kOfDisplays}},
        {"AbsentDisplays", {&ToldState::absentDisplays, kOfDisplays}},
        {"Effects", {&ToldState::effects, kEffects}},
        {"DimLevel", {&ToldState::dimLevel, kDim}},
        {"ColorFilterHue", {&ToldState::colorFilterHue, kHue}},
        {"ColorFilterVividness", {&ToldState::colorFilterVividness, kVividness}},
        {"Temperature", {&ToldState::temperature, kEffectSettings}},
        {"Look", {&ToldState::look, kEffectSettings}},
        {"Looks", {&ToldState::looks, kNone}},
        {"AffectedScreenSet", {&ToldState::affectedScreens, kAffectedScreenSettings}},
        {"HotKey", {&ToldState::hotKey, kHotKeySettings}},
        {"Settings", {&ToldState::settings, all}},
        {"Disturbances", {&ToldState::disturbances, kNone}},
        {"Disturber", {&ToldState::disturber, kNone}}};
    return table;
}

BusValue ToldState::property(std::string_view name) const {
    return (this->*properties().at(name).read)();
}

std::vector<std::string_view> ToldState::names() {
    std::vector<std::string_view> all;
    for (const auto& [name, property] : properties()) {
        all.push_back(name);
    }
    return all;
}

std::vector<std::string_view> ToldState::namesConcernedBy(const Subjects& settings) {
    std::vector<std::string_view> concerned;
    for (const auto& [name, property] : properties()) {
        if (settings.containAnyOf(property.settings)) {
            concerned.push_back(name);
        }
    }
    return concerned;
}

BusValue ToldState::active() const {
    return controller_.effectActive();
}

BusValue ToldState::paused() const {
    return controller_.isPaused();
}

BusValue ToldState::ruler() const {
    return controller_.isPausedForScreenSaver() ? std::string("screen-saver")
                                                : std::string(nameOf(controller_.ruling().by));
}

BusValue ToldState::rulesUntil() const {
    return controller_.isPausedForScreenSaver() ? std::int64_t{0} : endOf(controller_.ruling());
}

BusValue ToldState::ruledLook() const {
    return controller_.isPausedForScreenSaver() ? std::string() : controller_.ruling().look;
}

BusValue ToldState::rule() const {
    return controller_.isPausedForScreenSaver() ? std::string() : controller_.ruling().rule;
}

BusValue ToldState::rules() const {
    std::vector<BusDictionary> list;
    for (const ListedRule& rule : automation_.rules().listed()) {
        list.push_back({{"rule", rule.words},
                        {"holds", rule.holds},
                        {"screens", namesOf(rule.filled)},
                        {"problem", rule.problem}});
    }
    return list;
}

BusValue ToldState::schedule() const {
    std::vector<BusDictionary> list;
    for (const ListedPoint& point : automation_.listedPoints()) {
        const std::int64_t next = point.next ? point.next->time_since_epoch().count() : 0;
        list.push_back({{"point", point.words}, {"next", next}, {"problem", point.problem}});
    }
    return list;
}

BusValue ToldState::displayServicesName() const {
    const DisplayServices* services = displayServices();
    return services != nullptr ? std::string(services->name()) : std::string();
}

BusValue ToldState::displays() const {
    std::vector<BusDictionary> list;
    DisplayServices* services = displayServices();
    const auto* online = services != nullptr ? services->onlineDisplays() : nullptr;
    if (online == nullptr) {
        return list;
    }
    const std::vector<double> affected = affectedScreenSet(defaults_);
    const auto& controllers = controller_.screenControllers();
    const auto driven = std::min<std::size_t>(online->size(), kZQMaxDisplays);
    for (std::size_t i = 0; i < driven; ++i) {
        const DisplayInfo& info = (*online)[i];
        const bool inSet =
            affected.empty() || std::find(affected.begin(), affected.end(),
                                          static_cast<double>(info.id)) != affected.end();
        const bool applied =
            controllers && std::any_of(controllers->begin(), controllers->end(), [&](auto& each) {
                return each->screenID() == info.id && each->hasCurve() && info.rampSize != 0 &&
                       info.obstacle == Obstacle::none;
            });
        const Ruling ruling = controller_.ruling(info.id);
        list.push_back({{"number", static_cast<std::int32_t>(i) + 1},
                        {"id", info.id},
                        {"name", info.name},
                        {"monitor", DisplayNames::shared().monitorOf(info.id)},
                        {"main", info.main},
                        {"rampSize", static_cast<std::uint32_t>(info.rampSize)},
                        {"affected", inSet},
                        {"applied", applied},
                        {"heldByOther", info.obstacle == Obstacle::heldByOther},
                        {"obstacle", toldObstacle(info.obstacle)},
                        {"on", ruling.isOn},
                        {"ruler", std::string(nameOf(ruling.by))},
                        {"rulesUntil", endOf(ruling)},
                        {"ruledLook", ruling.look},
                        {"rule", ruling.rule},
                        {"look", automation_.lookOfDisplay(info.id)}});
    }
    return list;
}

BusValue ToldState::absentDisplays() const {
    std::vector<BusDictionary> list;
    DisplayServices* services = displayServices();
    const auto* online = services != nullptr ? services->onlineDisplays() : nullptr;
    if (online == nullptr) {
        return list;
    }
    const auto add = [&](CGDirectDisplayID display, bool isAffected) {
        list.push_back({{"id", display},
                        {"name", DisplayNames::shared().nameOf(display)},
                        {"affected", isAffected},
                        {"look", automation_.lookOfDisplay(display)}});
    };
    const auto affected = absentAffectedDisplays(defaults_, *online);
    for (const CGDirectDisplayID display : affected) {
        add(display, true);
    }
    for (const auto& [display, look] : automation_.displayLooks()) {
        const bool isThere = std::ranges::find(*online, display, &DisplayInfo::id) != online->end();
        if (!isThere && std::ranges::find(affected, display) == affected.end()) {
            add(display, affectedScreenSet(defaults_).empty());
        }
    }
    return list;
}

BusValue ToldState::effects() const {
    std::vector<std::string> names; // whatever else a damaged list holds is left out
    const PropertyValue value = effectiveValue(defaults_, *settingNamed(NDGroupEffect::kName));
    if (const auto* list = value.as<PropertyArray>()) {
        for (const PropertyValue& element : *list) {
            if (const auto* name = element.as<std::string>()) {
                names.push_back(*name);
            }
        }
    }
    return names;
}

BusValue ToldState::dimLevel() const {
    return shortestReal(NDDimEffect::level());
}

BusValue ToldState::colorFilterHue() const {
    return shortestReal(NDColorFilterEffect::hue());
}

BusValue ToldState::colorFilterVividness() const {
    return shortestReal(NDColorFilterEffect::vividness());
}

BusValue ToldState::temperature() const {
    return static_cast<std::uint32_t>(std::lround(filterTemperature().value_or(0.0)));
}

BusValue ToldState::look() const {
    return chosenLook_.nameInForce();
}

BusValue ToldState::looks() const {
    std::vector<BusDictionary> list;
    for (const Look& look : chosenLook_.looks().all()) {
        list.push_back({{"name", look.name}, {"title", look.title}, {"own", look.isOwn}});
    }
    return list;
}

BusValue ToldState::affectedScreens() const {
    return affectedScreenIdentifiers(defaults_);
}

BusValue ToldState::hotKey() const {
    const auto saved = NDSavedHotKey(defaults_);
    if (saved == nullptr) {
        return BusDictionary();
    }
    const std::uint16_t keyCode = saved->keyCode();
    const std::uint64_t flags = saved->modifierFlags();
    const auto grant = HXHotKeyCenter::sharedHotKeyCenter().grantWithKeyCode(keyCode, flags);
    BusDictionary told = {{"text", inCapitals(HXStringFromKeyCode(keyCode, flags, layout_))},
                          {"keyCode", static_cast<std::int32_t>(keyCode)},
                          {"modifierFlags", static_cast<std::int64_t>(flags)},
                          {"enabled", defaults_.boolForKey(kUseHotKey)},
                          {"registered", grant && grant->state == HotKeyGrant::State::inForce}};
    if (grant && grant->state != HotKeyGrant::State::inForce) {
        told.emplace("standing", std::string(nameOf(grant->state)));
    }
    if (grant && !grant->trigger.empty()) {
        told.emplace("trigger", grant->trigger);
    }
    if (grant && !grant->configuration.empty()) {
        told.emplace("configuration", grant->configuration);
    }
    return told;
}

BusValue ToldState::settings() const {
    BusDictionary dictionary;
    for (const Setting& setting : settingsTable()) {
        dictionary.emplace(setting.key, busValue(effectiveValue(defaults_, setting)));
    }
    dictionary.insert_or_assign(std::string(kAffectedScreenSet), affectedScreens());
    return dictionary;
}

BusValue ToldState::disturbances() const {
    return disturbances_.count();
}

BusValue ToldState::disturber() const {
    return disturbances_.disturber();
}

} // namespace nocturo
