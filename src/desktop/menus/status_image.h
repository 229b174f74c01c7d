#pragma once

#include "app/status_image.h"

#include <QIcon>

namespace nocturo {

/// The template image of that name as an icon; one without content for any other name. Where
/// `color` is not valid it is drawn to be seen on any panel.
QIcon statusIcon(std::string_view name, const QColor& color);

} // namespace nocturo
