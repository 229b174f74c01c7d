#include "automation/time_zone_place.h"

#include "base/environment.h"

#include <charconv>
#include <fstream>
#include <sstream>
#include <string_view>
#include <system_error>

namespace nocturo {

namespace {

/// "+5230", "-0302305": degrees, minutes and perhaps seconds.
std::optional<double> coordinate(std::string_view text, std::size_t degreeDigits) {
    const auto part = [&](std::size_t at, std::size_t count) {
        int number = 0;
        const std::string_view digits = text.substr(std::min(at, text.size()), count);
        std::from_chars(digits.data(), digits.data() + digits.size(), number);
        return number;
    };
    if (text.size() < degreeDigits + 3) {
        return std::nullopt;
    }
    const double size = part(1, degreeDigits) + part(degreeDigits + 1, 2) / 60.0 +
                        part(degreeDigits + 3, 2) / 3600.0;
    return text[0] == '-' ? -size : size;
}

std::optional<Place> placeFromTable(std::string_view coordinates) {
    const auto second = coordinates.find_first_of("+-", 1);
    if (second == std::string_view::npos) {
        return std::nullopt;
    }
    const auto latitude = coordinate(coordinates.substr(0, second), 2);
    const auto longitude = coordinate(coordinates.substr(second), 3);
    return latitude && longitude ? std::optional(Place{*latitude, *longitude}) : std::nullopt;
}

/// Follows a former name to the one that the tables have.
std::string presentName(const std::string& zone, const std::filesystem::path& tables) {
    std::ifstream rules(tables / "tzdata.zi");
    for (std::string line; std::getline(rules, line);) {
        std::istringstream words(line);
        std::string kind;
        std::string name;
        std::string former;
        if (line.starts_with("L ") && words >> kind >> name >> former && former == zone) {
            return name;
        }
    }
    return {};
}

} // namespace

std::string timeZoneName() {
    if (const std::string zone = environment("TZ"); !zone.empty()) {
        return zone.substr(zone.starts_with(':') ? 1 : 0);
    }
    constexpr std::string_view kDirectory = "zoneinfo/";
    std::error_code none;
    const std::string link = std::filesystem::read_symlink("/etc/localtime", none);
    const auto found = link.find(kDirectory);
    return found != std::string::npos ? link.substr(found + kDirectory.size()) : std::string();
}

std::optional<Place> placeOfTimeZone(std::string zone, const std::filesystem::path& tables) {
    for (int tries = 0; tries < 2 && !zone.empty(); ++tries) {
        std::ifstream table(tables / "zone.tab");
        for (std::string line; std::getline(table, line);) {
            std::istringstream words(line);
            std::string country;
            std::string coordinates;
            std::string name;
            if (words >> country >> coordinates >> name && name == zone) {
                return placeFromTable(coordinates);
            }
        }
        zone = presentName(zone, tables);
    }
    return std::nullopt;
}

} // namespace nocturo
