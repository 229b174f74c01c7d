#pragma once

#include "base/property_value.h"

#include <optional>
#include <vector>

namespace nocturo {

class DefaultsStore;

/// Everything in the settings that decides what the effect looks like, and on which displays.
struct ScreenColors {
    std::optional<PropertyValue> effects; // as stored; nothing when absent
    float dimLevel = 0;
    float hue = 0;
    float vividness = 0;
    std::vector<double> affectedScreens;
    bool operator==(const ScreenColors&) const = default;
};

ScreenColors screenColors(const DefaultsStore& defaults);

/// Writes what differs.
void setScreenColors(DefaultsStore& defaults, const ScreenColors& colors);

} // namespace nocturo
