#include "automation/filled_displays.h"

#include <algorithm>

namespace nocturo {

namespace {

double overlap(const DisplayRect& a, const DisplayRect& b) {
    const double width = std::min(a.x + a.width, b.x + b.width) - std::max(a.x, b.x);
    const double height = std::min(a.y + a.height, b.y + b.height) - std::max(a.y, b.y);
    return std::max(width, 0.0) * std::max(height, 0.0);
}

bool isFilled(const DisplayRect& display, const std::vector<StackedWindow>& topmostFirst) {
    for (const StackedWindow& window : topmostFirst) {
        if (!window.isVisible || (!window.isOrdinary && !window.isFullscreen)) {
            continue;
        }
        if (covers(window.bounds, display)) {
            return window.isFullscreen || !window.isMaximized;
        }
        const double hidden = overlap(window.bounds, display);
        if (hidden > 0 && (window.isActive || hidden * 2 >= display.width * display.height)) {
            return false;
        }
    }
    return false;
}

} // namespace

bool covers(const DisplayRect& rect, const DisplayRect& display) {
    return display.width > 0 && display.height > 0 && rect.x <= display.x && rect.y <= display.y &&
           rect.x + rect.width >= display.x + display.width &&
           rect.y + rect.height >= display.y + display.height;
}

std::set<CGDirectDisplayID> filledDisplays(const std::vector<StackedWindow>& topmostFirst,
                                           const std::vector<DisplayInfo>& displays) {
    std::set<CGDirectDisplayID> filled;
    for (const DisplayInfo& display : displays) {
        if (isFilled(display.bounds, topmostFirst)) {
            filled.insert(display.id);
        }
    }
    return filled;
}

} // namespace nocturo
