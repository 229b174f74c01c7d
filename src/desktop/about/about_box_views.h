#pragma once

#include <QColor>
#include <QIcon>
#include <QLabel>
#include <QPoint>
#include <QPointer>
#include <QTextBrowser>
#include <QWidget>

#include <optional>

namespace nocturo {

/// The light grey of the about box, one for the process: whatever was set last, or a grey of 0.9.
QColor ZQAboutBoxBackgroundColor();
void ZQSetAboutBoxBackgroundColor(const QColor& color);

/// Lets the user move a widget's window by dragging the widget: the window manager does it where it
/// can, or else the window follows the pointer.
class WindowDrag {
  public:
    void press(const QMouseEvent& event, QWidget& widget);
    void move(const QMouseEvent& event, QWidget& widget) const;
    void release() { grip_.reset(); }

  private:
    std::optional<QPoint> grip_; // from the corner of the window's frame, while it follows
};

/// Lies behind everything in the about box: a gradient from white down to the shared colour while
/// its window is the active one, and otherwise a flat colour half-way between the two.
class ZQAboutBoxBackground : public QWidget {
  public:
    explicit ZQAboutBoxBackground(QWidget* parent = nullptr);

  protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    QPointer<QWidget> observedWindow_;
    WindowDrag drag_;
};

/// Shows an icon as large and as sharp as it can, and drags the window.
class ZQAboutBoxIconView : public QLabel {
  public:
    using QLabel::QLabel;

    void setIcon(const QIcon& icon);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    QIcon icon_;
    WindowDrag drag_;
};

/// Scrolls rich text over whatever lies behind it. Loads nothing that the text refers to, from
/// nowhere; web and mail links are opened by the desktop. Keeps its place when the style, and with
/// it the kind of scroll bar, changes.
class ZQAboutBoxScrollView : public QTextBrowser {
  public:
    explicit ZQAboutBoxScrollView(QWidget* parent = nullptr);

    QVariant loadResource(int type, const QUrl& name) override;

  protected:
    void changeEvent(QEvent* event) override;
};

} // namespace nocturo
