#include "settings/settings_table.h"

#include "settings/defaults_store.h"
#include "settings/display_looks.h"
#include "settings/rule_words.h"
#include "settings/schedule_points.h"
#include "settings/selectable_effects.h"
#include "settings/settings_keys.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace nocturo {

namespace {

constexpr std::int64_t kZero = 0; // an exact type: a plain 0 could become any of them

Setting number(const RealSetting& setting, ListedText meaning) {
    return {setting.key, SettingType::real, static_cast<double>(setting.whenAbsent),
            false,       meaning,           SettingRange{setting.lowest, setting.highest}};
}

const std::array<Setting, 24>& rows() {
    using enum SettingType;
    static const std::array<Setting, 24> table = {{
        {kGroupEffect, effectNames, PropertyArray(), true, ListedText("the selected effects")},
        {kActivateAtLaunch, boolean, true, true, ListedText("switch the effect on at every start")},
        {kActivateOnClick, boolean, true, true,
         ListedText("starting Nocturo again toggles the effect")},
        {kContinuouslyApply, boolean, true, true,
         ListedText("while on, apply again every 6 seconds")},
        {kDeactivateForScreenSaver, boolean, true, true,
         ListedText("pause while the screen saver runs")},
        {kUseHotKey, boolean, false, true, ListedText("toggle with the global hot key")},
        {kShowStatusItem, integer, kZero, true, ListedText("1: run as a tray item")},
        {kHotKeyCode, integer, kZero, false, ListedText("virtual key code of the hot key")},
        {kHotKeyModifiers, integer, kZero, false, ListedText("modifier flags of the hot key")},
        {kEffectActive, boolean, false, false,
         ListedText("whether the effect was last switched on")},
        {kAffectedScreenSet, displayNumbers, PropertyArray(), false,
         ListedText("the affected displays; none means all")},
        {kAffectedScreens, integer, kZero, false,
         ListedText("the display last picked; 0 means all")},
        number(kDimLevel, ListedText("dim: -1 black, 0 unchanged, 1 white")),
        number(kColorFilterHue, ListedText("color filter: hue in degrees")),
        number(kColorFilterVividness, ListedText("color filter: strength, 0 to 1")),
        number(kFadeSeconds, ListedText("seconds that a change fades for, 0 to 5")),
        {kUseSchedule, boolean, false, true, ListedText("switch and choose looks by the schedule")},
        {kSchedule, schedulePoints, PropertyArray(), false,
         ListedText("the schedule: times with looks or off")},
        {kPlace, place, std::string(), false,
         ListedText("where the sun is looked at; empty: by the time zone")},
        number(kScheduleFadeMinutes,
               ListedText("minutes that a change by the schedule fades for, 0 to 60")),
        {kUseRules, boolean, true, true, ListedText("switch and choose looks by the rules")},
        {kRules, rules, PropertyArray(), false,
         ListedText("the rules: what is in front, with looks or off")},
        {kDisplayLooks, displayLooks, PropertyArray(), false,
         ListedText("displays by identifier with looks of their own")},
        {kFluxWarned, boolean, false, false, ListedText("the f.lux warning was answered")},
    }};
    return table;
}

using Refusal = std::optional<std::string>;

Refusal problemWithNames(const std::string& key, const PropertyValue& value) {
    const auto* array = value.as<PropertyArray>();
    if (array == nullptr) {
        return translated("\"%@\" takes a list of effects.", {key});
    }
    for (const PropertyValue& element : *array) {
        const auto* name = element.as<std::string>();
        if (name == nullptr) {
            return translated("\"%@\" takes a list of effect names.", {key});
        }
        if (std::none_of(kSelectableEffects.begin(), kSelectableEffects.end(),
                         [&](const auto& effect) { return effect.className == *name; })) {
            return translated("\"%1$@\" takes effects only, and there is no effect \"%2$@\".",
                              {key, *name});
        }
    }
    return std::nullopt;
}

bool isListOfDisplays(const PropertyValue& value) {
    const auto* array = value.as<PropertyArray>();
    return array != nullptr &&
           std::all_of(array->begin(), array->end(), [](const PropertyValue& element) {
               const auto* number = element.as<std::int64_t>();
               return number != nullptr && *number >= std::numeric_limits<std::int32_t>::min() &&
                      *number <= std::numeric_limits<std::int32_t>::max();
           });
}

/// Of a list of texts, about the first of them that `read` makes nothing of.
template <typename Read>
Refusal problemWithTexts(const PropertyArray& list, Read read,
                         std::string (*sentence)(const std::string& words)) {
    for (const PropertyValue& element : list) {
        const auto* words = element.as<std::string>();
        if (words == nullptr || !read(*words)) {
            return sentence(words != nullptr ? *words : std::string());
        }
    }
    return std::nullopt;
}

Refusal problemWithPoints(const std::string& key, const PropertyValue& value) {
    const auto* list = value.as<PropertyArray>();
    if (list == nullptr || list->size() > kMostSchedulePoints) {
        return translated("\"%1$@\" takes a list of %2$@ points at most.",
                          {key, std::to_string(kMostSchedulePoints)});
    }
    return problemWithTexts(*list, schedulePoint, noPointSentence);
}

Refusal problemWithRules(const std::string& key, const PropertyValue& value) {
    const auto* list = value.as<PropertyArray>();
    if (list == nullptr || list->size() > kMostRules) {
        return translated("\"%1$@\" takes a list of %2$@ rules at most.",
                          {key, std::to_string(kMostRules)});
    }
    return problemWithTexts(*list, ruleFromWords, noRuleSentence);
}

Refusal problemWithDisplayLooks(const PropertyValue& value) {
    const auto* list = value.as<PropertyArray>();
    if (list == nullptr || list->size() > kMostDisplayLooks) {
        return tooManyDisplayLooksSentence();
    }
    return problemWithTexts(*list, displayLookFromWords, noDisplayLookSentence);
}

Refusal problemWithPlace(const std::string& key, const PropertyValue& value) {
    const auto* words = value.as<std::string>();
    if (words != nullptr && (words->empty() || placeFromText(*words))) {
        return std::nullopt;
    }
    return translated("\"%@\" takes a place such as 52.5 13.4 or 33.9S 151.2E.", {key});
}

bool isFiniteSingle(const PropertyValue& value) {
    const auto* number = value.as<double>();
    return number != nullptr && std::isfinite(static_cast<float>(*number));
}

std::string shortestText(double number) {
    std::array<char, 32> text{};
    return {text.data(), std::to_chars(text.data(), text.data() + text.size(), number).ptr};
}

} // namespace

