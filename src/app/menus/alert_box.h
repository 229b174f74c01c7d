#pragma once

#include "app/desktop_face.h"

namespace nocturo {

/// DesktopFace::runAlert with a window of Qt.
AlertAnswer runAlertBox(const Alert& alert);

} // namespace nocturo
