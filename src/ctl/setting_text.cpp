#include "ctl/setting_text.h"

#include "base/texts/translated.h"
#include "ctl/failure.h"
#include "settings/selectable_effects.h"
#include "settings/settings_keys.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <optional>
#include <strings.h>
#include <vector>

namespace nocturo {

namespace {

PropertyValue booleanFromText(std::string_view text) {
    if (text == "true" || text == "yes" || text == "on") {
        return true;
    }
    if (text == "false" || text == "no" || text == "off") {
        return false;
    }
    return std::string(text);
}

bool isOneOf(std::string_view text, std::string_view name) {
    return text.size() == name.size() && strncasecmp(text.data(), name.data(), name.size()) == 0;
}

// A value of another type where the text is no number; the check of the setting says so.
template <typename Number>
PropertyValue numberFromText(std::string_view text) {
    Number number{};
    const char* end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || rest != end) {
        return std::string(text);
    }
    return number;
}

template <typename Convert>
PropertyValue listFromText(std::string_view text, Convert convert) {
    PropertyArray array;
    while (!text.empty()) {
        const std::size_t comma = std::min(text.find(','), text.size());
        array.emplace_back(convert(text.substr(0, comma)));
        text.remove_prefix(std::min(comma + 1, text.size()));
    }
    return array;
}

PropertyValue realFromText(std::string_view key, std::string_view text) {
    if (const auto number = amountFromText(text, isShare(key) ? 1.0 : 0.0)) {
        return *number;
    }
    return std::string(text);
}

PropertyValue fromText(const Setting& setting, std::string_view text) {
    switch (setting.type) {
    case SettingType::boolean:
        return booleanFromText(text);
    case SettingType::integer:
        return numberFromText<std::int64_t>(text);
    case SettingType::real:
        return realFromText(setting.key, text);
    case SettingType::effectNames:
        return listFromText(text, effectFromText);
    case SettingType::displayNumbers:
        return listFromText(text, numberFromText<std::int64_t>);
    case SettingType::schedulePoints:
    case SettingType::rules:
    case SettingType::displayLooks:
        return listFromText(text, [](std::string_view words) { return std::string(words); });
    case SettingType::place:
        break;
    }
    return std::string(text);
}

} // namespace

std::optional<double> amountFromText(std::string_view text, double whole) {
    constexpr std::string_view kMinus = "\u2212";
    std::string plain(text);
    if (const auto minus = plain.find(kMinus); minus != std::string::npos) {
        plain.replace(minus, kMinus.size(), "-");
    }
    const bool isPercent = plain.ends_with('%') && whole != 0.0;
    while (!plain.empty() && (plain.back() == ' ' || (isPercent && plain.back() == '%'))) {
        plain.pop_back();
    }
    plain.erase(0, plain.starts_with('+') ? 1 : 0);
    const PropertyValue number = numberFromText<double>(plain);
    const auto* value = number.as<double>();
    return value != nullptr && std::isfinite(*value)
               ? std::optional(isPercent ? *value * whole / 100.0 : *value)
               : std::nullopt;
}

bool isShare(std::string_view key) {
    return key == kDimLevel.key || key == kColorFilterVividness.key;
}

PropertyValue settingFromText(const Setting& setting, std::string_view text, Range range) {
    PropertyValue value = fromText(setting, text);
    if (const auto problem = range == Range::ofUsers ? problemWithTyped(setting, value)
                                                     : problemWith(setting, value)) {
        throw Failure{kUsage, *problem};
    }
    return value;
}

std::string effectFromText(std::string_view text) {
    const auto effects = selectableEffects();
    const auto found = std::find_if(effects.begin(), effects.end(), [&](const auto& effect) {
        return isOneOf(text, effect.className) || isOneOf(text, effect.shortName);
    });
    if (found != effects.end()) {
        return std::string(found->className);
    }
    std::string names;
    for (const SelectableEffect& effect : effects) {
        names += (names.empty() ? "" : ", ") + std::string(effect.shortName);
    }
    throw Failure{kUsage, translated("There is no effect \"%@\"; the effects are %@.",
                                     {std::string(text), names})};
}

std::string_view shortEffectName(std::string_view className) {
    const auto effects = selectableEffects();
    const auto found = std::find_if(effects.begin(), effects.end(), [&](const auto& effect) {
        return effect.className == className;
    });
    return found != effects.end() ? found->shortName : className;
}

} // namespace nocturo
