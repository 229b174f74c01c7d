#pragma once

#include "base/result.h"

#include <QDialog>

#include <functional>
#include <string>

class QLabel;
class QLineEdit;
class QPushButton;

namespace nocturo {

/// Asks for a name over a window, and again while it is refused. It deletes itself when it is
/// closed.
class NameSheet : public QDialog {
    Q_OBJECT

  public:
    /// `take` is given the name and closes the sheet if it succeeds. A name that `isTaken` is said
    /// to be so first; the same once more is meant.
    NameSheet(QWidget* window, const QString& title, const QString& name, const QString& action,
              std::function<Result<void>(const std::string& name)> take,
              std::function<bool(const std::string& name)> isTaken = {});

    void accept() override;

  private:
    void nameDidChange();

    QString action_;
    std::function<Result<void>(const std::string& name)> take_;
    std::function<bool(const std::string& name)> isTaken_;
    bool isWarned_ = false;
    QLineEdit* name_;
    QLabel* problem_;
    QPushButton* button_;
};

} // namespace nocturo
