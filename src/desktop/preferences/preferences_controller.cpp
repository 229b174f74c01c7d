#include "desktop/preferences/preferences_controller.h"

#include "app/screen_option_menu_manager.h"
#include "base/notification_center.h"
#include "desktop/hotkey_field/hot_key_grant_row.h"
#include "desktop/menus/drawn_menu.h"
#include "desktop/preferences/preference_panel.h"
#include "desktop/preferences/sheet.h"
#include "desktop/qt/localized.h"
#include "displays/affected_screen_set.h"
#include "displays/display_functions.h"
#include "documents/looks.h"
#include "effects/group_effect.h"
#include "hotkeys/hot_key_grant.h"
#include "hotkeys/saved_hot_key.h"
#include "session/autostart.h"
#include "settings/defaults_store.h"
#include "settings/settings_keys.h"
#include "ui_NocturoPreferencePanel.h"

#include <QAccessibleWidget>
#include <QButtonGroup>
#include <QMenu>
#include <QScreen>
#include <QStyle>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace nocturo {

namespace {

constexpr int kStatusItemRow = 1;
// Of a screen's. Some desktops put the middle of the window, which has a title besides, into that
// of the screen.
constexpr double kMostOfWidth = 0.98;
constexpr double kMostOfHeight = 0.9;

/// What it needs, in so far as the screen has room, and then a scroll bar as well.
QSize sizeThatFits(const QWidget& window) {
    const QSize own = window.sizeHint();
    const QSize screen = window.screen()->availableSize();
    QSize size = own.boundedTo({own.width(), static_cast<int>(screen.height() * kMostOfHeight)});
    if (size.height() < own.height()) {
        size.rwidth() += window.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &window);
    }
    return size.boundedTo({static_cast<int>(screen.width() * kMostOfWidth), size.height()});
}

/// A sentence that screen readers say whenever it is shown anew.
class AnnouncedSentence : public QAccessibleWidget {
  public:
    explicit AnnouncedSentence(QLabel* label)
        : QAccessibleWidget(label, QAccessible::Notification) {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? qobject_cast<QLabel*>(object())->text()
                                         : QAccessibleWidget::text(kind);
    }
};

} // namespace

NDPreferencesController::NDPreferencesController(PreferenceSurroundings surroundings)
    : surroundings_(std::move(surroundings)) {}

NDPreferencesController::~NDPreferencesController() {
    surroundings_.localCenter.removeObserver(this);
}

std::vector<double> NDPreferencesController::affectedScreenSet() {
    return nocturo::affectedScreenSet(*DefaultsStore::standardUserDefaults());
}

void NDPreferencesController::setKeyboardLayout(KeyboardLayout* layout) {
    layout_ = layout;
    if (isWindowLoaded()) {
        ui_->hotKeyField->setKeyboardLayout(layout);
    }
}

PreferencePanel* NDPreferencesController::window() const {
    return panel_.get();
}

void NDPreferencesController::loadWindow() {
    if (isWindowLoaded()) {
        return;
    }
    panel_ = std::make_unique<PreferencePanel>();
    ui_ = std::make_unique<Ui::NocturoPreferencePanel>();
    ui_->setupUi(panel_.get());
    QAccessible::registerAccessibleInterface(new AnnouncedSentence(ui_->stateSentence));
    setUpSliders();
    for (QWidget* control : panel_->findChildren<QWidget*>()) {
        control->setWhatsThis(control->toolTip());
    }
    ui_->showStatusItem->setId(ui_->showInTaskBar, 0);
    ui_->showStatusItem->setId(ui_->showInTray, kStatusItemRow);
    ui_->hotKeyField->setKeyboardLayout(layout_);
    hotKeyGrant_ = new HotKeyGrantRow;
    ui_->hotKeyLayout->addWidget(hotKeyGrant_);
    connectEffects();
    connectSettings();
    connectDocuments();
    windowDidLoad();
}

