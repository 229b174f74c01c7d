#pragma once

#include "displays/display_services.h"

#include <set>
#include <vector>

namespace nocturo {

/// A window as far as it matters for which displays are filled.
struct StackedWindow {
    DisplayRect bounds;
    bool isVisible = false;
    bool isOrdinary = false; // no panel, dialog, desktop or notification
    bool isFullscreen = false;
    bool isMaximized = false;
    bool isActive = false;
};

/// Whether the rectangle leaves nothing of the display.
bool covers(const DisplayRect& rect, const DisplayRect& display);

/// The displays that a window fills: a full-screen one, or one as large as the display that was not
/// just maximized. Windows above it count when they are worked in or hide half of the display.
std::set<CGDirectDisplayID> filledDisplays(const std::vector<StackedWindow>& topmostFirst,
                                           const std::vector<DisplayInfo>& displays);

} // namespace nocturo
