#pragma once

#include <QSlider>

#include <functional>

namespace nocturo {

/// The handle of one point of a schedule, in the strip of its day: a slider over minutes since
/// midnight, of which the strip is the track. Dragging it tells sliderMoved(), and valueChanged()
/// once it is let go; arrows go by five minutes, pages by hours, Escape ends a drag.
class PointHandle : public QSlider {
  public:
    explicit PointHandle(QWidget* strip);

    /// What the time is at a place of the strip.
    std::function<int(int x)> timeAt;

    /// The keyboard came to it.
    std::function<void()> focused;

    void setCurrent(bool current);
    void setOn(bool on);

    QSize sizeHint() const override;

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    bool isCurrent_ = false;
    bool isOn_ = false;
};

/// "18:05", of minutes since midnight.
QString clockText(int minutes);

/// "+30" or, with the sign that a printed text has, "−30".
inline constexpr QChar kMinus = u'\u2212';
QString signedNumber(int number);

} // namespace nocturo
