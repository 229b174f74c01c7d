#include "desktop/controls/real_slider.h"

#include "desktop/controls/real_slider_accessible.h"
#include "desktop/mixed_color.h"
#include "effects/color_filter_effect.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QStyleOptionSlider>
#include <QStylePainter>

#include <algorithm>
#include <cmath>

namespace nocturo {

namespace {

constexpr int kPositions = 100'000; // more than any screen has pixels
constexpr int kWheelNotch = 120;
constexpr double kMiddlePull = 3.0; // how near, in logical pixels, the marked middle catches
constexpr double kTrackHeight = 6.0;
constexpr double kHueTrackHeight = 10.0;
constexpr double kTrackEnd = 4.0; // beyond where the handle's middle gets
constexpr int kLeastLength = 12;  // handles

/// White light through the filter: the very colors that the effect makes.
QGradientStops hueStops() {
    constexpr int kStops = 72;
    const auto filter = NDColorFilterEffect::effect();
    QGradientStops stops;
    for (int i = 0; i <= kStops; ++i) {
        const float turn = static_cast<float>(i) / kStops;
        const auto amount = [&](float phase) {
            return filter.colorAmmountForHue(turn * 360.0F, phase);
        };
        stops.append({static_cast<double>(turn),
                      QColor::fromRgbF(amount(0.0F), amount(1.0F / 3), amount(2.0F / 3))});
    }
    return stops;
}

bool isInScrollArea(const QWidget* widget) {
    while (widget != nullptr && !widget->isWindow()) {
        widget = widget->parentWidget();
        if (qobject_cast<const QAbstractScrollArea*>(widget) != nullptr) {
            return true;
        }
    }
    return false;
}

} // namespace

RealSlider::RealSlider(QWidget* parent) : QSlider(Qt::Horizontal, parent) {
    RealSliderAccessible::install();
    setRange(0, kPositions);
    setFocusPolicy(Qt::StrongFocus); // not with the wheel
    setAttribute(Qt::WA_Hover);
    connect(this, &QSlider::actionTriggered, this, &RealSlider::takeAction);
}

float RealSlider::limited(double value) const {
    if (std::isnan(value)) {
        value = 0.0;
    }
    return static_cast<float>(std::clamp(value, minimum_, maximum_));
}

void RealSlider::setRealValue(float value) {
    value_ = limited(static_cast<double>(value));
    const double place = share(static_cast<double>(value_)) * kPositions;
    QSlider::setValue(static_cast<int>(std::lround(std::clamp(place, 0.0, 1.0 * kPositions))));
}

void RealSlider::moveTo(double value) {
    const float before = value_;
    setRealValue(limited(value));
    if (value_ != before) {
        update(); // also where the handle stays on its pixel
        Q_EMIT moved(value_);
    }
}

void RealSlider::moveBySteps(int steps, double step) {
    if (steps == 0) {
        return;
    }
    double target = static_cast<double>(value_) + steps * step;
    const double rounded = std::round(target / singleStep_) * singleStep_;
    if (std::abs(target - rounded) < singleStep_ / 1000) {
        target = rounded + 0.0; // no negative zero
    }
    moveTo(target);
}

void RealSlider::setRealRange(double minimum, double maximum) {
    if (!(minimum < maximum)) {
        return;
    }
    minimum_ = minimum;
    maximum_ = maximum;
    setRealValue(value_);
    update();
}

void RealSlider::setRealSteps(double single, double page) {
    singleStep_ = single;
    pageStep_ = page;
}

void RealSlider::setMarkedMiddle(bool marked) {
    markedMiddle_ = marked;
    update();
}

void RealSlider::setTrack(Track track) {
    track_ = track;
    update();
}

/// Qt has moved the handle by one of its own steps, and not told anybody yet.
void RealSlider::takeAction(int action) {
    switch (action) {
    case SliderSingleStepAdd:
        return moveBySteps(1, singleStep_);
    case SliderSingleStepSub:
        return moveBySteps(-1, singleStep_);
    case SliderPageStepAdd:
        return moveBySteps(1, pageStep_);
    case SliderPageStepSub:
        return moveBySteps(-1, pageStep_);
    case SliderToMinimum:
        return moveTo(minimum_);
    case SliderToMaximum:
        return moveTo(maximum_);
    default:
        return;
    }
}

RealSlider::Way RealSlider::way() const {
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect groove =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
    const int handle = style()->pixelMetric(QStyle::PM_SliderLength, &option, this);
    return {groove.left() + handle / 2.0, std::max(1.0, 1.0 * groove.width() - handle),
            option.upsideDown};
}

double RealSlider::positionOf(double value) const {
    const auto [start, length, mirrored] = way();
    return start + length * (mirrored ? 1 - share(value) : share(value));
}

void RealSlider::mousePressEvent(QMouseEvent* event) {
    event->accept();
    if (event->button() != Qt::LeftButton) {
        return;
    }
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect handle =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    setSliderDown(true);
    pressedAt_ = positionOf(static_cast<double>(value_));
    pressedValue_ = static_cast<double>(value_);
    lastAt_ = event->position().x();
    if (handle.contains(event->position().toPoint())) {
        pressedAt_ = lastAt_; // a press that does not move changes nothing
    } else {
        lastAt_ = pressedAt_;
        mouseMoveEvent(event);
    }
    update();
}

void RealSlider::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
    const double at = event->position().x();
    if (!isSliderDown() || at == lastAt_) {
        return;
    }
    lastAt_ = at;
    const auto [start, length, mirrored] = way();
    const double valuePerPixel = (maximum_ - minimum_) / length * (mirrored ? -1 : 1);
    const double target = pressedValue_ + (at - pressedAt_) * valuePerPixel;
    const bool caught =
        markedMiddle_ && std::abs(target - middle()) <= kMiddlePull * std::abs(valuePerPixel);
    moveTo(caught ? middle() : target);
}

