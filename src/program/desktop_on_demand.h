#pragma once

#include "app/app_menus.h"
#include "app/desktop_face.h"
#include "app/state_teller.h"
#include "app/user_interface.h"
#include "base/notification_center.h"
#include "base/result.h"
#include "bus/launcher_menu.h"
#include "bus/tray.h"
#include "desktop/desktop_library.h"
#include "documents/recent_documents.h"
#include "program/kept_display_names.h"
#include "session/autostart.h"
#include "session/color_scheme.h"
#include "session/tray_window.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace nocturo {

class DefaultsStore;
class EventLoop;
class KeyboardLayout;
class LookPicker;
class NDAppController;

/// The windows and everything else that the desktop part shows, for the core. The library that
/// holds it is loaded when one of them is first needed; where it is not installed, what needs it
/// does nothing, and one sentence says what is missing.
class DesktopOnDemand : public UserInterface, public DesktopFace {
  public:
    /// All must outlive this; `bus` may be null.
    DesktopOnDemand(EventLoop& loop, const Bus* bus, NDAppController& controller,
                    DefaultsStore& defaults, const NotificationCenters& centers, LookPicker& looks);
    ~DesktopOnDemand() override;

    /// Called when the session is about to end, if a window was ever shown.
    std::function<void()> sessionIsEnding;

    /// What is to be done before Qt ends the process, as it does when it loses the X server. To be
    /// set before anything is shown.
    std::function<void()> serverIsLost;

    /// Each must outlive this or be taken away with null.
    void setXServer(XConnection* server);
    void setKeyboardLayout(KeyboardLayout* layout);

    std::string whyNoWindows() override;
    bool canBeSeen() override;
    void showPreferences() override;
    void showAboutBox() override;
    void setAboutBoxBackgroundColor(const OpaqueColor& color) override;
    bool preferencesVisible() const override;
    bool openEffectFile(const std::string& path) override;
    bool applyEffectFile(const std::string& path) override;
    Result<void> saveEffectFile(const std::string& path) override;
    std::vector<std::uint8_t> previewPicture(CGDirectDisplayID display) override;

    void showAlert(const Alert& alert, std::function<void(AlertAnswer answer)> answered) override;
    void askToKeepColors(int secondsLeft, std::function<void(bool keep)> answered) override;
    void withdrawKeepColors() override;
    void whenPointerIsReleased(std::function<void()> action) override;
    void showRefusedDocuments(const std::vector<std::string>& paths) override;
    void setActivateItemTitles(bool active) override;
    void setStatusItemShown(bool shown) override;
    void setStatusItemImage(bool active) override;
    void makeScreenMenus() override;

  private:
    Result<DesktopPart*> load();
    DesktopPart* partOrWarning();
    void setItemEmbedded(bool embedded);
    void showItemWhereTrayIs();
    void popUpStatusMenu(int x, int y);
    void offerTrayWhereThereIsOne();
    void setItemToolTip(const std::string& sentence);
    void openDocument(const std::string& path);

    EventLoop& loop_;
    const Bus* bus_;
    NDAppController& controller_;
    DefaultsStore& defaults_;
    const NotificationCenters centers_;
    LookPicker& looks_;
    const RecentDocuments recentDocuments_;
    std::optional<KeptDisplayNames> displayNames_;
    const Autostart autostart_;
    bool problemTold_ = false;
    AppMenus menus_;
    std::optional<LauncherMenu> launcherMenu_; // where there is a bus
    Tray tray_;
    std::unique_ptr<TrayWindow> awaitedTray_; // while there is no part to show the item in
    std::unique_ptr<Timer> trayLook_;         // soon, for what to load the library
    std::unique_ptr<BusSlot> trayOfBus_;      // while it is asked for
    bool inTray_ = false;
    bool itemEmbedded_ = false;
    bool itemActive_ = false;
    std::string itemToolTip_;
    std::optional<StateTeller> stateTeller_; // while the item is shown
    KeyboardLayout* layout_ = nullptr;
    XConnection* server_ = nullptr;
    std::optional<OpaqueColor> aboutBoxColor_;
    std::unique_ptr<DesktopPart> part_;      // null until it is needed
    std::optional<ColorScheme> colorScheme_; // of the part
};

/// Draws what a simulated display shows, by the library. False when that cannot be done; where the
/// library is missing, one sentence has said so.
bool drawTestCard(const Ramp& ramp, const std::filesystem::path& picture);

} // namespace nocturo