void NDPreferencesController::windowDidLoad() {
    noEffectComfirmed = true;
    ui_->trayOffer->hide();
    ui_->effectSwitch->setVisible(static_cast<bool>(surroundings_.toggle));
    connect(ui_->effectSwitch, &QAbstractButton::clicked, this, [this] {
        surroundings_.toggle();
        updateState(); // which may be as it was
    });
    connect(ui_->showCurves, &QAbstractButton::toggled, this, [this](bool shown) {
        const auto folded = panel_->isRightToLeft() ? Qt::LeftArrow : Qt::RightArrow;
        ui_->showCurves->setArrowType(shown ? Qt::DownArrow : folded);
        ui_->preview->setPlotShown(shown);
    });
    Q_EMIT ui_->showCurves->toggled(false);
    ui_->looks->setVisible(surroundings_.looks != nullptr);
    if (surroundings_.looks != nullptr) {
        ui_->looks->setLooks(surroundings_.defaults, *surroundings_.looks, surroundings_.pickLook,
                             surroundings_.shownLook);
        surroundings_.localCenter.addObserver(this, kLooksDidChangeNotification,
                                              [this] { ui_->looks->list(); });
    }
    listPreviewedDisplays();
    readPreviewedDisplay();
    update({});
    updateLooks();
    surroundings_.localCenter.addObserver(this, NSUserDefaultsDidChangeNotification,
                                          [this](const Subjects& settings) { update(settings); });
    surroundings_.localCenter.addObserver(this, kHotKeyGrantNotification,
                                          [this] { updateHotKeyGrant(); });

    // The menu's first item stands for the button itself: its title sums the choice up.
    screensMenu_ = std::make_unique<Menu>();
    MenuItem item;
    item.isVisible = false;
    const Menu::Id title = screensMenu_->append(std::move(item));
    screensMenu_->changes().addObserver(this, kMenuDidChangeNotification, [this, title] {
        ui_->affectedScreens->setText(QString::fromStdString(screensMenu_->item(title)->text));
    });
    _screensMenuManager = std::make_unique<NDScreenOptionMenuManager>(
        surroundings_.defaults, surroundings_.localCenter, *screensMenu_, title, title, true, false,
        0);
    auto* menu = new QMenu(ui_->affectedScreens);
    drawnScreensMenu_ = std::make_unique<DrawnMenu>(*screensMenu_, *menu);
    ui_->affectedScreens->setMenu(menu);

    panel_->shouldClose = [this] { return windowShouldClose(); };
    updateStartWithSession();
    connect(panel_.get(), &PreferencePanel::activated, this, [this] {
        updateStartWithSession();
        readPreviewedDisplay();
        updatePreview();
    });
    connect(panel_.get(), &PreferencePanel::screenChanged, this,
            &NDPreferencesController::displaysDidChange);
    connect(panel_.get(), &PreferencePanel::resized, this, &NDPreferencesController::fitRoom);
    connect(ui_->closeButton, &QPushButton::clicked, panel_.get(), &QWidget::close);
}

void NDPreferencesController::showWindow() {
    loadWindow();
    const bool wasVisible = panel_->isVisible();
    if (!panel_->testAttribute(Qt::WA_Resized)) {
        // Qt by itself would give it two thirds of the screen at most.
        panel_->resize(sizeThatFits(*panel_));
    }
    panel_->setWindowState(panel_->windowState() & ~Qt::WindowMinimized);
    panel_->show();
    panel_->raise();
    panel_->activateWindow();
    if (!wasVisible || ui_->hotKeyField->isRecording()) {
        resignFirstResponder();
    }
}

int NDPreferencesController::page() const {
    return ui_->pages->currentIndex();
}

void NDPreferencesController::showPage(int page) {
    ui_->pages->setCurrentIndex(page);
}

void NDPreferencesController::resignFirstResponder() {
    if (QWidget* focus = panel_->focusWidget()) {
        focus->clearFocus();
    }
}

/// On a small screen or with large text the window leaves out what the menu "File" has as well,
/// and its parts draw together.
void NDPreferencesController::fitRoom() {
    const bool wasTight = ui_->closeButton->isHidden();
    if (!wasTight) {
        roomy_ = ui_->effectsPageContent->minimumSizeHint() + panel_->size() -
                 ui_->pages->currentWidget()->size();
    }
    const bool isTight = panel_->size().expandedTo(roomy_) != panel_->size();
    if (isTight == wasTight) {
        return;
    }
    for (QWidget* button :
         std::initializer_list<QWidget*>{ui_->openButton, ui_->saveButton, ui_->closeButton}) {
        button->setVisible(!isTight);
    }
    for (QGridLayout* layout : {ui_->panelLayout, ui_->effectsPageLayout}) {
        isTight ? layout->setContentsMargins(4, 4, 4, 4) : layout->unsetContentsMargins();
        layout->setVerticalSpacing(isTight ? 2 : -1); // or as the style has it
    }
    ui_->previewLayout->setVerticalSpacing(isTight ? 2 : 6);
    ui_->effectsLayout->setVerticalSpacing(isTight ? 2 : 9);
    ui_->effectsLayout->removeItem(ui_->dimLayout);
    ui_->effectsLayout->addItem(ui_->dimLayout, 5, 0, 1, isTight ? 4 : 3); // below the words, too
    ui_->effectsPageLayout->setHorizontalSpacing(isTight ? 9 : 18);
    ui_->showCurves->setToolButtonStyle(isTight ? Qt::ToolButtonIconOnly
                                                : Qt::ToolButtonTextBesideIcon);
    ui_->looks->setTight(isTight);
    if (!isTight) {
        QTimer::singleShot(0, this,
                           &NDPreferencesController::fitRoom); // looks may need a scroll bar
    }
}

