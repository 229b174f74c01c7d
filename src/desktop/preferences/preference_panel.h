#pragma once

#include <QBasicTimer>
#include <QWidget>

#include <functional>

namespace nocturo {

/// The preference window's frame: asks before it closes, and takes effect documents that are
/// dropped onto it.
class PreferencePanel : public QWidget {
    Q_OBJECT

  public:
    PreferencePanel();

    /// Asked when the user closes the window; it stays open on false.
    std::function<bool()> shouldClose;

    /// Closes without asking.
    void closeDirectly();

  Q_SIGNALS:
    void documentDropped(const QString& path);

    /// The window came to the front.
    void activated();

    /// It was closed, and is about to be hidden.
    void closed();

    /// It has another size now.
    void resized();

    /// It is on another screen now.
    void screenChanged();

  protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

  private:
    // At most one frame in this time: a slider can be dragged faster than anybody sees, and each
    // frame waits for the server to be done with the one before.
    QBasicTimer frame_;
    bool frameIsDue_ = false;
    bool closingDirectly_ = false;
};

} // namespace nocturo
