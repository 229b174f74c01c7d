#include "app/windows/app_windows.h"

#include "about/about_box_controller.h"
#include "about/about_box_views.h"
#include "app/app_controller.h"
#include "platform/notification_names.h"
#include "preferences/preview/effect_preview.h"
#include "preferences/window/preference_panel.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QPalette>

#include <algorithm>

namespace nocturo {

namespace {

constexpr QSize kPictureSize(640, 400);

} // namespace

AppWindows::AppWindows(NDAppController& controller, DefaultsStore& defaults,
                       const NotificationCenters& centers)
    : controller_(controller), defaults_(defaults), localCenter_(centers.local),
      distributedCenter_(centers.distributed) {
    controller_.setUserInterface(this);
}

AppWindows::~AppWindows() {
    localCenter_.removeObserver(this);
    distributedCenter_.removeObserver(this);
    controller_.setUserInterface(nullptr);
}

NDPreferencesController& AppWindows::preferencesController() {
    if (preferenceController == nullptr) {
        preferenceController = std::make_unique<NDPreferencesController>(PreferenceSurroundings{
            defaults_, localCenter_,
            [this](CGDirectDisplayID display) { return capturedCurve(display); },
            [this](bool recording) { controller_.setRecordingHotKey(recording); }});
        preferenceController->setKeyboardLayout(layout_);
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

void AppWindows::showPreferences() {
    preferencesController().showWindow();
}

void AppWindows::showAboutBox() {
    if (aboutBoxController_ == nullptr) {
        aboutBoxController_ = std::make_unique<ZQAboutBoxController>();
    }
    aboutBoxController_->showWindow();
}

void AppWindows::setAboutBoxBackgroundColor(const OpaqueColor& color) {
    const auto part = [](double value) { return static_cast<float>(value); };
    ZQSetAboutBoxBackgroundColor(
        QColor::fromRgbF(part(color.red), part(color.green), part(color.blue)));
}

bool AppWindows::preferencesVisible() const {
    return preferenceController != nullptr && preferenceController->isWindowLoaded() &&
           preferenceController->window()->isVisible();
}

void AppWindows::loadPreferences() {
    preferencesController().loadWindow();
}

bool AppWindows::openEffectFile(const std::string& path) {
    return preferencesController().openEffectFile(QString::fromStdString(path));
}

bool AppWindows::saveEffectFile(const std::string& path) {
    loadPreferences();
    return preferencesController().writeEffectFile(QString::fromStdString(path));
}

std::vector<std::uint8_t> AppWindows::previewPicture(CGDirectDisplayID display) {
    const PreviewCurves curves = previewCurves(
        curveWithoutEffect(display, [this](CGDirectDisplayID id) { return capturedCurve(id); }));
    const QImage image = renderEffectPreview(curves, kPictureSize, 1.0, QGuiApplication::palette());
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return {png.begin(), png.end()};
}

} // namespace nocturo
