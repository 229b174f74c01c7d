#pragma once

#include "displays/display_services.h"
#include "settings/settings_keys.h"

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

namespace nocturo {

class DefaultsStore;

/// The keys that affectedScreenSet reads.
inline constexpr std::array kAffectedScreenSettings = {kAffectedScreenSet, kAffectedScreens};

/// The displays on which the effect is applied, as identifiers in ascending order; empty means all.
/// The numbers are as stored: signed, whatever their range, duplicates kept. Read from
/// "AffectedScreenSet", or from the older single-display key "AffectedScreens" while that is absent
/// or holds anything but numbers.
std::vector<double> affectedScreenSet(const DefaultsStore& defaults);

/// The same for those who tell it: the numbers that can be identifiers. All others are skipped, as
/// they match no display.
std::vector<std::int64_t> affectedScreenIdentifiers(const DefaultsStore& defaults);

/// Those of them that none of the online displays is, each once.
std::vector<CGDirectDisplayID> absentAffectedDisplays(const DefaultsStore& defaults,
                                                      const std::vector<DisplayInfo>& online);

/// What picking a display in a menu does: 0 chooses all displays, an identifier goes into the set
/// or out of it. Taking the last one out therefore means all displays again. The older key records
/// the pick, whichever way it went.
void chooseAffectedScreen(DefaultsStore& defaults, std::int32_t tag);

/// Puts displays into the set; nothing where it is empty, as all are affected then.
void addAffectedScreens(DefaultsStore& defaults, const std::vector<std::int64_t>& displays);

/// Takes displays out of the set, and out of those that are `online` where it is empty. False, with
/// nothing changed, where none would be left, which would mean all.
bool removeAffectedScreens(DefaultsStore& defaults, const std::vector<std::int64_t>& displays,
                           const std::vector<std::int64_t>& online);

} // namespace nocturo
