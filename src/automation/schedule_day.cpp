#include "automation/schedule_day.h"

#include "automation/sun.h"
#include "base/local_time.h"

namespace nocturo {

namespace {

using namespace std::chrono;
using Anchor = SchedulePoint::Anchor;

constexpr minutes kWholeDay = 24h;

minutes withinDay(minutes time) {
    return (time % kWholeDay + kWholeDay) % kWholeDay;
}

} // namespace

std::optional<minutes> SunOfDay::at(Anchor anchor) const {
    switch (anchor) {
    case Anchor::midnight:
        return 0min;
    case Anchor::dawn:
        return dawn;
    case Anchor::sunrise:
        return sunrise;
    case Anchor::sunset:
        return sunset;
    case Anchor::dusk:
        return dusk;
    }
    return std::nullopt;
}

SunOfDay sunOfDay(const std::optional<Place>& place, sys_days day) {
    Sun sun;
    const auto time = [&](Anchor anchor) {
        const auto moment =
            place ? sun.moment(*place, day.time_since_epoch().count(), anchor) : std::nullopt;
        return moment ? std::optional(withinDay(timeOfDay(*moment))) : std::nullopt;
    };
    return {time(Anchor::dawn), time(Anchor::sunrise), time(Anchor::sunset), time(Anchor::dusk)};
}

std::optional<minutes> timeOfPoint(const SchedulePoint& point, const SunOfDay& sun) {
    const auto start = sun.at(point.anchor);
    return start ? std::optional(withinDay(*start + point.offset)) : std::nullopt;
}

SchedulePoint movedTo(SchedulePoint point, minutes time, const SunOfDay& sun) {
    const auto start = sun.at(point.anchor);
    if (!start) {
        return point;
    }
    point.offset = withinDay(time - *start);
    if (point.anchor != Anchor::midnight && point.offset > kWholeDay / 2) {
        point.offset -= kWholeDay;
    }
    return point;
}

} // namespace nocturo
