#include "base/local_time.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <ctime>

namespace nocturo {

namespace {

using namespace std::chrono;

std::tm localTime(Moment moment) {
    const std::time_t seconds = moment.time_since_epoch().count();
    std::tm local{};
    tzset(); // localtime_r by itself need not notice that the zone is another one
    localtime_r(&seconds, &local);
    return local;
}

std::tm wallTime(sys_days day, minutes sinceMidnight, int isSummerTime) {
    const year_month_day date(day);
    std::tm time{};
    time.tm_year = static_cast<int>(date.year()) - 1900;
    time.tm_mon = static_cast<int>(static_cast<unsigned>(date.month())) - 1;
    time.tm_mday = static_cast<int>(static_cast<unsigned>(date.day()));
    time.tm_min = static_cast<int>(sinceMidnight.count());
    time.tm_isdst = isSummerTime;
    return time;
}

Moment momentOf(std::tm time) {
    return Moment(seconds(std::mktime(&time)));
}

} // namespace

sys_days localDay(Moment moment) {
    const std::tm local = localTime(moment);
    return sys_days(year(local.tm_year + 1900) / (local.tm_mon + 1) / local.tm_mday);
}

minutes timeOfDay(Moment moment) {
    const std::tm local = localTime(moment);
    return minutes(local.tm_hour * 60 + local.tm_min);
}

Moment momentOf(sys_days day, minutes sinceMidnight) {
    // What mktime makes of a time without being told which clock it is of depends on what it was
    // asked before.
    std::optional<Moment> first;
    for (const int isSummerTime : {1, 0}) {
        const Moment moment = momentOf(wallTime(day, sinceMidnight, isSummerTime));
        if (localDay(moment) + timeOfDay(moment) == day + sinceMidnight) {
            first = std::min(first.value_or(moment), moment);
        }
    }
    return first ? *first : momentOf(wallTime(day, sinceMidnight, 0));
}

Moment nextMomentOf(Moment now, minutes sinceMidnight) {
    const sys_days today = localDay(now);
    for (const days later : {days(0), days(1)}) {
        if (const Moment moment = momentOf(today + later, sinceMidnight); moment > now) {
            return moment;
        }
    }
    return momentOf(today + days(2), sinceMidnight);
}

std::optional<minutes> minutesFromClock(std::string_view text) {
    const auto colon = std::min(text.find(':'), text.size());
    const auto number = [](std::string_view digits, int most) -> std::optional<int> {
        int value = 0;
        const char* end = digits.data() + digits.size();
        const auto [rest, error] = std::from_chars(digits.data(), end, value);
        const bool isOne = error == std::errc() && rest == end && value >= 0 && value <= most;
        return isOne ? std::optional(value) : std::nullopt;
    };
    const auto hour = number(text.substr(0, colon), 23);
    const auto minute = number(text.substr(std::min(colon + 1, text.size())), 59);
    return hour && minute && text.size() == colon + 3
               ? std::optional(hours(*hour) + minutes(*minute))
               : std::nullopt;
}

std::string clockText(Moment moment, Moment now) {
    const bool isFar = moment - now >= days(1) || moment < now;
    const std::tm local = localTime(moment);
    std::array<char, 64> text{};
    const auto length =
        std::strftime(text.data(), text.size(), isFar ? "%Y-%m-%d %H:%M" : "%H:%M", &local);
    return {text.data(), length};
}

} // namespace nocturo
