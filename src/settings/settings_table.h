#pragma once

#include "base/property_value.h"
#include "base/texts/translated.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace nocturo {

class DefaultsStore;

enum class SettingType {
    boolean,
    integer,
    real,
    effectNames,
    displayNumbers,
    schedulePoints, // a list of texts
    place,          // a text
    rules,          // a list of texts
    displayLooks    // a list of texts
};

/// What users may choose from, both ends included.
struct SettingRange {
    double lowest;
    double highest;
};

/// One row of the table of settings.
struct Setting {
    std::string_view key;
    SettingType type;
    PropertyValue whenAbsent; // what readers use while the user has no value
    bool registered;          // whether `whenAbsent` is registered as a default at launch
    ListedText meaning;       // one line
    std::optional<SettingRange> range = std::nullopt;
};

/// Every setting, in the order in which they are shown.
std::span<const Setting> settingsTable();

/// The row of that key, or null.
const Setting* settingNamed(std::string_view key);

/// The defaults to register at launch.
PropertyDictionary registeredDefaults();

/// What readers make of the store's present value, whatever its type; reals are singles. Where
/// another setting stands in for an absent one, that is not looked at.
PropertyValue effectiveValue(const DefaultsStore& defaults, const Setting& setting);

/// One sentence, in the user's language, that says why the value cannot be stored under the
/// setting; nothing when it can. A number beyond the setting's range can be stored.
std::optional<std::string> problemWith(const Setting& setting, const PropertyValue& value);

/// The same for a value that a user types, which must lie in the setting's range.
std::optional<std::string> problemWithTyped(const Setting& setting, const PropertyValue& value);

} // namespace nocturo
