#include "desktop/controls/track_slider.h"

#include "desktop/mixed_color.h"

#include <QApplication>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QStyleOptionSlider>
#include <QStylePainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace nocturo {

namespace {

constexpr int kWheelNotch = 120;
constexpr double kMiddlePull = 3.0; // logical pixels
constexpr double kTrackEnd = 4.0;   // beyond where the handle's middle gets
constexpr int kLeastLength = 6;     // handles

} // namespace

TrackSlider::TrackSlider(QWidget* parent) : QSlider(Qt::Horizontal, parent) {
    setRange(0, kPositions);
    setFocusPolicy(Qt::StrongFocus); // not with the wheel
    setAttribute(Qt::WA_Hover);
}

void TrackSlider::setTrack(Track track) {
    track_ = track;
    update();
}

void TrackSlider::setColors(QGradientStops colors) {
    if (colors != colors_) {
        colors_ = std::move(colors);
        update();
    }
}

void TrackSlider::setHandleShown(bool shown) {
    if (std::exchange(handleShown_, shown) != shown) {
        update();
    }
}

double TrackSlider::Way::at(int position) const {
    const double share = 1.0 * position / kPositions;
    return start + length * (mirrored ? 1 - share : share);
}

TrackSlider::Way TrackSlider::way() const {
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect groove =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
    const int handle = style()->pixelMetric(QStyle::PM_SliderLength, &option, this);
    return {groove.left() + handle / 2.0, std::max(1.0, 1.0 * groove.width() - handle),
            option.upsideDown};
}

QRect TrackSlider::handle() const {
    QStyleOptionSlider option;
    initStyleOption(&option);
    return style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
}

void TrackSlider::mousePressEvent(QMouseEvent* event) {
    event->accept();
    if (event->button() != Qt::LeftButton) {
        return;
    }
    setSliderDown(true);
    update();
    const bool onHandle = handle().contains(event->position().toPoint());
    grip_ = onHandle ? event->position().x() - way().at(sliderPosition()) : 0.0;
    if (!onHandle) {
        mouseMoveEvent(event);
    }
}

void TrackSlider::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
    if (!isSliderDown()) {
        return;
    }
    const auto [start, length, mirrored] = way();
    const double share = std::clamp((event->position().x() - grip_ - start) / length, 0.0, 1.0);
    const bool caught = track_ == Track::Middle && std::abs(share - 0.5) * length <= kMiddlePull;
    const double position = kPositions * (caught ? 0.5 : mirrored ? 1 - share : share);
    setSliderPosition(static_cast<int>(std::lround(position)));
}

void TrackSlider::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    if (event->button() == Qt::LeftButton) {
        setSliderDown(false);
        update();
    }
}

void TrackSlider::mouseDoubleClickEvent(QMouseEvent* event) {
    event->accept();
    if (event->button() == Qt::LeftButton) {
        setSliderPosition(defaultPosition_);
    }
}

void TrackSlider::wheelEvent(QWheelEvent* event) {
    event->accept();
    const QPoint angle = event->angleDelta();
    const bool upright = std::abs(angle.y()) >= std::abs(angle.x());
    const int sideways = isRightToLeft() ? angle.x() : -angle.x();
    const int delta = (upright ? angle.y() : sideways) * (event->inverted() ? -1 : 1);
    // Fine wheels turn by less than a notch; what is no whole step yet waits for the next event.
    if ((delta < 0) != (wheelRest_ < 0)) {
        wheelRest_ = 0;
    }
    const bool byPages = (event->modifiers() & (Qt::ControlModifier | Qt::ShiftModifier)) != 0;
    wheelRest_ += delta * (byPages ? 1 : QApplication::wheelScrollLines());
    const int steps = wheelRest_ / kWheelNotch;
    wheelRest_ %= kWheelNotch;
    setSliderPosition(sliderPosition() + steps * (byPages ? pageStep() : singleStep()));
}

QSize TrackSlider::minimumSizeHint() const {
    const int handle = style()->pixelMetric(QStyle::PM_SliderLength, nullptr, this);
    return {kLeastLength * handle, QSlider::sizeHint().height()};
}

// Styles fill a track from one end to the handle. That is wrong for a value that departs from the
// middle and impossible over colors, so the tracks are our own and alike; the handle is the
// style's.

void TrackSlider::paintEvent(QPaintEvent* /*event*/) {
    QStylePainter painter(this);
    paintTrack(painter);
    QStyleOptionSlider option;
    initStyleOption(&option);
    option.subControls = handleShown_ ? QStyle::SC_SliderHandle : QStyle::SC_None;
    option.activeSubControls = isSliderDown() ? QStyle::SC_SliderHandle : QStyle::SC_None;
    option.state.setFlag(QStyle::State_Sunken, isSliderDown());
    painter.drawComplexControl(QStyle::CC_Slider, option);
    if (hasFocus() && handleShown_) { // some styles show the focus with the groove alone
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRoundedRect(QRectF(handle()).adjusted(1, 1, -1, -1), 3, 3);
    }
}

void TrackSlider::paintTrack(QPainter& painter) const {
    const auto [start, length, mirrored] = way();
    const bool isColored = track_ == Track::Hue || track_ == Track::Temperature;
    const double height = isColored ? 10.0 : 6.0;
    const double middle = QRectF(rect()).center().y();
    const QRectF track(start - kTrackEnd, middle - height / 2, length + 2 * kTrackEnd, height);
    const QColor ink = palette().color(QPalette::Active, QPalette::WindowText);
    const QColor paper = palette().color(QPalette::Window);

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(mixedColor(paper, ink, isEnabled() ? 0.45F : 0.3F), 1));
    painter.setBrush(mixedColor(paper, ink, 0.12F));
    if (isColored) {
        QLinearGradient colors(mirrored ? start + length : start, 0,
                               mirrored ? start : start + length, 0);
        colors.setStops(colors_);
        painter.setOpacity(isEnabled() ? 1.0 : 0.4);
        painter.setBrush(colors);
    }
    painter.drawRoundedRect(track.adjusted(0.5, 0.5, -0.5, -0.5), height / 2, height / 2);
    if (!isColored && isEnabled()) {
        const bool fromMiddle = track_ == Track::Middle;
        const double from = way().at(fromMiddle ? kPositions / 2 : 0);
        const double to = way().at(sliderPosition());
        const double end = fromMiddle ? 0.0 : kTrackEnd;
        const double round = fromMiddle ? 0.0 : height / 2;
        const QRectF filled(std::min(from, to) - end, track.top(), std::abs(to - from) + 2 * end,
                            height);
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette().color(QPalette::Highlight));
        painter.drawRoundedRect(filled, round, round);
    }
    painter.restore();
    if (track_ == Track::Middle) {
        painter.fillRect(QRectF(start + length / 2 - 1, middle - 8, 2, 16),
                         mixedColor(paper, ink, isEnabled() ? 0.7F : 0.35F));
    }
}

} // namespace nocturo
