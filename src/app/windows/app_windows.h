#pragma once

#include "app/user_interface.h"
#include "preferences/window/preferences_controller.h"

#include <memory>

namespace nocturo {

class DefaultsStore;
class KeyboardLayout;
class NDAppController;
class ZQAboutBoxController;
struct NotificationCenters;

/// The windows of Qt. Each is made when first asked for and kept. Needs a QApplication.
class AppWindows : public UserInterface {
  public:
    /// All must outlive the windows.
    AppWindows(NDAppController& controller, DefaultsStore& defaults,
               const NotificationCenters& centers);
    ~AppWindows() override;

    /// Must outlive the windows or be taken away with null.
    void setKeyboardLayout(KeyboardLayout* layout);

    void showPreferences() override;
    void showAboutBox() override;
    void setAboutBoxBackgroundColor(const OpaqueColor& color) override;
    bool preferencesVisible() const override;
    void loadPreferences() override;
    bool openEffectFile(const std::string& path) override;
    bool saveEffectFile(const std::string& path) override;
    std::vector<std::uint8_t> previewPicture(CGDirectDisplayID display) override;

  private:
    NDPreferencesController& preferencesController();
    const ZQGammaCurve* capturedCurve(CGDirectDisplayID display) const;

    NDAppController& controller_;
    DefaultsStore& defaults_;
    NotificationCenter& localCenter_;
    NotificationCenter& distributedCenter_;
    KeyboardLayout* layout_ = nullptr;
    std::unique_ptr<NDPreferencesController> preferenceController;
    std::unique_ptr<ZQAboutBoxController> aboutBoxController_;
};

} // namespace nocturo
