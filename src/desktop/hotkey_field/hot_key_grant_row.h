#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;

namespace nocturo {

class DefaultsStore;

/// What the desktop has made of the hot key in the settings, and what can be done about it: to ask
/// again, to have it show its own choice of key, or to copy what its configuration needs. Hidden
/// where there is nothing to say, as under X11. Main thread only.
class HotKeyGrantRow : public QWidget {
    Q_OBJECT

  public:
    explicit HotKeyGrantRow(QWidget* parent = nullptr);

    /// Tells what the shared hot key center knows now.
    void update(const DefaultsStore& defaults);

  private:
    void wasPressed();

    QLabel* sentence_;
    QLineEdit* configuration_;
    QPushButton* button_;
};

} // namespace nocturo
