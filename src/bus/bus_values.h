#pragma once

#include "base/property_value.h"

#include <QVariant>

#include <optional>

namespace nocturo {

/// The value as it travels over the bus: b, x, d, s, as or ax. Reals are given the shortest decimal
/// number that is the same single, so that 0.3 is not told as 0.30000001192.
QVariant busValue(const PropertyValue& value);

/// The reverse, for what may be stored as a setting; nothing for every other type.
std::optional<PropertyValue> propertyValue(const QVariant& value);

/// A single as the shortest decimal number that stands for it.
double shortestReal(float value);

} // namespace nocturo
