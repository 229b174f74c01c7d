#include "desktop/app_windows.h"

#include "app/app_controller.h"
#include "app/effect_state.h"
#include "app/look_picker.h"
#include "automation/automation.h"
#include "base/notification_names.h"
#include "desktop/about/about_box_controller.h"
#include "desktop/about/about_box_views.h"
#include "desktop/help/guide_window.h"
#include "desktop/preferences/preference_panel.h"
#include "desktop/preview/effect_preview.h"
#include "desktop/qt/bundle_information.h"

#include <QApplication>
#include <QBuffer>
#include <QFileInfo>
#include <QGridLayout>
#include <QImage>
#include <QLabel>
#include <QMenuBar>
#include <QPalette>
#include <QScreen>
#include <QSettings>
#include <QTimer>

#include <algorithm>

namespace nocturo {

namespace {

constexpr QSize kPictureSize(640, 400);
constexpr auto kGeometry = "Geometry";
constexpr auto kPage = "Page";
constexpr double kMostOfScreen = 0.9; // the window has a title besides

/// Gives windows and dialogs their icon once the first one shows something: reading its pictures
/// and handing them to the server takes as long as all else that a window needs.
class LateIcon : public QObject {
  public:
    LateIcon() : QObject(qApp) { qApp->installEventFilter(this); }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Expose) {
            qApp->removeEventFilter(this);
            QTimer::singleShot(0, this, [this] {
                QApplication::setWindowIcon(applicationIcon());
                deleteLater();
            });
        }
        return false;
    }
};

// Where the display server places windows, the one where a window was tells nothing of the one
// where it comes to, which may be smaller.
void fitAnyScreen(QWidget& window) {
    const bool isPlacedByServer =
        QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
    if (isPlacedByServer && window.testAttribute(Qt::WA_Resized)) {
        for (const QScreen* screen : QGuiApplication::screens()) {
            window.resize(window.size().boundedTo(screen->availableSize() * kMostOfScreen));
        }
    }
}

} // namespace

AppWindows::AppWindows(NDAppController& controller, DefaultsStore& defaults,
                       const NotificationCenters& centers, LookPicker& looks,
                       std::filesystem::path guide)
    : controller_(controller), defaults_(defaults), localCenter_(centers.local),
      distributedCenter_(centers.distributed), looks_(looks), guide_(std::move(guide)) {
    new LateIcon; // deletes itself
}

AppWindows::~AppWindows() {
    if (AppWindows::preferencesVisible()) {
        savePlace();
    }
    localCenter_.removeObserver(this);
    distributedCenter_.removeObserver(this);
}

NDPreferencesController& AppWindows::preferencesController() {
    if (preferenceController == nullptr) {
        preferenceController = std::make_unique<NDPreferencesController>(PreferenceSurroundings{
            defaults_, localCenter_,
            [this](CGDirectDisplayID display) { return capturedCurve(display); },
            [this](bool recording) { controller_.setRecordingHotKey(recording); },
            [this] { return controller_.effectActive(); },
            [this] { controller_.toggleGlobalEffect(); },
            [this] { return stateSentence(controller_, defaults_); }, &looks_.chosen(),
            [this](const std::string& name) { looks_.pick(name); }, autostart,
            [this] { return documentFolder ? documentFolder() : std::filesystem::path(); },
            [this] { return looks_.shown(); }, controller_.fades(), controller_.automation()});
        preferenceController->setKeyboardLayout(layout_);
        QObject::connect(preferenceController.get(), &NDPreferencesController::documentWasUsed,
                         preferenceController.get(), [this](const QString& path) {
                             if (documentWasUsed) {
                                 documentWasUsed(path);
                             }
                         });
        const auto follow = [this] { preferenceController->displaysDidChange(); };
        localCenter_.addObserver(this, kEffectActivationNotification, follow);
        localCenter_.addObserver(this, NSApplicationDidChangeScreenParametersNotification, follow);
        distributedCenter_.addObserver(this, NSScreenColorSpaceDidChangeNotification, follow);
    }
    return *preferenceController;
}

const ZQGammaCurve* AppWindows::capturedCurve(CGDirectDisplayID display) const {
    const auto& controllers = controller_.screenControllers();
    if (!controllers) {
        return nullptr;
    }
    const auto found = std::find_if(controllers->begin(), controllers->end(),
                                    [&](const auto& each) { return each->screenID() == display; });
    return found != controllers->end() ? &(*found)->gammaCurve() : nullptr;
}

void AppWindows::setKeyboardLayout(KeyboardLayout* layout) {
    layout_ = layout;
    if (preferenceController != nullptr) {
        preferenceController->setKeyboardLayout(layout);
    }
}

void AppWindows::setMenuBar(QMenuBar* menuBar) {
    menuBar_ = menuBar;
    furnishPreferences();
}

