#pragma once

#include "base/result.h"
#include "desktop/preferences/previewed_display.h"

#include <QObject>
#include <QTimer>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class QAbstractButton;
class QButtonGroup;
class QFileDialog;

namespace Ui {
class NocturoPreferencePanel;
}

namespace nocturo {

class Automation;
class Autostart;
class ChosenLook;
class DefaultsStore;
class DrawnMenu;
class HotKeyGrantRow;
class HXHotKeyTextField;
class KeyboardLayout;
class Menu;
class NDEffect;
class NDScreenOptionMenuManager;
class NotificationCenter;
class ParameterSlider;
class Fades;
class PreferencePanel;
class Subjects;

/// What the preference window needs of its surroundings; the references must outlive it.
struct PreferenceSurroundings {
    DefaultsStore& defaults; // the effects' store as well
    NotificationCenter& localCenter;
    CapturedCurve capturedCurve;
    /// Told whether a hot key is being recorded, so that none is registered meanwhile.
    std::function<void(bool)> recordingDidChange;
    /// The switch of the window: whether the effect is on, what switches it, and the sentence
    /// beside it. Without them it has none.
    std::function<bool()> isOn = {};
    std::function<void()> toggle = {};
    std::function<std::string()> stateSentence = {};
    /// The looks, and what a click on one does. Without them there is no row of looks.
    ChosenLook* looks = nullptr;
    std::function<void(const std::string& name)> pickLook = {};
    /// Without it there is no choice of starting with the session.
    const Autostart* autostart = nullptr;
    /// Where a document is looked for and put at first; the home directory where that is none.
    std::function<std::filesystem::path()> documentFolder = {};
    /// The name of the look that the displays show; that of the settings without it.
    std::function<std::string()> shownLook = {};
    /// What a slider sets is there at once. Without them everything is.
    Fades* fades = nullptr;
    /// What happens by itself; without it, or without looks, there is no page for it.
    Automation* automation = nullptr;
};

/// The preference window. It holds no settings of its own: every control writes straight into the
/// settings, and after every change of one, whoever made it, its control is set anew, which fires
/// no action. The window is made when first needed. Main thread only.
///
/// Each action takes the control that sends it and reads its value from that.
class NDPreferencesController : public QObject {
    Q_OBJECT

  public:
    explicit NDPreferencesController(PreferenceSurroundings surroundings);
    ~NDPreferencesController() override;

    /// nocturo::affectedScreenSet of the shared store.
    static std::vector<double> affectedScreenSet();

    /// Names keys by this layout; null for none. It must outlive the window or be taken away.
    void setKeyboardLayout(KeyboardLayout* layout);

    /// Makes the window without showing it.
    void loadWindow();
    bool isWindowLoaded() const { return panel_ != nullptr; }

    /// Null until loaded.
    PreferencePanel* window() const;

    /// Shows the window in front of others, with no field being edited.
    void showWindow();

    /// The pages of the loaded window are counted from 0; one that is none stays away.
    int page() const;
    void showPage(int page);

    /// Has the keyboard go on at the looks.
    void offerLooks();

    /// Offers, until it is answered, to show the application in the tray.
    void offerTray();

    /// Shows anew whether the effect is on, and says so to screen readers where that is news.
    void updateState();

    /// Sets the controls of the settings named.
    void update(const Subjects& settings);

    /// The displays, their own colours or where the effect is on are others now.
    void displaysDidChange();

    // Actions of the effects. A change of the selection asks again, when the window is closed,
    // whether no effect is meant.

    void changeInvert(const QAbstractButton& sender);
    void changeHideStripes(const QAbstractButton& sender);
    void changeHDTVLuminance(const QAbstractButton& sender);
    void changeColorFilter(const QAbstractButton& sender);
    void changeDim(const QAbstractButton& sender);
    void changeColorFilterHue(const ParameterSlider& sender);
    void changeColorFilterVividness(const ParameterSlider& sender);
    /// Chooses the color filter, too: who asks for warm light wants to see it.
    void changeTemperature(const ParameterSlider& sender);
    void changeDimLevel(const ParameterSlider& sender);

