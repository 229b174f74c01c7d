#pragma once

#include <QColor>

namespace nocturo {

/// From `base` (share 0) to `other` (share 1); opaque.
inline QColor mixedColor(const QColor& base, const QColor& other, float share) {
    const auto between = [&](float from, float to) { return from + (to - from) * share; };
    return QColor::fromRgbF(between(base.redF(), other.redF()),
                            between(base.greenF(), other.greenF()),
                            between(base.blueF(), other.blueF()));
}

} // namespace nocturo
