#pragma once

#include "settings/schedule_points.h"

#include <chrono>
#include <optional>

namespace nocturo {

/// What the sun does on one local day, in minutes since its midnight; nothing where it does no such
/// thing, or where nobody knows.
struct SunOfDay {
    std::optional<std::chrono::minutes> dawn{}, sunrise{}, sunset{}, dusk{};
    bool operator==(const SunOfDay&) const = default;

    std::optional<std::chrono::minutes> at(SchedulePoint::Anchor anchor) const;
};

/// Without a place there is no sun.
SunOfDay sunOfDay(const std::optional<Place>& place, std::chrono::sys_days day);

/// When the point comes on that day, from 0:00 to 23:59; what passes midnight is seen at the other
/// end of the day.
std::optional<std::chrono::minutes> timeOfPoint(const SchedulePoint& point, const SunOfDay& sun);

/// The point as it comes at that time, counted from what it is counted from now; as it is where
/// that does not come.
SchedulePoint movedTo(SchedulePoint point, std::chrono::minutes time, const SunOfDay& sun);

} // namespace nocturo
