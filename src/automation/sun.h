#pragma once

#include "base/wall_clock.h"
#include "settings/schedule_points.h"

#include <cstdint>
#include <map>
#include <optional>

namespace nocturo {

/// Rises and sets of the sun, from about 1900 to 2100, within seconds but for mountains
/// and the weather: of its upper edge at sunrise and sunset, and 6 degrees below the horizon at
/// (civil) dawn and dusk.
class Sun {
  public:
    /// At that place, within 12 hours of the mean noon there of that day, which is counted from
    /// 1970; nothing where the sun does no such thing then, as in a polar summer. `anchor` is not
    /// midnight.
    std::optional<Moment> moment(const Place& place, std::int64_t day,
                                 SchedulePoint::Anchor anchor);

  private:
    struct Position { // as seen from the middle of the earth, in degrees
        double rightAscension;
        double declination;
    };
    const Position& positionAt(std::int64_t node);
    Position position(double time);
    double hourAngle(const Place& place, double time);
    double altitude(const Place& place, double time);
    std::optional<Moment> crossing(const Place& place, double from, double to, double horizon);

    std::map<std::int64_t, Position> positions_;
};

} // namespace nocturo
