#pragma once

#include <QGradient>
#include <QSlider>

namespace nocturo {

/// A horizontal QSlider over a track of its own: plain, filled from its middle, or a colour wheel
/// rolled out flat. Its positions are finer than pixels.
///
/// The track takes a click as "here", not as a page: over colours nothing else would be understood.
/// A double click goes to the default. The wheel goes by steps, with Control or Shift by pages.
/// Every move of the user, also one that leads nowhere, is told by actionTriggered() while
/// sliderPosition() is the new position.
class TrackSlider : public QSlider {
  public:
    /// Fill: from the minimum. Middle: from the middle, which is marked and catches the dragged
    /// handle within three pixels. Hue: 0 to 360 degrees as the colours that the color filter makes
    /// of white. Temperature: from warm to cool.
    enum class Track { Fill, Middle, Hue, Temperature };

    /// Positions go from 0 to this: a whole number of positions for every step of a parameter.
    static constexpr int kPositions = 100'800;

    explicit TrackSlider(QWidget* parent);

    void setTrack(Track track);
    void setDefaultPosition(int position) { defaultPosition_ = position; }

    /// Colors of the track, from the minimum to the maximum, for Hue and Temperature.
    void setColors(QGradientStops colors);

    /// Without a handle it stands nowhere, until the user moves it.
    void setHandleShown(bool shown);

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override { return minimumSizeHint(); }

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    struct Way { // of the handle's middle
        double start;
        double length;
        bool mirrored;
        double at(int position) const;
    };

    Way way() const;
    QRect handle() const;
    void paintTrack(QPainter& painter) const;

    Track track_ = Track::Fill;
    QGradientStops colors_;
    bool handleShown_ = true;
    int defaultPosition_ = 0;
    int wheelRest_ = 0;
    double grip_ = 0.0; // from the handle's middle to the mouse that drags it
};

} // namespace nocturo
