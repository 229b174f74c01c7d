#pragma once

#include <QIcon>

#include <optional>

namespace nocturo {

/// The status item's image while the effect is off.
inline constexpr const char* kStatusTemplate = "NDStatusTemplate";

/// The status item's image while the effect is on.
inline constexpr const char* kStatusActiveTemplate = "NDStatusActiveTemplate";

/// The template image of that name, which has no colors of its own. A panel that looks for it in
/// the icon theme gives it the panel's; where it is drawn here it has `color`, and where that is
/// not known a dark shape on a light ground with a light edge, to be seen on any panel. An image
/// without content for any other name.
QIcon statusImage(const QString& name, const std::optional<QColor>& color);

} // namespace nocturo
