#pragma once

#include "base/property_value.h"
#include "settings/settings_table.h"

#include <optional>
#include <string>
#include <string_view>

namespace nocturo {

/// Whether a number beyond what users may choose from is refused.
enum class Range { ofUsers, any };

/// Reads what a user typed as a value of the setting: true/yes/on and false/no/off, whole numbers,
/// finite numbers with a point or, where the window shows it so, as a percentage, and lists with
/// commas, where effects go by their class names or their short ones. Throws Failure (a usage
/// error) with what the setting takes.
PropertyValue settingFromText(const Setting& setting, std::string_view text,
                              Range range = Range::ofUsers);

/// Reads a number with an optional sign; "50%" is half of `whole`, or no number where that is 0.
std::optional<double> amountFromText(std::string_view text, double whole);

/// Whether the setting is shown as a percentage.
bool isShare(std::string_view key);

/// The class name of an effect given by its class name or its short one. Throws Failure.
std::string effectFromText(std::string_view text);

/// The short name of an effect class; the class's own where it has none.
std::string_view shortEffectName(std::string_view className);

} // namespace nocturo