bool NDPreferencesController::windowShouldClose() {
    surroundings_.defaults.synchronize();
    if (noEffectComfirmed || NDGroupEffect::effect().effectCount() != 0) {
        resignFirstResponder();
        return true;
    }
    QMessageBox* alert = newSheet(
        panel_.get(), QMessageBox::Warning, localized("No effect has been chosen."),
        localized(
            "You should check at least one box in the preference panel relating to the screen "
            "effect, or Nocturo will have no visible effect on your screen."));
    auto* cancel = alert->addButton(localized("Cancel"), QMessageBox::RejectRole);
    auto* closeAnyway = alert->addButton(localized("Close anyway"), QMessageBox::AcceptRole);
    alert->setDefaultButton(cancel);
    alert->setEscapeButton(cancel);
    connect(closeAnyway, &QAbstractButton::clicked, this, [this] {
        noEffectComfirmed = true;
        panel_->closeDirectly();
    });
    showSheet(*alert);
    return false;
}

void NDPreferencesController::update(const Subjects& settings) {
    if (settings.containAnyOf(kAffectedScreenSettings)) {
        readPreviewedDisplay(); // the effect may have come to it or gone
        updatePreview();
    }
    if (settings.containAnyOf(kEffectSettings)) {
        updateEffects();
        updatePreview();
    }
    if (settings.containAnyOf(kHotKeySettings)) {
        ui_->useHotKey->setChecked(surroundings_.defaults.boolForKey(kUseHotKey));
        const auto saved = NDSavedHotKey(surroundings_.defaults);
        const auto& shown = ui_->hotKeyField->hotKey();
        if (saved == nullptr || shown == nullptr || !saved->isEqual(*shown)) {
            ui_->hotKeyField->setHotKey(saved);
        }
        ui_->clearHotKey->setEnabled(saved != nullptr);
        updateHotKeyGrant();
    }
    updateBoxes();
    updateState();
}

void NDPreferencesController::updateHotKeyGrant() {
    if (!recordingHotKey_) { // while none is registered
        hotKeyGrant_->update(surroundings_.defaults, layout_);
    }
}

void NDPreferencesController::updateState() {
    if (!isWindowLoaded() || !surroundings_.toggle) {
        return;
    }
    ui_->effectSwitch->setChecked(surroundings_.isOn());
    ui_->schedule->follow();
    ui_->looks->tick();
    const QString sentence = QString::fromStdString(surroundings_.stateSentence());
    if (ui_->stateSentence->text() != sentence) {
        ui_->stateSentence->setText(sentence);
        QAccessibleEvent news(ui_->stateSentence, QAccessible::ObjectShow);
        QAccessible::updateAccessibility(&news);
    }
}

void NDPreferencesController::updateBoxes() {
    const DefaultsStore& defaults = surroundings_.defaults;
    ui_->continuouslyApply->setChecked(defaults.boolForKey(kContinuouslyApply));
    ui_->activateAtLaunch->setChecked(defaults.boolForKey(kActivateAtLaunch));
    ui_->activateOnClick->setChecked(defaults.boolForKey(kActivateOnClick));
    ui_->deactivateForScreenSaver->setChecked(defaults.boolForKey(kDeactivateForScreenSaver));
    ui_->fade->setValue(defaults.floatForKey(kFadeSeconds));
    // Every other number means an ordinary application, too.
    const bool inTray = defaults.integerForKey(kShowStatusItem) == kStatusItemRow;
    (inTray ? ui_->showInTray : ui_->showInTaskBar)->setChecked(true);
    if (inTray) {
        ui_->trayOffer->hide();
    }
}

void NDPreferencesController::updateStartWithSession() {
    ui_->startWithSession->setVisible(surroundings_.autostart != nullptr);
    ui_->startWithSession->setChecked(surroundings_.autostart != nullptr &&
                                      surroundings_.autostart->isOn());
}

void NDPreferencesController::offerLooks() {
    loadWindow();
    showPage(0);
    ui_->looks->setFocus();
}

void NDPreferencesController::offerTray() {
    loadWindow();
    ui_->trayOffer->show();
    panel_->resize(panel_->size().expandedTo({0, sizeThatFits(*panel_).height()}));
}

void NDPreferencesController::displaysDidChange() {
    if (isWindowLoaded()) {
        listPreviewedDisplays();
        readPreviewedDisplay();
        updatePreview();
        updateState();
    }
}

} // namespace nocturo
