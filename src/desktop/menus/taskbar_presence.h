#pragma once

#include <QObject>

class QWidget;

namespace nocturo {

/// Keeps the application's windows off the task bar, where the desktop lets windows ask for that:
/// under X11. Needs a QApplication.
class TaskbarPresence : public QObject {
  public:
    TaskbarPresence();

    /// Holds for the windows that are shown and for those to come.
    void setHidden(bool hidden);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void tell(const QWidget& window, bool mapped) const;

    bool hidden_ = false;
};

} // namespace nocturo
