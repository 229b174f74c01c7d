// What the controls of the preference window do.

#include "desktop/preferences/preference_panel.h"
#include "desktop/preferences/preferences_controller.h"
#include "desktop/preferences/sheet.h"
#include "desktop/qt/localized.h"
#include "displays/fades.h"
#include "documents/chosen_look.h"
#include "effects/color_filter_effect.h"
#include "effects/dim_effect.h"
#include "effects/effect_choices.h"
#include "effects/group_effect.h"
#include "effects/hdtv_luminance_effect.h"
#include "effects/hide_stripes_effect.h"
#include "effects/invert_effect.h"
#include "session/autostart.h"
#include "settings/defaults_store.h"
#include "settings/settings_keys.h"
#include "ui_NocturoPreferencePanel.h"

#include <QButtonGroup>
#include <QShortcut>

namespace nocturo {

void NDPreferencesController::connectEffects() {
    using Self = NDPreferencesController;
    const auto connectBox = [this](const QCheckBox* box,
                                   void (Self::*action)(const QAbstractButton&)) {
        connect(box, &QAbstractButton::clicked, this,
                [this, box, action] { (this->*action)(*box); });
    };
    connectBox(ui_->invertScreen, &Self::changeInvert);
    connectBox(ui_->hideStripes, &Self::changeHideStripes);
    connectBox(ui_->hdtvLuminance, &Self::changeHDTVLuminance);
    connectBox(ui_->colorFilter, &Self::changeColorFilter);
    connectBox(ui_->dimScreen, &Self::changeDim);
    const auto connectSlider = [this](const ParameterSlider* slider,
                                      void (Self::*action)(const ParameterSlider&)) {
        connect(slider, &ParameterSlider::valueChangedByUser, this, [this, slider, action] {
            const Fades::Change atOnce(surroundings_.fades, Fades::Length::zero());
            (this->*action)(*slider);
        });
    };
    connectSlider(ui_->colorFilterHue, &Self::changeColorFilterHue);
    connectSlider(ui_->colorFilterVividness, &Self::changeColorFilterVividness);
    connectSlider(ui_->temperature, &Self::changeTemperature);
    connectSlider(ui_->dimLevel, &Self::changeDimLevel);
    connectDisplays();
}

void NDPreferencesController::connectSettings() {
    using Self = NDPreferencesController;
    const auto connectBox = [this](const QCheckBox* box,
                                   void (Self::*action)(const QAbstractButton&)) {
        connect(box, &QAbstractButton::clicked, this,
                [this, box, action] { (this->*action)(*box); });
    };
    connectBox(ui_->activateAtLaunch, &Self::changeActivateAtLaunch);
    connectBox(ui_->activateOnClick, &Self::changeActivateOnClick);
    connectBox(ui_->startWithSession, &Self::changeStartWithSession);
    connect(ui_->acceptTray, &QAbstractButton::clicked, ui_->showInTray, &QAbstractButton::click);
    connect(ui_->refuseTray, &QAbstractButton::clicked, ui_->trayOffer, &QWidget::hide);
    connectBox(ui_->continuouslyApply, &Self::changeContinouslyApply);
    connectBox(ui_->deactivateForScreenSaver, &Self::changeDeactivateForScreenSaver);
    connect(ui_->fade, &ParameterSlider::valueChangedByUser, this,
            [this] { changeFade(*ui_->fade); });
    connectBox(ui_->useHotKey, &Self::changeUseHotKey);
    connect(ui_->showStatusItem, &QButtonGroup::idClicked, this,
            [this] { changeShowStatusItem(*ui_->showStatusItem); });
    const HXHotKeyTextField* field = ui_->hotKeyField;
    connect(field, &HXHotKeyTextField::hotKeyEdited, this, [this, field] { changeHotKey(*field); });
    connect(field, &HXHotKeyTextField::recordingStarted, this,
            [this] { setRecordingHotKey(true); });
    connect(field, &HXHotKeyTextField::recordingEnded, this, [this] { setRecordingHotKey(false); });
    connect(ui_->clearHotKey, &QAbstractButton::clicked, this, [this] {
        ui_->hotKeyField->setHotKey(nullptr);
        changeHotKey(*ui_->hotKeyField);
    });
    connectPageKeys();
    if (surroundings_.automation != nullptr && surroundings_.looks != nullptr) {
        const AutomationSurroundings around{surroundings_.defaults, surroundings_.localCenter,
                                            *surroundings_.automation,
                                            surroundings_.looks->looks()};
        ui_->schedule->setSurroundings(around);
        ui_->rules->setSurroundings(around);
    } else {
        for (QWidget* page : {ui_->schedulePage, ui_->rulesPage}) {
            ui_->pages->removeTab(ui_->pages->indexOf(page));
        }
    }
}

/// Wherever the keyboard is; the pages by themselves hear of them only while it is in one.
void NDPreferencesController::connectPageKeys() {
    const auto go = [this](const QKeySequence& keys, int step) {
        connect(new QShortcut(keys, panel_.get()), &QShortcut::activated, this, [this, step] {
            const int count = ui_->pages->count();
            showPage((page() + step + count) % count);
        });
    };
    go(Qt::CTRL | Qt::Key_Tab, 1);
    go(Qt::CTRL | Qt::Key_PageDown, 1);
    go(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, -1);
    go(Qt::CTRL | Qt::Key_PageUp, -1);
}

void NDPreferencesController::setRecordingHotKey(bool recording) {
    recordingHotKey_ = recording;
    surroundings_.recordingDidChange(recording);
    updateHotKeyGrant();
}

void NDPreferencesController::setContains(std::string_view effect, const QAbstractButton& sender) {
    noEffectComfirmed = false;
    NDGroupEffect::effect().setContains(sender.isChecked(), effect);
}

void NDPreferencesController::changeInvert(const QAbstractButton& sender) {
    setContains(NDInvertEffect::kName, sender);
}

void NDPreferencesController::changeHideStripes(const QAbstractButton& sender) {
    setContains(NDHideStripesEffect::kName, sender);
}

void NDPreferencesController::changeHDTVLuminance(const QAbstractButton& sender) {
    setContains(NDHDTVLuminanceEffect::kName, sender);
}

void NDPreferencesController::changeColorFilter(const QAbstractButton& sender) {
    const DefaultsStore::Batch oneChange(surroundings_.defaults);
    if (sender.isChecked()) {
        offerGentleTint();
    }
    setContains(NDColorFilterEffect::kName, sender);
}

void NDPreferencesController::changeDim(const QAbstractButton& sender) {
    setContains(NDDimEffect::kName, sender);
}

void NDPreferencesController::changeColorFilterHue(const ParameterSlider& sender) {
    NDColorFilterEffect::setHue(sender.value());
}

void NDPreferencesController::changeColorFilterVividness(const ParameterSlider& sender) {
    NDColorFilterEffect::setVividness(sender.value());
}

void NDPreferencesController::changeTemperature(const ParameterSlider& sender) {
    setFilterTemperature(static_cast<double>(sender.value()));
}

void NDPreferencesController::changeDimLevel(const ParameterSlider& sender) {
    NDDimEffect::setLevel(sender.value());
}

void NDPreferencesController::changeActivateAtLaunch(const QAbstractButton& sender) {
    surroundings_.defaults.setBool(sender.isChecked(), kActivateAtLaunch);
}

void NDPreferencesController::changeActivateOnClick(const QAbstractButton& sender) {
    surroundings_.defaults.setBool(sender.isChecked(), kActivateOnClick);
}

void NDPreferencesController::changeStartWithSession(const QAbstractButton& sender) {
    if (const auto changed = surroundings_.autostart->setOn(sender.isChecked()); !changed) {
        showFailure(panel_.get(), changed.error().text);
    }
    updateStartWithSession();
}

void NDPreferencesController::changeContinouslyApply(const QAbstractButton& sender) {
    surroundings_.defaults.setBool(sender.isChecked(), kContinuouslyApply);
}

void NDPreferencesController::changeDeactivateForScreenSaver(const QAbstractButton& sender) {
    surroundings_.defaults.setBool(sender.isChecked(), kDeactivateForScreenSaver);
}

void NDPreferencesController::changeShowStatusItem(const QButtonGroup& sender) {
    surroundings_.defaults.setInteger(sender.checkedId(), kShowStatusItem);
    panel_->raise();
    panel_->activateWindow();
}

void NDPreferencesController::changeUseHotKey(const QAbstractButton& sender) {
    surroundings_.defaults.setBool(sender.isChecked(), kUseHotKey);
    if (sender.isChecked()) {
        if (ui_->hotKeyField->hotKey() == nullptr) {
            ui_->hotKeyField->startRecording();
        }
    } else if (ui_->hotKeyField->isRecording()) {
        ui_->useHotKey->setFocus();
    }
}

void NDPreferencesController::changeHotKey(const HXHotKeyTextField& sender) {
    // The field ends its recording by itself and keeps the focus, so that Tab goes on from it.
    const auto& hotKey = sender.hotKey();
    const std::int64_t keyCode = hotKey != nullptr ? hotKey->keyCode() : 0;
    const std::uint64_t flags = hotKey != nullptr ? hotKey->modifierFlags() : 0;
    const DefaultsStore::Batch oneChange(surroundings_.defaults);
    surroundings_.defaults.setInteger(keyCode, kHotKeyCode);
    surroundings_.defaults.setInteger(static_cast<std::int64_t>(flags), kHotKeyModifiers);
}

} // namespace nocturo
