#include "automation/schedule_setting.h"

#include "automation/time_zone_place.h"
#include "automation/word_list.h"
#include "base/texts/shortened.h"
#include "base/texts/translated.h"
#include "documents/looks.h"
#include "settings/defaults_store.h"
#include "settings/settings_keys.h"

namespace nocturo {

namespace {

constexpr const char* kTimeZones = "/usr/share/zoneinfo";

} // namespace

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
            return failed(translated("There is no look \"%@\".", {shortened(point->look)}));
        }
        point->look = look->name;
    }
    if (!addWords(defaults, kSchedule, textOf(*point), kMostSchedulePoints)) {
        return failed(translated("\"%1$@\" takes a list of %2$@ points at most.",
                                 {std::string(kSchedule), std::to_string(kMostSchedulePoints)}));
    }
    return {};
}

Result<void> removeSchedulePoint(DefaultsStore& defaults, std::size_t index) {
    if (!removeWords(defaults, kSchedule, index)) {
        return failed(translated("The schedule has no point %@.", {std::to_string(index + 1)}));
    }
    return {};
}

} // namespace nocturo
