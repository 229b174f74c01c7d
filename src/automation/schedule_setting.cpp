#include "automation/schedule_setting.h"

#include "automation/time_zone_place.h"
#include "base/texts/translated.h"
#include "documents/looks.h"
#include "settings/defaults_store.h"
#include "settings/settings_keys.h"

#include <algorithm>
#include <utility>

namespace nocturo {

namespace {

constexpr const char* kTimeZones = "/usr/share/zoneinfo";

PropertyArray stored(const DefaultsStore& defaults) {
    const PropertyArray* array = defaults.arrayForKey(kSchedule);
    return array != nullptr ? *array : PropertyArray();
}

} // namespace

std::vector<std::string> wordsOfSchedule(const DefaultsStore& defaults) {
    std::vector<std::string> words;
    for (const PropertyValue& element : stored(defaults)) {
        const auto* text = element.as<std::string>();
        words.push_back(text != nullptr ? *text : std::string());
    }
    return words;
}

std::optional<Place> placeOfSchedule(const DefaultsStore& defaults) {
    const PropertyValue* value = defaults.objectForKey(kPlace);
    const auto* text = value != nullptr ? value->as<std::string>() : nullptr;
    const auto typed = text != nullptr ? placeFromText(*text) : std::nullopt;
    return typed ? typed : placeOfTimeZone(timeZoneName(), kTimeZones);
}

Result<void> addSchedulePoint(DefaultsStore& defaults, Looks& looks, std::string_view words) {
    auto point = schedulePoint(words);
    if (!point) {
        return failed(noPointSentence(std::string(words)));
    }
    if (!point->look.empty()) {
        const Look* look = looks.named(point->look);
        if (look == nullptr) {
            return failed(translated("There is no look \"%@\".", {point->look}));
        }
        point->look = look->name;
    }
    PropertyArray points = stored(defaults);
    const PropertyValue added = textOf(*point);
    if (std::find(points.begin(), points.end(), added) != points.end()) {
        return {};
    }
    if (points.size() >= kMostSchedulePoints) {
        return failed(translated("\"%1$@\" takes a list of %2$@ points at most.",
                                 {std::string(kSchedule), std::to_string(kMostSchedulePoints)}));
    }
    points.push_back(added);
    defaults.setObject(std::move(points), kSchedule);
    return {};
}

Result<void> removeSchedulePoint(DefaultsStore& defaults, std::size_t index) {
    PropertyArray points = stored(defaults);
    if (index >= points.size()) {
        return failed(translated("The schedule has no point %@.", {std::to_string(index + 1)}));
    }
    points.erase(points.begin() + static_cast<std::ptrdiff_t>(index));
    defaults.setObject(std::move(points), kSchedule);
    return {};
}

} // namespace nocturo
