#include "ctl/setting_text.h"

#include "base/texts/translated.h"
#include "ctl/failure.h"
#include "settings/selectable_effects.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <optional>
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

PropertyValue fromText(SettingType type, std::string_view text) {
    switch (type) {
    case SettingType::boolean:
        return booleanFromText(text);
    case SettingType::integer:
        return numberFromText<std::int64_t>(text);
    case SettingType::real:
        return numberFromText<double>(text);
    case SettingType::effectNames:
        return listFromText(text, effectFromText);
    case SettingType::displayNumbers:
        return listFromText(text, numberFromText<std::int64_t>);
    }
    return std::string(text);
}

} // namespace

PropertyValue settingFromText(const Setting& setting, std::string_view text) {
    PropertyValue value = fromText(setting.type, text);
    if (const auto problem = problemWithTyped(setting, value)) {
        throw Failure{kUsage, *problem};
    }
    return value;
}

std::string effectFromText(std::string_view text) {
    const auto effects = selectableEffects();
    const auto found = std::find_if(effects.begin(), effects.end(), [&](const auto& effect) {
        return text == effect.className || text == effect.shortName;
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