void RealSlider::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    if (event->button() == Qt::LeftButton && isSliderDown()) {
        setSliderDown(false);
        update();
    }
}

void RealSlider::mouseDoubleClickEvent(QMouseEvent* event) {
    event->accept();
    if (event->button() == Qt::LeftButton) {
        moveTo(defaultValue_);
    }
}

/// In something that scrolls, the wheel belongs to that until the slider has been chosen.
bool RealSlider::hasWheel() const {
    return hasFocus() || !isInScrollArea(this);
}

void RealSlider::wheelEvent(QWheelEvent* event) {
    if (!hasWheel()) {
        event->ignore();
        return;
    }
    event->accept();
    const QPoint angle = event->angleDelta();
    const bool upright = std::abs(angle.y()) >= std::abs(angle.x());
    const int sideways = layoutDirection() == Qt::RightToLeft ? angle.x() : -angle.x();
    const int delta = (upright ? angle.y() : sideways) * (event->inverted() ? -1 : 1);
    // Fine wheels turn by less than a notch; what is no whole step yet waits for the next event.
    if ((delta < 0) != (wheelRest_ < 0)) {
        wheelRest_ = 0;
    }
    const bool byPages = (event->modifiers() & (Qt::ControlModifier | Qt::ShiftModifier)) != 0;
    wheelRest_ += delta * (byPages ? 1 : QApplication::wheelScrollLines());
    const int steps = wheelRest_ / kWheelNotch;
    wheelRest_ %= kWheelNotch;
    moveBySteps(steps, byPages ? pageStep_ : singleStep_);
}

QSize RealSlider::sizeHint() const {
    return QSlider::sizeHint().expandedTo(minimumSizeHint());
}

QSize RealSlider::minimumSizeHint() const {
    const int handle = style()->pixelMetric(QStyle::PM_SliderLength, nullptr, this);
    return {kLeastLength * handle, QSlider::sizeHint().height()};
}

// Styles fill a track from one end to the handle. That is wrong for a value that departs from the
// middle and impossible over colors, so the tracks are our own and alike; the handle is the
// style's.

void RealSlider::paintEvent(QPaintEvent* /*event*/) {
    QStylePainter painter(this);
    paintTrack(painter);
    QStyleOptionSlider option;
    initStyleOption(&option);
    option.subControls = QStyle::SC_SliderHandle;
    option.activeSubControls = QStyle::SC_None;
    if (isSliderDown()) {
        option.activeSubControls = QStyle::SC_SliderHandle;
        option.state |= QStyle::State_Sunken;
    }
    painter.drawComplexControl(QStyle::CC_Slider, option);
    if (hasFocus()) { // some styles show the focus with the groove alone
        const QRect handle =
            style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(handle).adjusted(1, 1, -1, -1), 3, 3);
    }
}

void RealSlider::paintTrack(QPainter& painter) const {
    const auto [start, length, mirrored] = way();
    const bool hue = track_ == Track::Hue;
    const double height = hue ? kHueTrackHeight : kTrackHeight;
    QRectF track(start - kTrackEnd, 0, length + 2 * kTrackEnd, height);
    track.moveCenter(QPointF(track.center().x(), QRectF(rect()).center().y()));
    const QColor ink = palette().color(QPalette::Active, QPalette::WindowText);
    const QColor paper = palette().color(QPalette::Window);

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(mixedColor(paper, ink, isEnabled() ? 0.45F : 0.3F), 1));
    painter.setBrush(mixedColor(paper, ink, 0.12F));
    if (hue) {
        static const QGradientStops stops = hueStops();
        QLinearGradient colors(start, 0, start + length, 0);
        if (mirrored) {
            colors = QLinearGradient(start + length, 0, start, 0);
        }
        colors.setStops(stops);
        painter.setOpacity(isEnabled() ? 1.0 : 0.4);
        painter.setBrush(colors);
    }
    painter.drawRoundedRect(track.adjusted(0.5, 0.5, -0.5, -0.5), height / 2, height / 2);
    if (!hue && isEnabled()) {
        const double from = markedMiddle_ ? start + length / 2 : positionOf(minimum_);
        const double to = positionOf(static_cast<double>(value_));
        const QRectF filled(std::min(from, to), track.top(), std::abs(to - from), height);
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette().color(QPalette::Highlight));
        const double end = markedMiddle_ ? 0.0 : kTrackEnd;
        const double round = markedMiddle_ ? 0.0 : height / 2;
        painter.drawRoundedRect(filled.adjusted(-end, 0, end, 0), round, round);
    }
    painter.restore();
    if (markedMiddle_) {
        paintMiddle(painter);
    }
}

void RealSlider::paintMiddle(QPainter& painter) const {
    const auto [start, length, mirrored] = way();
    const QColor color = mixedColor(palette().color(QPalette::Window),
                                    palette().color(QPalette::Active, QPalette::WindowText),
                                    isEnabled() ? 0.7F : 0.35F);
    QRectF tick(0, 0, 2, kTrackHeight + 10);
    tick.moveCenter(QPointF(start + length / 2, QRectF(rect()).center().y()));
    painter.fillRect(tick, color);
}

} // namespace nocturo
