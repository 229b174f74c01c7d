#pragma once

#include "base/wall_clock.h"

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace nocturo {

/// The day that it is there and then, in the time zone of the system or of $TZ as it is now.
std::chrono::sys_days localDay(Moment moment);

/// What the clock on the wall shows then.
std::chrono::minutes timeOfDay(Moment moment);

/// When the clock on the wall shows that time, from 0:00 to 24:00, on a local day: the first of two
/// where it is set back. A time that is left out where it is set forward comes as much later.
Moment momentOf(std::chrono::sys_days day, std::chrono::minutes sinceMidnight);

/// The first time after `now` that the clock shows that.
Moment nextMomentOf(Moment now, std::chrono::minutes sinceMidnight);

/// Minutes since midnight of a time from "0:00" to "23:59"; nothing for anything else.
std::optional<std::chrono::minutes> minutesFromClock(std::string_view text);

/// "18:00", or "2026-11-23 18:00" where that is a day away or more.
std::string clockText(Moment moment, Moment now);

} // namespace nocturo