std::span<const Setting> settingsTable() {
    return rows();
}

const Setting* settingNamed(std::string_view key) {
    const auto found = std::find_if(rows().begin(), rows().end(),
                                    [&](const Setting& setting) { return setting.key == key; });
    return found != rows().end() ? &*found : nullptr;
}

PropertyDictionary registeredDefaults() {
    PropertyDictionary defaults;
    for (const Setting& setting : rows()) {
        if (setting.registered) {
            defaults.emplace(setting.key, setting.whenAbsent);
        }
    }
    return defaults;
}

PropertyValue effectiveValue(const DefaultsStore& defaults, const Setting& setting) {
    if (defaults.objectForKey(setting.key) == nullptr) {
        return setting.whenAbsent;
    }
    switch (setting.type) {
    case SettingType::boolean:
        return defaults.boolForKey(setting.key);
    case SettingType::integer:
        return defaults.integerForKey(setting.key);
    case SettingType::real:
        return static_cast<double>(defaults.floatForKey(setting.key));
    case SettingType::place:
        if (const auto* text = defaults.objectForKey(setting.key)->as<std::string>()) {
            return *text;
        }
        return setting.whenAbsent;
    case SettingType::effectNames:
    case SettingType::displayNumbers:
    case SettingType::schedulePoints:
    case SettingType::rules:
    case SettingType::displayLooks:
        break;
    }
    const PropertyArray* array = defaults.arrayForKey(setting.key);
    return array != nullptr ? *array : PropertyArray();
}

std::optional<std::string> problemWith(const Setting& setting, const PropertyValue& value) {
    const std::string key(setting.key);
    const auto unless = [](bool fits, const std::string& problem) {
        return fits ? Refusal() : Refusal(problem);
    };
    switch (setting.type) {
    case SettingType::boolean:
        return unless(value.as<bool>() != nullptr,
                      translated("\"%@\" takes true or false.", {key}));
    case SettingType::integer:
        return unless(value.as<std::int64_t>() != nullptr,
                      translated("\"%@\" takes a whole number.", {key}));
    case SettingType::real:
        return unless(isFiniteSingle(value), translated("\"%@\" takes a finite number.", {key}));
    case SettingType::effectNames:
        return problemWithNames(key, value);
    case SettingType::displayNumbers:
        return unless(isListOfDisplays(value),
                      translated("\"%@\" takes a list of display identifiers.", {key}));
    case SettingType::schedulePoints:
        return problemWithPoints(key, value);
    case SettingType::place:
        return problemWithPlace(key, value);
    case SettingType::rules:
        return problemWithRules(key, value);
    case SettingType::displayLooks:
        return problemWithDisplayLooks(value);
    }
    return std::nullopt;
}

std::optional<std::string> problemWithTyped(const Setting& setting, const PropertyValue& value) {
    auto problem = problemWith(setting, value);
    const auto number = value.number();
    if (problem || !setting.range || !number ||
        (*number >= setting.range->lowest && *number <= setting.range->highest)) {
        return problem;
    }
    return translated("\"%1$@\" takes a number from %2$@ to %3$@.",
                      {std::string(setting.key), shortestText(setting.range->lowest),
                       shortestText(setting.range->highest)});
}

} // namespace nocturo
