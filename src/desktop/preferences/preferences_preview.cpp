// What the preference window shows of displays: the picture and the plot of one, the strips of
// color and the pictures of looks.

#include "automation/automation.h"
#include "automation/display_looks_setting.h"
#include "base/notification_center.h"
#include "desktop/controls/page_parts.h"
#include "desktop/preferences/filter_colors.h"
#include "desktop/preferences/preference_panel.h"
#include "desktop/preferences/preferences_controller.h"
#include "desktop/preferences/sheet.h"
#include "desktop/qt/localized.h"
#include "displays/display_functions.h"
#include "displays/display_names.h"
#include "documents/chosen_look.h"
#include "ui_NocturoPreferencePanel.h"

#include <QScreen>
#include <QSignalBlocker>

#include <algorithm>

namespace nocturo {

void NDPreferencesController::connectDisplays() {
    connect(ui_->previewDisplay, &QComboBox::currentIndexChanged, this, [this] {
        readPreviewedDisplay();
        updatePreview();
    });
    connect(ui_->displayLook, &QComboBox::activated, this,
            &NDPreferencesController::changeDisplayLook);
    // Looks of displays are read again before it is posted, and others than the hand may rule.
    surroundings_.localCenter.addObserver(this, kRulingNotification,
                                          [this] { displaysDidChange(); });
}

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
    listAbsentDisplays(chosen);
    for (QWidget* part :
         std::initializer_list<QWidget*>{ui_->previewDisplayLabel, ui_->previewDisplay}) {
        part->setVisible(ui_->previewDisplay->count() > 1);
    }
}

/// Those that have a look of their own, so that it can be seen and taken away.
void NDPreferencesController::listAbsentDisplays(const QVariant& chosen) {
    if (surroundings_.automation == nullptr || surroundings_.looks == nullptr) {
        return;
    }
    for (const auto& [display, look] : looksOfDisplays(
             surroundings_.defaults, surroundings_.looks->looks(), [](const std::string&) {})) {
        const QString name = QString::fromStdString(DisplayNames::shared().nameOf(display));
        if (ui_->previewDisplay->findData(display) < 0 && !name.isEmpty()) {
            ui_->previewDisplay->addItem(filled(localized("%@, not connected"), {name}), display);
            if (chosen.isValid() && chosen.toUInt() == display) {
                ui_->previewDisplay->setCurrentIndex(ui_->previewDisplay->count() - 1);
            }
        }
    }
}

void NDPreferencesController::changeDisplayLook() {
    const auto changed = setLookOfDisplay(surroundings_.defaults, surroundings_.looks->looks(),
                                          ui_->previewDisplay->currentData().toUInt(),
                                          ui_->displayLook->currentData().toString().toStdString());
    if (!changed) {
        showFailure(panel_.get(), changed.error().text);
    }
    displaysDidChange();
}

/// The look that a display has of its own. A single display has none, unless it was given one.
void NDPreferencesController::updateDisplayLook(const std::string& name) {
    const bool isShown = surroundings_.automation != nullptr && surroundings_.looks != nullptr &&
                         (ui_->previewDisplay->count() > 1 || !name.empty());
    ui_->displayLookLabel->setVisible(isShown);
    ui_->displayLook->setVisible(isShown);
    if (isShown) {
        listLooks(*ui_->displayLook, surroundings_.looks->looks(), QString::fromStdString(name),
                  localized("As all screens"));
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
    if (Automation* automation = surroundings_.automation; automation != nullptr) {
        const std::string look = automation->lookOfDisplay(previewed);
        previewedEffect_ = automation->effectOf({{true, look}});
        seenEffect_ = automation->effectOf(automation->ruling(true, seenOn.id));
        updateDisplayLook(look);
    } else {
        updateDisplayLook({});
    }
}

void NDPreferencesController::updatePreview() {
    PreviewCurves curves = previewCurves(previewed_, previewedEffect_.get());
    curves.seenThrough =
        seenWithEffect_ ? previewCurves(seenOn_, seenEffect_.get()).after : seenOn_;
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
