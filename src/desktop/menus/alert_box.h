#pragma once

#include "app/desktop_face.h"

#include <QMessageBox>

#include <memory>

namespace nocturo {

/// DesktopFace::runAlert with a window of Qt.
AlertAnswer runAlertBox(const Alert& alert);

/// A message on the screen that holds nothing up. Null where nobody can see it.
std::unique_ptr<QMessageBox> shownMessage(const QString& title, const QString& message);

} // namespace nocturo
