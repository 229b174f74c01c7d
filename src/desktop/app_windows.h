#pragma once

#include "app/user_interface.h"
#include "desktop/preferences/preferences_controller.h"

#include <QLabel>
#include <QMenuBar>
#include <QPointer>
#include <QString>

#include <filesystem>
#include <functional>
#include <memory>

class QSettings;

namespace nocturo {

class Autostart;
class DefaultsStore;
class GuideWindow;
class KeyboardLayout;
class LookPicker;
class NDAppController;
class ZQAboutBoxController;
struct NotificationCenters;

/// The windows of Qt. Each is made when first asked for and kept. Needs a QApplication.
class AppWindows : public UserInterface {
  public:
    /// All must outlive the windows. `guide` is the user guide, empty where there is none.
    AppWindows(NDAppController& controller, DefaultsStore& defaults,
               const NotificationCenters& centers, LookPicker& looks, std::filesystem::path guide);
    ~AppWindows() override;

    /// Must outlive the windows or be taken away with null.
    void setKeyboardLayout(KeyboardLayout* layout);

    /// The menu bar of the preference window, which takes it over when it is loaded.
    void setMenuBar(QMenuBar* menuBar);

    /// One line above everything else in the preference window; none when empty.
    void setNotice(const QString& notice);

    /// Ask for a document to open or a place to save one, and go on from there.
    void askForDocument();
    void askWhereToSave();
    void closePreferences();

    /// The preference window, to put a question over it; null while it is not shown.
    QWidget* shownPreferences() const;

    /// Called with the path of every document that was opened, or saved at the user's wish.
    std::function<void(const QString& path)> documentWasUsed;

    /// Where a document is looked for and put at first; the home directory where that is empty.
    std::function<std::filesystem::path()> documentFolder;

    /// Keeps where the preference window is, its size and page; nothing is kept where it is empty.
    std::filesystem::path placeFile;

    /// What starts the application with the session; null where that is not to be chosen.
    const Autostart* autostart = nullptr;

    /// Has the keyboard go on at the looks.
    void offerLooks();

    /// Offers to show the application in the tray; nothing while no preference window is loaded.
    void offerTray();

    bool hasGuide() const { return !guide_.empty(); }
    void showGuide();

    /// Makes the preference window, if there is none, without showing it.
    void loadPreferences();

    std::string whyNoWindows() override { return {}; }
    void showPreferences() override;
    void showAboutBox() override;
    void setAboutBoxBackgroundColor(const OpaqueColor& color) override;
    bool preferencesVisible() const override;
    bool openEffectFile(const std::string& path) override;
    bool applyEffectFile(const std::string& path) override;
    Result<void> saveEffectFile(const std::string& path) override;
    std::vector<std::uint8_t> previewPicture(CGDirectDisplayID display) override;

  private:
    NDPreferencesController& preferencesController();
    void furnishPreferences();
    /// None where nothing is kept, or something that is no file is in its way.
    std::unique_ptr<QSettings> keptPlace() const;
    void savePlace() const;
    const ZQGammaCurve* capturedCurve(CGDirectDisplayID display) const;

    NDAppController& controller_;
    DefaultsStore& defaults_;
    NotificationCenter& localCenter_;
    NotificationCenter& distributedCenter_;
    LookPicker& looks_;
    KeyboardLayout* layout_ = nullptr;
    QPointer<QMenuBar> menuBar_;
    QString notice_;
    QPointer<QLabel> noticeLabel_;
    std::unique_ptr<NDPreferencesController> preferenceController;
    std::unique_ptr<ZQAboutBoxController> aboutBoxController_;
    const std::filesystem::path guide_;
    std::unique_ptr<GuideWindow> guideWindow_;
};

} // namespace nocturo
