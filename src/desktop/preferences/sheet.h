#pragma once

#include <QMessageBox>

#include <string>

namespace nocturo {

/// A window-modal message, without buttons yet. It deletes itself when it is closed. Without a
/// window it stands alone.
QMessageBox* newSheet(QWidget* window, QMessageBox::Icon icon, const QString& title,
                      const QString& message);

/// Shows it once it has its buttons.
void showSheet(QMessageBox& sheet);

/// Says over a window what failed.
void showFailure(QWidget* window, const std::string& sentence);

/// Makes a message, complete but for being shown, wide enough for sentences to be read as such, and
/// its texts plain ones.
void widenMessage(QMessageBox& message);

} // namespace nocturo