    // Actions of the other settings

    void changeActivateAtLaunch(const QAbstractButton& sender);
    void changeActivateOnClick(const QAbstractButton& sender);
    void changeStartWithSession(const QAbstractButton& sender);
    void changeContinouslyApply(const QAbstractButton& sender);
    void changeDeactivateForScreenSaver(const QAbstractButton& sender);
    void changeFade(const ParameterSlider& sender);
    void changeShowStatusItem(const QButtonGroup& sender);

    /// Starts a recording where no key is there to be used, and ends one when none is wanted.
    void changeUseHotKey(const QAbstractButton& sender);

    /// Stores the field's hot key, or that there is none.
    void changeHotKey(const HXHotKeyTextField& sender);

    // Effect documents

    /// Asks for a place and writes the document there.
    void saveEffect();

    /// Asks for a document and opens it; one that is refused changes nothing, silently.
    void restoreEffect();

    /// Sets the controls as the document at `path` says and has each perform its action; false,
    /// with nothing changed, when that is no effect document. While the window is not loaded there
    /// are no controls, and an effect document changes nothing.
    bool openEffectFile(const QString& path);

    /// Writes what the controls show, which must be loaded. The problem is the system's word.
    Result<void> writeEffectFile(const QString& path) const;

  Q_SIGNALS:
    /// The document at `path` was opened, or saved at the user's wish.
    void documentWasUsed(const QString& path);

  private:
    void connectEffects();
    void connectSettings();
    void connectDocuments();
    void connectPageKeys();
    void windowDidLoad();
    void fitRoom();
    bool windowShouldClose();
    void resignFirstResponder();
    void updateEffects();
    void updateFilter();
    void updateStrips();
    void updateLooks();
    void updateHotKeyGrant();
    void updateStartWithSession();
    void setRecordingHotKey(bool recording);
    void setUpSliders();
    void updateBoxes();
    void setContains(std::string_view effect, const QAbstractButton& sender);
    void connectDisplays();
    void changeDisplayLook();
    void updateDisplayLook(const std::string& name);
    void listAbsentDisplays(const QVariant& chosen);
    DisplayInfo displayOfWindow() const;
    void listPreviewedDisplays();
    void readPreviewedDisplay();
    void updatePreview();
    void savePanelDidEnd(const QFileDialog& panel, int returnCode, bool hideExtension);
    void saveEffectAt(const QString& path, bool hideExtension);
    QString suggestedName() const;
    void openPanelDidEnd(const QFileDialog& panel, int returnCode);
    void documentWasDropped(const QString& path);
    QString documentFolder() const;

    PreferenceSurroundings surroundings_;
    KeyboardLayout* layout_ = nullptr;
    bool noEffectComfirmed = false;
    std::unique_ptr<Ui::NocturoPreferencePanel> ui_;
    std::unique_ptr<PreferencePanel> panel_;
    HotKeyGrantRow* hotKeyGrant_ = nullptr; // of the panel
    bool recordingHotKey_ = false;
    QSize roomy_; // what the window takes with nothing left out
    std::unique_ptr<Menu> screensMenu_;
    std::unique_ptr<DrawnMenu> drawnScreensMenu_;
    std::unique_ptr<NDScreenOptionMenuManager> _screensMenuManager;
    ZQGammaCurve previewed_;                    // without the effect
    std::shared_ptr<NDEffect> previewedEffect_; // a look of its own; null for those selected
    std::shared_ptr<NDEffect> seenEffect_;      // what is shown where the window is, likewise
    ZQGammaCurve seenOn_; // of the display that the window is on, without the effect
    bool seenWithEffect_ = false;
    QTimer strips_; // of color are drawn once for many steps of a slider
    QTimer looks_;  // as well
};

} // namespace nocturo
