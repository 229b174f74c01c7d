#include "settings/schedule_points.h"

#include "base/local_time.h"
#include "base/texts/shortened.h"
#include "base/texts/translated.h"
#include "settings/longest_words.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <strings.h>

namespace nocturo {

namespace {

using namespace std::chrono;
using Anchor = SchedulePoint::Anchor;

constexpr minutes kFarthest = 12h;

struct NamedAnchor {
    std::string_view name;
    Anchor anchor;
};
constexpr auto kAnchors = std::to_array<NamedAnchor>({{"dawn", Anchor::dawn},
                                                      {"sunrise", Anchor::sunrise},
                                                      {"sunset", Anchor::sunset},
                                                      {"dusk", Anchor::dusk}});

std::string clock(minutes time) {
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "%02d:%02d", static_cast<int>(time / 1h),
                  static_cast<int>(time % 1h / 1min));
    return text.data();
}

std::optional<SchedulePoint> pointInTime(std::string_view time) {
    for (const NamedAnchor& each : kAnchors) {
        if (!time.starts_with(each.name)) {
            continue;
        }
        time.remove_prefix(each.name.size());
        if (time.empty()) {
            return SchedulePoint{each.anchor, 0min, {}};
        }
        const auto offset = minutesFromClock(time.substr(1));
        const bool isOne = offset && *offset <= kFarthest && (time[0] == '+' || time[0] == '-');
        return isOne ? std::optional(
                           SchedulePoint{each.anchor, time[0] == '-' ? -*offset : *offset, {}})
                     : std::nullopt;
    }
    const auto minute = minutesFromClock(time);
    return minute ? std::optional(SchedulePoint{Anchor::midnight, *minute, {}}) : std::nullopt;
}

/// "sunset-00:30 Evening" of "sunset -00:30 Evening"; all else as it is.
std::string withOffsetBesideAnchor(const std::string& words) {
    const auto space = words.find(' ');
    const auto second = space != std::string::npos ? words.find(' ', space + 1) : space;
    if (second == std::string::npos) {
        return words;
    }
    const std::string offset = words.substr(space + 1, second - space - 1);
    const auto point = pointInTime(words.substr(0, space) + offset);
    const bool isApart = !offset.empty() && (offset[0] == '-' || offset[0] == '+');
    return point && isApart ? words.substr(0, space) + words.substr(space + 1) : words;
}

/// A number of degrees with a sign or with the letter of its half of the earth.
std::optional<double> degrees(std::string_view text, double most, std::string_view halves) {
    double sign = 1;
    if (!text.empty() && halves.find(text.back()) != std::string_view::npos) {
        sign = text.back() == halves[0] ? 1 : -1;
        text.remove_suffix(1);
        if (text.starts_with('-')) {
            return std::nullopt;
        }
    }
    double value = 0;
    const char* end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, value);
    const bool isOne = error == std::errc() && rest == end && std::abs(value) <= most;
    return isOne ? std::optional(sign * value) : std::nullopt;
}

} // namespace

bool isWordForOff(std::string_view words) {
    return words.size() == kWordForOff.size() &&
           strncasecmp(words.data(), kWordForOff.data(), words.size()) == 0;
}

std::optional<SchedulePoint> schedulePoint(std::string_view words) {
    const std::string point = withOffsetBesideAnchor(std::string(words));
    const auto space = point.find(' ');
    if (space == std::string::npos || space + 1 == point.size() || point.size() > kLongestWords) {
        return std::nullopt;
    }
    auto read = pointInTime(std::string_view(point).substr(0, space));
    const std::string look = point.substr(space + 1);
    if (read && !isWordForOff(look)) {
        read->look = look;
    }
    return read;
}

std::string noPointSentence(const std::string& words) {
    return translated("\"%@\" is no point of a schedule, such as 07:00 off or sunset-00:30 Warm "
                      "evening.",
                      {shortened(words)});
}

std::string timeText(const SchedulePoint& point) {
    if (point.anchor == Anchor::midnight) {
        return clock(point.offset);
    }
    std::string text;
    for (const NamedAnchor& each : kAnchors) {
        text += each.anchor == point.anchor ? each.name : "";
    }
    if (point.offset != 0min) {
        text += (point.offset < 0min ? '-' : '+') + clock(abs(point.offset));
    }
    return text;
}

std::string textOf(const SchedulePoint& point) {
    return timeText(point) + ' ' + (point.look.empty() ? std::string(kWordForOff) : point.look);
}

std::optional<Place> placeFromText(std::string_view words) {
    const auto space = words.find_first_of(" ,");
    if (space == std::string_view::npos) {
        return std::nullopt;
    }
    const auto rest = words.substr(space);
    const auto second = std::min(rest.find_first_not_of(" ,"), rest.size());
    const auto latitude = degrees(words.substr(0, space), 90, "NS");
    const auto longitude = degrees(rest.substr(second), 180, "EW");
    return latitude && longitude ? std::optional(Place{*latitude, *longitude}) : std::nullopt;
}

} // namespace nocturo
