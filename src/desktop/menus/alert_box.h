#pragma once

#include "app/desktop_face.h"

#include <QMessageBox>

#include <functional>
#include <memory>

namespace nocturo {

/// The alert on the screen, over the window unless that is null. Null where nobody can see it; then
/// it is told in one sentence. `answered` is not called once the box is destroyed, and may destroy
/// it later than at once.
std::unique_ptr<QMessageBox> shownAlert(QWidget* window, const Alert& alert,
                                        std::function<void(AlertAnswer answer)> answered);

/// A message on the screen. Null where nobody can see it.
std::unique_ptr<QMessageBox> shownMessage(const QString& title, const QString& message);

} // namespace nocturo
