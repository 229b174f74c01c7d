#include "desktop/schedule/point_handle.h"

#include "desktop/mixed_color.h"

#include <QAccessibleWidget>
#include <QMouseEvent>
#include <QPainter>

#include <cmath>
#include <cstdlib>

namespace nocturo {

namespace {

constexpr int kMinutesOfDay = 24 * 60;
constexpr int kStep = 5;

/// Screen readers say the time of day instead of a count of minutes.
class PointHandleAccessible : public QAccessibleWidget, public QAccessibleValueInterface {
  public:
    explicit PointHandleAccessible(PointHandle* handle)
        : QAccessibleWidget(handle, QAccessible::Slider), handle_(*handle) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? clockText(handle_.value())
                                          : QAccessibleWidget::text(kind);
    }
    QVariant currentValue() const override { return handle_.value(); }
    void setCurrentValue(const QVariant& value) override { handle_.setValue(value.toInt()); }
    QVariant maximumValue() const override { return handle_.maximum(); }
    QVariant minimumValue() const override { return handle_.minimum(); }
    QVariant minimumStepSize() const override { return handle_.singleStep(); }

  private:
    PointHandle& handle_;
};

} // namespace

QString clockText(int minutes) {
    return QStringLiteral("%1:%2")
        .arg(minutes / 60, 2, 10, QLatin1Char('0'))
        .arg(minutes % 60, 2, 10, QLatin1Char('0'));
}

QString signedNumber(int number) {
    return (number < 0   ? QString(kMinus)
            : number > 0 ? QStringLiteral("+")
                         : QString()) +
           QString::number(std::abs(number));
}

PointHandle::PointHandle(QWidget* strip) : QSlider(Qt::Horizontal, strip) {
    setRange(0, kMinutesOfDay - 1);
    setSingleStep(kStep);
    setPageStep(60);
    setTracking(false);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::SizeHorCursor);
    QAccessible::registerAccessibleInterface(new PointHandleAccessible(this));
}

void PointHandle::setCurrent(bool current) {
    isCurrent_ = current;
    update();
}

void PointHandle::setOn(bool on) {
    isOn_ = on;
    update();
}

QSize PointHandle::sizeHint() const {
    const int line = fontMetrics().height();
    return {line * 3 / 4, line * 2};
}

void PointHandle::mousePressEvent(QMouseEvent* event) {
    event->accept();
    setSliderDown(event->button() == Qt::LeftButton);
}

void PointHandle::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
    // The handle moves under the pointer, whose way since the press counts alone.
    if (isSliderDown() && event->buttons() == Qt::LeftButton) {
        const double time = timeAt(mapToParent(event->position().toPoint()).x());
        setSliderPosition(static_cast<int>(std::lround(time / kStep)) * kStep);
    }
}

void PointHandle::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    setSliderDown(false);
}

void PointHandle::wheelEvent(QWheelEvent* event) {
    event->ignore(); // it scrolls the page
}

void PointHandle::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && isSliderDown()) {
        setSliderPosition(value());
        setSliderDown(false);
        return;
    }
    QSlider::keyPressEvent(event);
}

void PointHandle::focusInEvent(QFocusEvent* event) {
    QSlider::focusInEvent(event);
    focused();
}

void PointHandle::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor paper = palette().color(QPalette::Window);
    const QColor ink = palette().color(QPalette::WindowText);
    const QColor accent = palette().color(QPalette::Highlight);
    const bool stands = isCurrent_ || hasFocus() || underMouse();
    painter.setPen(QPen(stands ? mixedColor(accent, ink, 0.3F) : mixedColor(paper, ink, 0.6F),
                        hasFocus() ? 3 : 1.5));
    painter.setBrush(isOn_ ? accent : paper);
    const QRectF body = QRectF(rect()).adjusted(2, 2, -2, -2);
    painter.drawRoundedRect(body, body.width() / 3, body.width() / 3);
}

} // namespace nocturo
