// What the preference window shows of displays: the picture and the plot of one, the strips of
// color and the pictures of looks.

#include "desktop/preferences/filter_colors.h"
#include "desktop/preferences/preference_panel.h"
#include "desktop/preferences/preferences_controller.h"
#include "desktop/qt/localized.h"
#include "displays/display_functions.h"
#include "ui_NocturoPreferencePanel.h"

#include <QScreen>
#include <QSignalBlocker>

#include <algorithm>

namespace nocturo {

void NDPreferencesController::listPreviewedDisplays() {
    const auto* online =
        displayServices() != nullptr ? displayServices()->onlineDisplays() : nullptr;
    const QVariant chosen = ui_->previewDisplay->currentData();
    const QSignalBlocker quiet(ui_->previewDisplay);
    ui_->previewDisplay->clear();
    const std::size_t count =
        online != nullptr ? std::min<std::size_t>(online->size(), kZQMaxDisplays) : 0;
    for (std::size_t i = 0; i < count; ++i) {
        const DisplayInfo& display = (*online)[i];
        ui_->previewDisplay->addItem(filled(localized("Screen %d"), {QString::number(i + 1)}) +
                                         QStringLiteral(" – ") +
                                         QString::fromStdString(display.name),
                                     display.id);
        if (chosen.isValid() ? chosen.toUInt() == display.id : display.main) {
            ui_->previewDisplay->setCurrentIndex(static_cast<int>(i));
        }
    }
    for (QWidget* part :
         std::initializer_list<QWidget*>{ui_->previewDisplayLabel, ui_->previewDisplay}) {
        part->setVisible(count > 1);
    }
}

/// Which one it is, and what keeps it from showing an effect.
DisplayInfo NDPreferencesController::displayOfWindow() const {
    const std::string name = panel_->screen()->name().toStdString();
    const auto* online =
        displayServices() != nullptr ? displayServices()->onlineDisplays() : nullptr;
    if (online != nullptr) {
        for (const DisplayInfo& display : *online) {
            if (display.name == name) {
                return display;
            }
        }
    }
    return {};
}

void NDPreferencesController::readPreviewedDisplay() {
    const CGDirectDisplayID previewed = ui_->previewDisplay->currentData().toUInt();
    previewed_ = curveWithoutEffect(previewed, surroundings_.capturedCurve);
    const DisplayInfo seenOn = displayOfWindow();
    seenOn_ = seenOn.id == previewed ? previewed_
                                     : curveWithoutEffect(seenOn.id, surroundings_.capturedCurve);
    seenWithEffect_ =
        seenOn.obstacle == Obstacle::none && surroundings_.capturedCurve(seenOn.id) != nullptr;
    ui_->preview->setDisplayName(ui_->previewDisplay->currentText());
}

void NDPreferencesController::updatePreview() {
    PreviewCurves curves = previewCurves(previewed_);
    curves.seenThrough = seenWithEffect_ ? previewCurves(seenOn_).after : seenOn_;
    ui_->preview->setCurves(curves);
    if (!strips_.isActive()) {
        strips_.start();
    }
    looks_.start(); // anew: their pictures wait until a slider rests
}

void NDPreferencesController::updateStrips() {
    const auto levels = plainLevels(ui_->preview->curves());
    ui_->colorFilterHue->setColors(hueStops(levels));
    ui_->temperature->setColors(temperatureStops(
        levels, [this](double share) { return ui_->temperature->valueAt(share); }));
}

void NDPreferencesController::updateLooks() {
    ui_->looks->setCurves(ui_->preview->curves());
}

} // namespace nocturo
