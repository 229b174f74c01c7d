#pragma once

#include "app/desktop_face.h"
#include "app/user_interface.h"
#include "base/notification_center.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace nocturo {

class AppMenus;
class Autostart;
class DefaultsStore;
class EventLoop;
class KeyboardLayout;
class LookPicker;
class NDAppController;
class RecentDocuments;
class XConnection;
struct Ramp;

/// What the desktop part is given of the core.
struct DesktopSurroundings {
    EventLoop& loop; // runs inside Qt's from then on
    NDAppController& controller;
    DefaultsStore& defaults;
    NotificationCenters centers;
    LookPicker& looks;
    const RecentDocuments& recentDocuments;
    std::filesystem::path stateDirectory; // for what windows remember
    std::filesystem::path guide;          // the user guide, empty where there is none
    const Autostart& autostart;
    AppMenus& menus;
    XConnection* server;                   // null where there is no X server
    std::function<void()> sessionIsEnding; // the time to keep what is to come back
    std::function<void()> serverIsLost;    // Qt ends the process after it; may be none
};

/// Everything that is made of Qt, from when it is first needed until the program ends.
class DesktopPart {
  public:
    virtual ~DesktopPart() = default;
    virtual UserInterface& windows() = 0;

    // As DesktopFace has them.
    virtual void showAlert(const Alert& alert,
                           std::function<void(AlertAnswer answer)> answered) = 0;
    virtual void askToKeepColors(int secondsLeft, std::function<void(bool keep)> answered) = 0;
    virtual void withdrawKeepColors() = 0;
    virtual void whenPointerIsReleased(std::function<void()> action) = 0;
    virtual void showRefusedDocuments(const std::vector<std::string>& paths) = 0;

    /// Keeps the windows off the task bar, or no longer.
    virtual void setInTray(bool inTray) = 0;

    /// Shows the status item in trays that embed windows, or no longer. Not to be asked for while
    /// the session bus has a tray. Where there is no tray at all the preference window says so.
    virtual void setItemEmbedded(bool embedded) = 0;
    virtual void setItemImage(bool active) = 0;
    virtual void setItemToolTip(const std::string& sentence) = 0;

    /// Offers, in the preference window, to show the application in the tray.
    virtual void offerTray() = 0;

    /// The user wants windows dark, or no longer.
    virtual void preferDark(bool dark) = 0;

    /// Shows the status menu at that point of the screen.
    virtual void popUpStatusMenu(int x, int y) = 0;

    /// Must outlive the part or be taken away with null.
    virtual void setKeyboardLayout(KeyboardLayout* layout) = 0;
};

/// What the library that holds the desktop part is entered through. It takes everything of the
/// core from the program that loads it, so that there is one of each.
struct DesktopLibrary {
    const char* version; // the program's own, or the two do not fit together

    /// To be called once. What it is given must outlive the part.
    std::unique_ptr<DesktopPart> (*start)(const DesktopSurroundings& surroundings);

    /// Draws what a simulated display shows (DrawPicture); the part need not be started for it.
    bool (*writeTestCard)(const Ramp& ramp, const std::filesystem::path& picture);
};

inline constexpr const char* kDesktopLibraryEntry = "nocturoDesktopLibrary";

} // namespace nocturo

extern "C" const nocturo::DesktopLibrary* nocturoDesktopLibrary();
