#include "automation/sun.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <libnova/precession.h>
#include <libnova/sidereal_time.h>
#include <libnova/solar.h>
#include <libnova/transform.h>

namespace nocturo {

namespace {

using Anchor = SchedulePoint::Anchor;

constexpr double kJulianEpoch = 2440587.5; // 1970-01-01 00:00 UTC, in Julian days
constexpr double kDay = 86400;
constexpr double kDegreesADay = 360.985647; // that the sky turns
constexpr double kHorizon = -0.8333;        // the sun's radius, and what the air bends
constexpr double kCivilHorizon = -6;

// Where the sun stands is a sum of thousands of terms, and changes so evenly that a cubic between
// every fourth day's is as good.
constexpr double kNodeDays = 4;
constexpr std::size_t kMostPositions = 1000;

double julianDay(double time) {
    return kJulianEpoch + time / kDay;
}

} // namespace

const Sun::Position& Sun::positionAt(std::int64_t node) {
    if (const auto found = positions_.find(node); found != positions_.end()) {
        return found->second;
    }
    if (positions_.size() >= kMostPositions) {
        positions_.clear();
    }
    const double day = julianDay(static_cast<double>(node) * kNodeDays * kDay);
    ln_equ_posn of2000{};
    ln_get_solar_equ_coords(day, &of2000); // in the coordinates of the year 2000
    ln_equ_posn seen{};
    ln_get_equ_prec(&of2000, day, &seen);
    return positions_.emplace(node, Position{seen.ra, seen.dec}).first->second;
}

Sun::Position Sun::position(double time) {
    const double at = time / kDay / kNodeDays;
    const double before = std::floor(at);
    const double t = at - before;
    const std::array weights = {-t * (t - 1) * (t - 2) / 6, (t + 1) * (t - 1) * (t - 2) / 2,
                                -(t + 1) * t * (t - 2) / 2, (t + 1) * t * (t - 1) / 6};
    const double reference = positionAt(static_cast<std::int64_t>(before)).rightAscension;
    Position sum{0, 0};
    for (int i = 0; i < 4; ++i) {
        const Position& node = positionAt(static_cast<std::int64_t>(before) + i - 1);
        const double weight = weights.at(static_cast<std::size_t>(i));
        // Past 360 degrees it starts anew.
        sum.rightAscension += weight * std::remainder(node.rightAscension - reference, 360);
        sum.declination += weight * node.declination;
    }
    sum.rightAscension += reference;
    return sum;
}

double Sun::hourAngle(const Place& place, double time) {
    const double sky = ln_get_mean_sidereal_time(julianDay(time)) * 15 + place.longitude;
    return std::remainder(sky - position(time).rightAscension, 360);
}

double Sun::altitude(const Place& place, double time) {
    const Position sun = position(time);
    ln_equ_posn seen{sun.rightAscension, sun.declination};
    ln_lnlat_posn observer{place.longitude, place.latitude};
    ln_hrz_posn above{};
    ln_get_hrz_from_equ_sidereal_time(&seen, &observer, ln_get_mean_sidereal_time(julianDay(time)),
                                      &above);
    return above.alt;
}

std::optional<Moment> Sun::crossing(const Place& place, double from, double to, double horizon) {
    const bool isUp = altitude(place, from) >= horizon;
    if (isUp == (altitude(place, to) >= horizon)) {
        return std::nullopt;
    }
    while (to - from > 0.5) {
        const double middle = (from + to) / 2;
        (isUp == (altitude(place, middle) >= horizon) ? from : to) = middle;
    }
    return Moment(std::chrono::seconds(std::llround(to)));
}

std::optional<Moment> Sun::moment(const Place& place, std::int64_t day, Anchor anchor) {
    double noon = (static_cast<double>(day) + 0.5 - place.longitude / 360) * kDay;
    noon -= hourAngle(place, noon) / kDegreesADay * kDay;
    const double horizon =
        anchor == Anchor::dawn || anchor == Anchor::dusk ? kCivilHorizon : kHorizon;
    const bool isRise = anchor == Anchor::dawn || anchor == Anchor::sunrise;
    const double half = kDay / 2;
    // Next to the poles it may rise after noon, once a year.
    for (const double from : {noon - half, noon}) {
        if ((altitude(place, from) < horizon) == isRise) {
            if (const auto found = crossing(place, from, from + half, horizon)) {
                return found;
            }
        }
    }
    return std::nullopt;
}

} // namespace nocturo
