#include "automation/schedule.h"

#include "base/local_time.h"

#include <algorithm>
#include <array>
#include <utility>

namespace nocturo {

namespace {

using namespace std::chrono;

// How far is looked for points, in days: enough for most, for a few cloudless nights between two
// polar seasons, and for a whole polar year.
constexpr std::array kReaches = {days(3), days(20), days(400)};

// The four of the sun in a polar year, which is looked through again for each point.
constexpr std::size_t kMostMoments = 4000;

// What lies nearer than this to the end of a reach may be behind another beyond it.
constexpr days kMargin(2);

bool isWithin(const std::optional<Schedule::Occurrence>& found, Moment now, days reach) {
    return found && abs(found->moment - now) <= reach - kMargin;
}

} // namespace

Schedule::Schedule(std::vector<SchedulePoint> points, std::optional<Place> place)
    : points_(std::move(points)), place_(place) {}

std::optional<Moment> Schedule::momentOfSun(sys_days day, SchedulePoint::Anchor anchor) {
    if (!place_) {
        return std::nullopt;
    }
    if (momentsOfSun_.size() >= kMostMoments) {
        momentsOfSun_.clear();
    }
    const auto [found, isNew] = momentsOfSun_.try_emplace({day, anchor});
    if (isNew) {
        found->second = sun_.moment(*place_, day.time_since_epoch().count(), anchor);
    }
    return found->second;
}

std::optional<Moment> Schedule::occurrence(const SchedulePoint& point, sys_days day) {
    if (point.anchor == SchedulePoint::Anchor::midnight) {
        return momentOf(day, point.offset);
    }
    const auto moment = momentOfSun(day, point.anchor);
    return moment ? std::optional(*moment + point.offset) : std::nullopt;
}

Schedule::Around Schedule::aroundWithin(Moment now, days reach, std::size_t first,
                                        std::size_t last) {
    Around found;
    const sys_days today = floor<days>(now);
    for (sys_days day = today - reach; day <= today + reach; day += days(1)) {
        for (std::size_t index = first; index < last; ++index) {
            const auto moment = occurrence(points_[index], day);
            if (!moment) {
                continue;
            }
            const Occurrence one{*moment, index};
            if (one.moment <= now) {
                found.current = std::max(found.current.value_or(one), one);
            } else if (!found.next || one.moment <= found.next->moment) {
                found.next = found.next && one.moment == found.next->moment
                                 ? std::max(*found.next, one)
                                 : one;
            }
        }
    }
    return found;
}

Schedule::Around Schedule::around(Moment now, std::size_t first, std::size_t last) {
    Around found;
    if (first == last) {
        return found;
    }
    for (const days reach : kReaches) {
        found = aroundWithin(now, reach, first, last);
        if (isWithin(found.current, now, reach) && isWithin(found.next, now, reach)) {
            break;
        }
    }
    return found;
}

Schedule::Around Schedule::around(Moment now) {
    return around(now, 0, points_.size());
}

std::optional<Moment> Schedule::next(std::size_t point, Moment now) {
    const Around found = around(now, point, point + 1);
    return found.next ? std::optional(found.next->moment) : std::nullopt;
}

} // namespace nocturo
