#pragma once

#include "automation/sun.h"
#include "base/wall_clock.h"
#include "settings/schedule_points.h"

#include <cstddef>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace nocturo {

/// When the points of a schedule come, by the clock of the place where the machine is and by the
/// sun.
class Schedule {
  public:
    /// A point that has come or will come.
    struct Occurrence {
        Moment moment;
        std::size_t point; // its index
        auto operator<=>(const Occurrence&) const = default;
    };
    struct Around {
        std::optional<Occurrence> current; // the last one, at this moment or before
        std::optional<Occurrence> next;    // the first one after this moment
        bool operator==(const Around&) const = default;
    };

    /// Without a place the points of the sun never come. Of points at the same moment the last one
    /// of the list counts.
    Schedule(std::vector<SchedulePoint> points, std::optional<Place> place);

    const std::vector<SchedulePoint>& points() const { return points_; }

    /// Looks a year far, since a polar summer has no sunset.
    Around around(Moment now);

    /// When a point comes the next time.
    std::optional<Moment> next(std::size_t point, Moment now);

  private:
    std::optional<Moment> momentOfSun(std::chrono::sys_days day, SchedulePoint::Anchor anchor);
    std::optional<Moment> occurrence(const SchedulePoint& point, std::chrono::sys_days day);
    Around aroundWithin(Moment now, std::chrono::days reach, std::size_t first, std::size_t last);
    Around around(Moment now, std::size_t first, std::size_t last);

    std::vector<SchedulePoint> points_;
    std::optional<Place> place_;
    Sun sun_;
    /// What the sun does on a day, which many points may share.
    std::map<std::pair<std::chrono::sys_days, SchedulePoint::Anchor>, std::optional<Moment>>
        momentsOfSun_;
};

} // namespace nocturo
