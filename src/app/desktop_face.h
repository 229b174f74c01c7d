#pragma once

#include <functional>
#include <string>
#include <vector>

namespace nocturo {

enum class AlertAnswer { defaultButton, alternateButton, unseen };

/// A question with two buttons. All texts are English keys of the table.
struct Alert {
    const char* table = "Localizable";
    const char* title = "";
    std::vector<std::string> titleArguments; // for the placeholders
    const char* message = "";
    std::vector<std::string> messageArguments;
    const char* defaultButton = "";
    const char* alternateButton = "";
    AlertAnswer closed = AlertAnswer::alternateButton; // what closing it without a choice means
    bool critical = false;
    bool overPreferences = false; // a sheet of the preference window, which is shown with it
    std::string icon;             // a name in the icon theme or a path; empty for the usual one
};

/// Its title in the user's language, for whoever has no window to show it in.
std::string titleOf(const Alert& alert);

/// Where the application shows itself on the desktop, but for its windows: alerts, menus and the
/// status item. For those who know nothing of windows. Main thread only.
class DesktopFace {
  public:
    virtual ~DesktopFace() = default;

    /// Shows the alert; the application goes on meanwhile. `answered` is called once, when it is
    /// answered, which may be at once: where nobody can see it, the alert is told in one sentence
    /// and the answer is "unseen". Never called when the application ends before.
    virtual void showAlert(const Alert& alert,
                           std::function<void(AlertAnswer answer)> answered) = 0;

    /// Asks "Keep these colors?", with the seconds until they go back by themselves, or brings the
    /// seconds of the question that is shown up to date. `answered` is called at most once. Does
    /// nothing where nobody can see it.
    virtual void askToKeepColors(int secondsLeft, std::function<void(bool keep)> answered) = 0;

    /// Closes the question, if it is shown, without an answer.
    virtual void withdrawKeepColors() = 0;

    /// Calls `action` at once, or when the user lets a mouse button go that is held over a window
    /// of the application.
    virtual void whenPointerIsReleased(std::function<void()> action) = 0;

    /// Says, in a window that holds nothing up, that these files are no effect documents. Does
    /// nothing where nobody can see it.
    virtual void showRefusedDocuments(const std::vector<std::string>& paths) = 0;

    /// Gives the activate items of the main menu, the launcher's menu and the status menu the
    /// title for an effect that is on or off.
    virtual void setActivateItemTitles(bool active) = 0;

    /// Makes the application one that lives in the status item alone, or an ordinary one.
    virtual void setStatusItemShown(bool shown) = 0;
    virtual void setStatusItemImage(bool active) = 0;

    /// Fills the choice of screens into the main menu, the launcher's menu and the status menu.
    virtual void makeScreenMenus() = 0;
};

} // namespace nocturo
