#pragma once

#include <QObject>

class QWidget;

namespace nocturo {

/// Keeps the application's windows off the task bar, where the desktop lets windows ask for that:
/// under X11. A window that is minimized meanwhile is hidden: showing it brings it back. Needs a
/// QApplication.
class TaskbarPresence : public QObject {
  public:
    TaskbarPresence();

    /// Holds for the windows that are shown and for those to come. Those that get back onto the
    /// task bar come to the front.
    void setHidden(bool hidden);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void tell(const QWidget& window, bool mapped) const;

    bool hidden_ = false;
};

} // namespace nocturo
