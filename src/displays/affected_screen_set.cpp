#include "displays/affected_screen_set.h"

#include "settings/defaults_store.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

namespace nocturo {

namespace {

std::optional<std::vector<double>> storedSet(const DefaultsStore& defaults) {
    const PropertyArray* array = defaults.arrayForKey(kAffectedScreenSet);
    if (array == nullptr) {
        return std::nullopt;
    }
    std::vector<double> numbers;
    for (const PropertyValue& element : *array) {
        const auto number = element.number();
        if (!number || std::isnan(*number)) {
            return std::nullopt;
        }
        numbers.push_back(*number);
    }
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

PropertyValue stored(double number) {
    constexpr double kExactIntegers = 9007199254740992.0; // 2 to the 53rd
    if (std::trunc(number) == number && std::abs(number) <= kExactIntegers) {
        return static_cast<std::int64_t>(number);
    }
    return number;
}

void store(DefaultsStore& defaults, const std::vector<double>& numbers) {
    PropertyArray array;
    std::transform(numbers.begin(), numbers.end(), std::back_inserter(array), stored);
    defaults.setObject(std::move(array), kAffectedScreenSet);
}

} // namespace

std::vector<double> affectedScreenSet(const DefaultsStore& defaults) {
    if (auto numbers = storedSet(defaults)) {
        return *std::move(numbers);
    }
    const auto single = static_cast<std::int32_t>(defaults.integerForKey(kAffectedScreens));
    return single != 0 ? std::vector<double>{static_cast<double>(single)} : std::vector<double>();
}

std::vector<std::int64_t> affectedScreenIdentifiers(const DefaultsStore& defaults) {
    std::vector<std::int64_t> identifiers;
    for (const double number : affectedScreenSet(defaults)) {
        if (std::trunc(number) == number && number >= std::numeric_limits<std::int32_t>::min() &&
            number <= std::numeric_limits<std::uint32_t>::max()) {
            identifiers.push_back(static_cast<std::int64_t>(number));
        }
    }
    return identifiers;
}

std::vector<CGDirectDisplayID> absentAffectedDisplays(const DefaultsStore& defaults,
                                                      const std::vector<DisplayInfo>& online) {
    std::vector<CGDirectDisplayID> absent;
    for (const std::int64_t identifier : affectedScreenIdentifiers(defaults)) {
        const auto display = static_cast<CGDirectDisplayID>(identifier);
        const bool isThere = std::ranges::find(online, display, &DisplayInfo::id) != online.end();
        if (!isThere && std::ranges::find(absent, display) == absent.end()) {
            absent.push_back(display);
        }
    }
    return absent;
}

void chooseAffectedScreen(DefaultsStore& defaults, std::int32_t tag) {
    // Read before the older key is written: while the set key is absent that key is the set.
    std::vector<double> numbers = affectedScreenSet(defaults);
    const DefaultsStore::Batch oneChange(defaults);
    defaults.setInteger(tag, kAffectedScreens);
    if (tag == 0) {
        defaults.setObject(PropertyArray(), kAffectedScreenSet);
        return;
    }
    const auto number = static_cast<double>(tag);
    if (std::erase(numbers, number) == 0) {
        numbers.push_back(number);
        std::sort(numbers.begin(), numbers.end());
    }
    store(defaults, numbers);
}

void addAffectedScreens(DefaultsStore& defaults, const std::vector<std::int64_t>& displays) {
    std::vector<double> numbers = affectedScreenSet(defaults);
    if (!numbers.empty()) {
        numbers.insert(numbers.end(), displays.begin(), displays.end());
        std::sort(numbers.begin(), numbers.end());
        numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
        store(defaults, numbers);
    }
}

bool removeAffectedScreens(DefaultsStore& defaults, const std::vector<std::int64_t>& displays,
                           const std::vector<std::int64_t>& online) {
    std::vector<double> numbers = affectedScreenSet(defaults);
    if (numbers.empty()) {
        numbers.assign(online.begin(), online.end());
        std::sort(numbers.begin(), numbers.end());
    }
    for (const std::int64_t display : displays) {
        std::erase(numbers, static_cast<double>(display));
    }
    if (!numbers.empty()) {
        store(defaults, numbers);
    }
    return !numbers.empty();
}

} // namespace nocturo
