#include "effects/effect_choices.h"

#include "effects/color_filter_effect.h"
#include "effects/color_temperature.h"
#include "effects/dim_effect.h"
#include "effects/group_effect.h"
#include "settings/defaults_store.h"
#include "settings/settings_keys.h"

#include <algorithm>
#include <cmath>

namespace nocturo {

namespace {

constexpr double kGentleTemperature = 3500.0;

void setHueAndVividness(double kelvin) {
    const FilterColor filter = filterAtTemperature(kelvin);
    NDColorFilterEffect::setHue(static_cast<float>(filter.hue));
    NDColorFilterEffect::setVividness(static_cast<float>(filter.vividness));
}

double limited(double value, const RealSetting& setting) {
    return std::clamp(value, static_cast<double>(setting.lowest),
                      static_cast<double>(setting.highest));
}

double aroundTheCircle(double hue) {
    const double rest = std::fmod(hue, 360.0);
    return rest < 0.0 ? rest + 360.0 : hue == 360.0 ? hue : rest;
}

/// Ten steps of a tenth are to be one.
float withoutDust(double value) {
    return static_cast<float>(std::round(value * 1e5) / 1e5);
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

void setDim(double level) {
    const DefaultsStore::Batch oneChange(NDEffect::userDefaults());
    NDDimEffect::setLevel(withoutDust(limited(level, kDimLevel)));
    chooseEffect(NDDimEffect::kName);
}

void stepDim(double by) {
    const bool isChosen = NDGroupEffect::effect().containsEffect(NDDimEffect::kName);
    setDim((isChosen ? NDDimEffect::level() : 0.0) + by);
}

void setTint(double hue, double vividness) {
    const DefaultsStore::Batch oneChange(NDEffect::userDefaults());
    NDColorFilterEffect::setHue(withoutDust(aroundTheCircle(hue)));
    NDColorFilterEffect::setVividness(withoutDust(limited(vividness, kColorFilterVividness)));
    chooseEffect(NDColorFilterEffect::kName);
}

void stepSetting(std::string_view key, double by) {
    for (const RealSetting* setting : {&kDimLevel, &kColorFilterHue, &kColorFilterVividness}) {
        if (key == setting->key) {
            DefaultsStore& defaults = NDEffect::userDefaults();
            const double value = defaults.floatForKey(*setting) + by;
            defaults.setFloat(withoutDust(setting == &kColorFilterHue ? aroundTheCircle(value)
                                                                      : limited(value, *setting)),
                              key);
        }
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
