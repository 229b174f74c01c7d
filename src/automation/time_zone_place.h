#pragma once

#include "settings/schedule_points.h"

#include <filesystem>
#include <optional>
#include <string>

namespace nocturo {

/// The name of the time zone that is in force, such as "Europe/Berlin"; empty where it has none.
std::string timeZoneName();

/// Where the city is that a time zone is named after, by the zone's tables in that directory;
/// nothing for zones of no place, as UTC.
std::optional<Place> placeOfTimeZone(std::string zone, const std::filesystem::path& tables);

} // namespace nocturo
