// The sliders of the preference window, and the boxes of the effects that they belong to.

#include "desktop/preferences/filter_colors.h"
#include "desktop/preferences/preference_panel.h"
#include "desktop/preferences/preferences_controller.h"
#include "desktop/qt/localized.h"
#include "effects/color_filter_effect.h"
#include "effects/color_temperature.h"
#include "effects/dim_effect.h"
#include "effects/effect_choices.h"
#include "effects/group_effect.h"
#include "effects/hdtv_luminance_effect.h"
#include "effects/hide_stripes_effect.h"
#include "effects/invert_effect.h"
#include "settings/defaults_store.h"
#include "settings/settings_keys.h"
#include "ui_NocturoPreferencePanel.h"

#include <algorithm>
#include <cmath>

namespace nocturo {

namespace {

constexpr double kFadeStep = 0.1;

/// Of the longest word beside a slider, so that the sliders keep their length.
int widthOfWords(const QFontMetrics& metrics) {
    int width = 0;
    for (int degrees = 0; degrees < 360; degrees += 30) {
        width = std::max(width, metrics.horizontalAdvance(hueWord(degrees)));
    }
    for (const double kelvin : {1900.0, 2700.0, 4000.0, kNeutralTemperature}) {
        width = std::max(width, metrics.horizontalAdvance(temperatureWord(kelvin)));
    }
    return width;
}

} // namespace

void NDPreferencesController::setUpSliders() {
    using Track = TrackSlider::Track;
    const QString percent = localized(" %");
    ui_->colorFilterHue->setParameter({.minimum = kColorFilterHue.lowest,
                                       .maximum = kColorFilterHue.highest,
                                       .defaultValue = kColorFilterHue.whenAbsent,
                                       .step = 1,
                                       .page = 15,
                                       .unit = QStringLiteral("°"),
                                       .track = Track::Hue});
    ui_->colorFilterVividness->setParameter({.minimum = kColorFilterVividness.lowest,
                                             .maximum = kColorFilterVividness.highest,
                                             .defaultValue = kColorFilterVividness.whenAbsent,
                                             .scale = 100,
                                             .unit = percent});
    ui_->temperature->setParameter({.minimum = kLowestTemperature,
                                    .maximum = kHighestTemperature,
                                    .defaultValue = kNeutralTemperature,
                                    .step = 50,
                                    .page = 500,
                                    .unit = QStringLiteral(" K"),
                                    .track = Track::Temperature,
                                    .reciprocal = true});
    ui_->dimLevel->setParameter({.minimum = kDimLevel.lowest,
                                 .maximum = kDimLevel.highest,
                                 .defaultValue = kDimLevel.whenAbsent,
                                 .scale = 100,
                                 .unit = percent,
                                 .track = Track::Middle});
    ui_->fade->setParameter({.minimum = static_cast<double>(kFadeSeconds.lowest),
                             .maximum = static_cast<double>(kFadeSeconds.highest),
                             .defaultValue = static_cast<double>(kFadeSeconds.whenAbsent),
                             .step = kFadeStep,
                             .page = 0.5,
                             .unit = localized(" s"),
                             .decimals = 1,
                             .zero = localized("at once")});
    ui_->hueWord->setFixedWidth(widthOfWords(ui_->hueWord->fontMetrics()));
    const auto setUpTimer = [this](QTimer& timer, int milliseconds,
                                   void (NDPreferencesController::*action)()) {
        timer.setSingleShot(true);
        timer.setInterval(milliseconds);
        connect(&timer, &QTimer::timeout, this, action);
    };
    setUpTimer(strips_, 16, &NDPreferencesController::updateStrips);
    setUpTimer(looks_, 60, &NDPreferencesController::updateLooks);
}

void NDPreferencesController::updateEffects() {
    const auto isSelected = [](std::string_view name) {
        return NDGroupEffect::effect().containsEffect(name);
    };
    ui_->invertScreen->setChecked(isSelected(NDInvertEffect::kName));
    ui_->hideStripes->setChecked(isSelected(NDHideStripesEffect::kName));
    ui_->hdtvLuminance->setChecked(isSelected(NDHDTVLuminanceEffect::kName));
    const bool filters = isSelected(NDColorFilterEffect::kName);
    ui_->colorFilter->setChecked(filters);
    ui_->colorFilterHue->setEnabled(filters);
    ui_->colorFilterVividness->setEnabled(filters);
    updateFilter();
    const bool dims = isSelected(NDDimEffect::kName);
    ui_->dimScreen->setChecked(dims);
    ui_->dimLevel->setEnabled(dims);
    ui_->dimLevel->setValue(NDDimEffect::level());
}

void NDPreferencesController::updateFilter() {
    const float hue = NDColorFilterEffect::hue();
    const float vividness = NDColorFilterEffect::vividness();
    ui_->colorFilterHue->setValue(hue);
    ui_->colorFilterHue->setWord(hueWord(static_cast<double>(hue)));
    ui_->hueWord->setText(hueWord(static_cast<double>(hue)));
    ui_->hueWord->setEnabled(ui_->colorFilterHue->isEnabled());
    ui_->colorFilterVividness->setValue(vividness);
    const auto kelvin = ui_->colorFilter->isChecked() ? filterTemperature() : std::nullopt;
    const QString word = kelvin ? temperatureWord(*kelvin) : QString();
    if (!kelvin) {
        ui_->temperature->setEmpty();
    } else if (ui_->temperature->isEmpty() ||
               std::lround(*kelvin) !=
                   std::lround(static_cast<double>(ui_->temperature->value()))) {
        ui_->temperature->setValue(static_cast<float>(*kelvin));
    }
    ui_->temperature->setWord(word);
    ui_->temperatureWord->setText(word);
}

void NDPreferencesController::changeFade(const ParameterSlider& sender) {
    // Positions of the slider lie between those that are shown.
    const double steps = std::round(static_cast<double>(sender.value()) / kFadeStep);
    surroundings_.defaults.setFloat(static_cast<float>(steps * kFadeStep), kFadeSeconds.key);
}

} // namespace nocturo
