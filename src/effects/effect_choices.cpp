#include "effects/effect_choices.h"

#include "effects/color_filter_effect.h"
#include "effects/color_temperature.h"
#include "effects/group_effect.h"
#include "settings/defaults_store.h"
#include "settings/settings_keys.h"

#include <cmath>

namespace nocturo {

namespace {

constexpr double kGentleTemperature = 3500.0;

void setHueAndVividness(double kelvin) {
    const FilterColor filter = filterAtTemperature(kelvin);
    NDColorFilterEffect::setHue(static_cast<float>(filter.hue));
    NDColorFilterEffect::setVividness(static_cast<float>(filter.vividness));
}

} // namespace

void chooseEffect(std::string_view name) {
    const DefaultsStore::Batch oneChange(NDEffect::userDefaults());
    NDGroupEffect chosen;
    if (name == NDColorFilterEffect::kName && !chosen.containsEffect(name)) {
        offerGentleTint();
    }
    chosen.addEffect(name);
    if (!chosen.containsEffect(name)) {
        chosen.addEffect(name); // the list was damaged and is none any more
    }
}

void offerGentleTint() {
    DefaultsStore& defaults = NDEffect::userDefaults();
    if (defaults.objectForKey(kColorFilterHue.key) == nullptr &&
        defaults.objectForKey(kColorFilterVividness.key) == nullptr) {
        const DefaultsStore::Batch oneChange(defaults);
        setHueAndVividness(kGentleTemperature);
    }
}

std::optional<double> filterTemperature() {
    return temperatureOfFilter({NDColorFilterEffect::hue(), NDColorFilterEffect::vividness()});
}

void setFilterTemperature(double kelvin) {
    const DefaultsStore::Batch oneChange(NDEffect::userDefaults());
    setHueAndVividness(kelvin);
    chooseEffect(NDColorFilterEffect::kName);
}

bool stepFilterTemperature(double kelvin) {
    const bool isChosen = NDGroupEffect::effect().containsEffect(NDColorFilterEffect::kName);
    const auto from = isChosen ? filterTemperature() : kNeutralTemperature;
    if (from) {
        setFilterTemperature(std::round(*from) + kelvin);
    }
    return from.has_value();
}

} // namespace nocturo
