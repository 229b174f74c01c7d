#pragma once

#include "base/result.h"
#include "settings/schedule_points.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace nocturo {

class DefaultsStore;
class Looks;

/// Where the sun is looked at: at the user's place, or at the time zone's.
std::optional<Place> placeOfSchedule(const DefaultsStore& defaults);

// These change the setting; problems are sentences for the user.

/// The look may be named by its title. A point that is there already stays as it is.
Result<void> addSchedulePoint(DefaultsStore& defaults, Looks& looks, std::string_view words);
Result<void> removeSchedulePoint(DefaultsStore& defaults, std::size_t index);

} // namespace nocturo
