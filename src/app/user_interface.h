#pragma once

#include "base/result.h"
#include "displays/display_services.h"

#include <cstdint>
#include <string>
#include <vector>

namespace nocturo {

/// Red, green and blue from 0 to 1.
struct OpaqueColor {
    double red;
    double green;
    double blue;
};

/// The application's windows, for those who know nothing of windows. Main thread only.
class UserInterface {
  public:
    virtual ~UserInterface() = default;

    /// Why nothing of this can be shown, in one sentence; empty when all can.
    virtual std::string whyNoWindows() = 0;

    /// Whether somebody may see windows, wherever those come from.
    virtual bool canBeSeen() { return true; }

    /// Shows the window and brings it to the front.
    virtual void showPreferences() = 0;
    virtual void showAboutBox() = 0;

    /// The about box's from then on.
    virtual void setAboutBoxBackgroundColor(const OpaqueColor& color) = 0;

    /// Whether the preference window is loaded and shown.
    virtual bool preferencesVisible() const = 0;

    /// Takes over what an effect document says; false when it is refused. While the preference
    /// window is not loaded, a document that is accepted changes nothing.
    virtual bool openEffectFile(const std::string& path) = 0;

    /// The same, and takes it over also while the window is not loaded.
    virtual bool applyEffectFile(const std::string& path) = 0;

    /// Writes what the preference window shows, or would show, to an effect document. The problem
    /// is the system's word on why that failed.
    virtual Result<void> saveEffectFile(const std::string& path) = 0;

    /// A PNG picture of what the effect does on an online display, whether it is on or not: its
    /// curves and a scene seen through them. Empty when nothing can be shown.
    virtual std::vector<std::uint8_t> previewPicture(CGDirectDisplayID display) = 0;
};

} // namespace nocturo
