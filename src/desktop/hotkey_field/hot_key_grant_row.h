#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;

namespace nocturo {

class DefaultsStore;
class KeyboardLayout;

/// What the desktop has made of the hot key in the settings, and what can be done about it: to ask
/// again, to have it show its own choice of key, or to copy what its configuration needs; or that
/// another program holds it. Hidden where there is nothing to say. Main thread only.
class HotKeyGrantRow : public QWidget {
    Q_OBJECT

  public:
    explicit HotKeyGrantRow(QWidget* parent = nullptr);

    /// Tells what the shared hot key center knows now.
    /// The layout, which names the key, may be null.
    void update(const DefaultsStore& defaults, KeyboardLayout* layout);

  private:
    void wasPressed();

    QLabel* sentence_;
    QLineEdit* configuration_;
    QPushButton* button_;
};

} // namespace nocturo
