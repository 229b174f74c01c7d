#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace nocturo {

/// One point of the schedule, as the setting holds it in words: "07:00 off", "sunset-00:30
/// Evening".
struct SchedulePoint {
    /// What its time counts from: midnight, or what the sun does.
    enum class Anchor { midnight, dawn, sunrise, sunset, dusk };

    Anchor anchor = Anchor::midnight;
    std::chrono::minutes offset{0}; // from midnight 0 to 23:59; from the sun 12 hours either way
    std::string look;               // its name; empty where the effect goes off
    bool operator==(const SchedulePoint&) const = default;
};

/// More are left alone.
inline constexpr std::size_t kMostSchedulePoints = 100;

/// What stands for no effect instead of a look's name, and whether that is it, in any case.
inline constexpr std::string_view kWordForOff = "off";
bool isWordForOff(std::string_view words);

/// Nothing for other words. The sun's offset may stand apart.
std::optional<SchedulePoint> schedulePoint(std::string_view words);

/// Says so, in the user's language.
std::string noPointSentence(const std::string& words);

/// "sunset-00:30", "07:00"; and with the look.
std::string timeText(const SchedulePoint& point);
std::string textOf(const SchedulePoint& point);

/// Where on the earth the sun is looked at, in degrees, north and east being positive.
struct Place {
    double latitude = 0;
    double longitude = 0;
    bool operator==(const Place&) const = default;
};

/// "52.52 13.40", "33.9S 151.2E": the latitude first. Nothing for other words.
std::optional<Place> placeFromText(std::string_view words);

} // namespace nocturo
