#pragma once

#include <string>
#include <vector>

namespace nocturo {

enum class AlertAnswer { defaultButton, alternateButton };

/// A question with two buttons. All texts are English keys of the table.
struct Alert {
    const char* table = "Localizable";
    const char* title = "";
    std::vector<std::string> titleArguments; // for the placeholders
    const char* message = "";
    std::vector<std::string> messageArguments;
    const char* defaultButton = "";
    const char* alternateButton = "";
    AlertAnswer harmless = AlertAnswer::alternateButton; // when it is closed without a choice
    bool critical = false;
    std::string icon; // a name in the icon theme or a path; empty for the usual one
};

/// Where the application shows itself on the desktop, but for its windows: alerts, menus and the
/// status item. For those who know nothing of windows. Main thread only.
class DesktopFace {
  public:
    virtual ~DesktopFace() = default;

    /// Shows the alert and returns when it is answered; the application goes on meanwhile. Where
    /// nobody can see it, it is told in one sentence and answered with the harmless button. When
    /// the application is told to end meanwhile, the answer is the alternate button.
    virtual AlertAnswer runAlert(const Alert& alert) = 0;

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
