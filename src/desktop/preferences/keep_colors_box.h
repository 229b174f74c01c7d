#pragma once

#include <QObject>
#include <QPointer>

#include <functional>

class QMessageBox;
class QWidget;

namespace nocturo {

/// The question "Keep these colors?" on the screen.
class KeepColorsBox : public QObject {
    Q_OBJECT

  public:
    /// Shows the question, over `window` or without one on its own, or brings the seconds of the
    /// one that is shown up to date. `answered` is called at most once. Does nothing where there is
    /// no window and nobody can see it.
    void show(QWidget* window, int secondsLeft, std::function<void(bool keep)> answered);

    /// Closes the question, which is not answered any more.
    void withdraw();

    /// Calls `action` at once, or when the user lets the mouse button go that is held over a window
    /// of ours: letting go of a slider where the screens are readable is an answer as well.
    void whenPointerIsReleased(std::function<void()> action);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void make(QWidget* window, std::function<void(bool keep)> answered);

    QPointer<QMessageBox> box_;
    std::function<void()> whenReleased_;
};

} // namespace nocturo
