#include "automation/pauses.h"

#include "base/local_time.h"
#include "base/log.h"
#include "base/texts/shortened.h"
#include "base/texts/translated.h"
#include "settings/settings_file.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <string>
#include <system_error>
#include <utility>

namespace nocturo {

namespace {

using namespace std::chrono;

constexpr std::string_view kUntil = "until"; // seconds since 1970; 0 for no end
constexpr minutes kMorning = 6h;
constexpr days kLongest{366};

/// Takes a whole number from the front of the text.
std::optional<std::int64_t> takeNumber(std::string_view& text) {
    std::int64_t number = 0;
    const auto [rest, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || number < 0) {
        return std::nullopt;
    }
    text.remove_prefix(static_cast<std::size_t>(rest - text.data()));
    return number;
}

std::optional<seconds> unitOf(char letter) {
    switch (letter) {
    case 's':
        return 1s;
    case 'm':
        return 1min;
    case 'h':
        return 1h;
    case 'd':
        return days(1);
    default:
        return std::nullopt;
    }
}

bool isOfLength(char letter) {
    return (letter >= '0' && letter <= '9') || unitOf(letter);
}

std::optional<seconds> duration(std::string_view text) {
    seconds sum{0};
    while (!text.empty()) {
        const auto number = takeNumber(text);
        const auto unit = number && !text.empty() ? unitOf(text.front()) : std::nullopt;
        if (!unit || *number > seconds(kLongest).count()) {
            return std::nullopt;
        }
        sum += *number * *unit;
        if (sum > kLongest) {
            return std::nullopt;
        }
        text.remove_prefix(1);
    }
    return sum > 0s ? std::optional(sum) : std::nullopt;
}

} // namespace

Result<std::optional<Moment>> endOfPause(std::string_view words, Moment now) {
    constexpr std::string_view kUntilWord = "until ";
    if (words.empty()) {
        return std::nullopt;
    }
    if (words == "until tomorrow") {
        return nextMomentOf(now, kMorning);
    }
    if (words.starts_with(kUntilWord)) {
        if (const auto minute = minutesFromClock(words.substr(kUntilWord.size()))) {
            return nextMomentOf(now, *minute);
        }
    } else if (const auto length = duration(words)) {
        return now + *length;
    }
    if (std::all_of(words.begin(), words.end(), isOfLength)) {
        return failed(
            translated("\"%@\" is no length of a pause, such as 30m, 2h or 1h30m, up to 366d.",
                       {shortened(words)}));
    }
    return failed(
        translated("\"%@\" is no time to pause for, such as 30m, 2h, until 18:00 or until "
                   "sunset.",
                   {shortened(words)}));
}

void Pauses::restore(Moment now) {
    const PropertyDictionary kept = readPropertyListFile(file_).dictionary;
    const auto found = kept.find(kUntil);
    const auto* until = found != kept.end() ? found->second.as<std::int64_t>() : nullptr;
    if (until == nullptr) {
        return;
    }
    const Moment end = Moment(seconds(*until));
    if (*until == 0) {
        timed_ = Timed{};
    } else if (end > now && end - now <= kLongest) {
        timed_ = Timed{end};
    } else {
        forget();
    }
}

void Pauses::begin(std::optional<Moment> until) {
    timed_ = Timed{until};
    const std::int64_t moment = until ? until->time_since_epoch().count() : 0;
    if (const auto written = writeSettingsFile(file_, {{std::string(kUntil), moment}}); !written) {
        logWarning(kLogApp, "The pause cannot be kept in " + file_.string() + ": " +
                                written.error().text + ".");
    }
}

void Pauses::forget() {
    timed_.reset();
    std::error_code absent;
    std::filesystem::remove(file_, absent);
}

bool Pauses::end() {
    const bool was = claim().has_value();
    held_.reset();
    if (timed_) {
        forget();
    }
    return was;
}

bool Pauses::expire(Moment now) {
    const bool isOver = timed_ && timed_->until && *timed_->until <= now;
    if (isOver) {
        forget();
    }
    return isOver;
}

std::optional<Claim> Pauses::claim() const {
    if (held_) {
        return Claim{false, {}, {}, *held_};
    }
    return timed_ ? std::optional(Claim{false, {}, timed_->until}) : std::nullopt;
}

} // namespace nocturo