void AppWindows::setNotice(const QString& notice) {
    notice_ = notice;
    furnishPreferences();
}

// The window is made when it is first needed, so what belongs to it may have to wait.
void AppWindows::furnishPreferences() {
    if (preferenceController == nullptr || !preferenceController->isWindowLoaded()) {
        return;
    }
    QLayout* layout = preferenceController->window()->layout();
    if (menuBar_ != nullptr && layout->menuBar() != menuBar_) {
        layout->setMenuBar(menuBar_);
    }
    if (noticeLabel_ == nullptr) {
        auto* grid = qobject_cast<QGridLayout*>(layout);
        if (grid == nullptr) {
            return;
        }
        noticeLabel_ = new QLabel(preferenceController->window());
        noticeLabel_->setWordWrap(true);
        grid->addWidget(noticeLabel_, grid->rowCount(), 0, 1, -1);
    }
    noticeLabel_->setText(notice_);
    noticeLabel_->setVisible(!notice_.isEmpty());
}

void AppWindows::offerLooks() {
    preferencesController().offerLooks();
}

void AppWindows::offerTray() {
    preferencesController().offerTray();
}

void AppWindows::askForDocument() {
    showPreferences();
    preferencesController().restoreEffect();
}

void AppWindows::askWhereToSave() {
    showPreferences();
    preferencesController().saveEffect();
}

void AppWindows::closePreferences() {
    if (preferencesVisible()) {
        preferenceController->window()->close();
    }
}

void AppWindows::showPreferences() {
    loadPreferences();
    preferencesController().showWindow();
}

QWidget* AppWindows::shownPreferences() const {
    return preferencesVisible() ? preferenceController->window() : nullptr;
}

bool AppWindows::preferencesVisible() const {
    return preferenceController != nullptr && preferenceController->isWindowLoaded() &&
           preferenceController->window()->isVisible();
}

void AppWindows::showAboutBox() {
    if (aboutBoxController_ == nullptr) {
        aboutBoxController_ = std::make_unique<ZQAboutBoxController>();
    }
    aboutBoxController_->showWindow();
}

void AppWindows::showGuide() {
    if (guideWindow_ == nullptr) {
        guideWindow_ = std::make_unique<GuideWindow>(QString::fromStdString(guide_));
    }
    guideWindow_->showInFront();
}

void AppWindows::setAboutBoxBackgroundColor(const OpaqueColor& color) {
    const auto part = [](double value) { return static_cast<float>(value); };
    ZQSetAboutBoxBackgroundColor(
        QColor::fromRgbF(part(color.red), part(color.green), part(color.blue)));
}

void AppWindows::loadPreferences() {
    NDPreferencesController& preferences = preferencesController();
    if (!preferences.isWindowLoaded()) {
        preferences.loadWindow();
        if (const auto kept = keptPlace()) {
            preferences.window()->restoreGeometry(kept->value(kGeometry).toByteArray());
            fitAnyScreen(*preferences.window());
            preferences.showPage(kept->value(kPage).toInt());
        }
        QObject::connect(preferences.window(), &PreferencePanel::closed, &preferences,
                         [this] { savePlace(); });
    }
    furnishPreferences();
}

std::unique_ptr<QSettings> AppWindows::keptPlace() const {
    const QFileInfo file(QString::fromStdString(placeFile));
    const bool isInTheWay = file.exists() && !file.isFile(); // a pipe would be waited for
    return placeFile.empty() || isInTheWay
               ? nullptr
               : std::make_unique<QSettings>(file.filePath(), QSettings::IniFormat);
}

void AppWindows::savePlace() const {
    if (const auto kept = keptPlace()) {
        kept->setValue(kGeometry, preferenceController->window()->saveGeometry());
        kept->setValue(kPage, preferenceController->page());
    }
}

bool AppWindows::openEffectFile(const std::string& path) {
    return preferencesController().openEffectFile(QString::fromStdString(path));
}

bool AppWindows::applyEffectFile(const std::string& path) {
    loadPreferences();
    return openEffectFile(path);
}

Result<void> AppWindows::saveEffectFile(const std::string& path) {
    loadPreferences();
    return preferencesController().writeEffectFile(QString::fromStdString(path));
}

std::vector<std::uint8_t> AppWindows::previewPicture(CGDirectDisplayID display) {
    Automation* automation = controller_.automation();
    const auto own = automation != nullptr
                         ? automation->effectOf({{true, automation->lookOfDisplay(display)}})
                         : nullptr;
    const PreviewCurves curves = previewCurves(
        curveWithoutEffect(display, [this](CGDirectDisplayID id) { return capturedCurve(id); }),
        own.get());
    const QImage image = renderEffectPreview(curves, kPictureSize, 1.0, QGuiApplication::palette());
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return {png.begin(), png.end()};
}

} // namespace nocturo
