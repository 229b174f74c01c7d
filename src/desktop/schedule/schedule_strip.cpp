#include "desktop/schedule/schedule_strip.h"

#include "desktop/mixed_color.h"
#include "desktop/schedule/point_handle.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <QSignalBlocker>

#include <algorithm>
#include <array>
#include <utility>

namespace nocturo {

namespace {

constexpr int kDay = 24 * 60;
constexpr QColor kNight(26, 35, 64);
constexpr QColor kTwilight(196, 128, 104);
constexpr QColor kDaylight(190, 220, 244);

void paintCentered(QPainter& painter, int x, const QRect& row, const QString& text) {
    const int width = painter.fontMetrics().horizontalAdvance(text);
    painter.drawText(QRect(x - width / 2 - 1, row.top(), width + 2, row.height()), Qt::AlignCenter,
                     text);
}

} // namespace

ScheduleStrip::ScheduleStrip(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    followFont();
}

void ScheduleStrip::addHandle() {
    auto* handle = new PointHandle(this);
    const int index = static_cast<int>(handles_.size());
    handles_.push_back(handle);
    handle->timeAt = [this](int x) { return timeAt(x); };
    handle->focused = [this, index] { Q_EMIT chosen(index); };
    connect(handle, &QSlider::sliderMoved, this, &ScheduleStrip::placeHandles);
    connect(handle, &QSlider::valueChanged, this,
            [this, index](int minutes) { Q_EMIT moved(index, minutes); });
}

void ScheduleStrip::setPoints(std::vector<Point> points) {
    points_ = std::move(points);
    for (; handles_.size() > points_.size(); handles_.pop_back()) {
        handles_.back()->deleteLater(); // it may be the one that is being moved
        handles_.back()->hide();
    }
    while (handles_.size() < points_.size()) {
        addHandle();
    }
    for (std::size_t i = 0; i < points_.size(); ++i) {
        PointHandle& handle = *handles_[i];
        const QSignalBlocker quiet(handle);
        handle.setSliderDown(false);
        handle.setVisible(points_[i].time.has_value());
        handle.setValue(points_[i].time.value_or(0));
        handle.setOn(points_[i].isOn);
        handle.setAccessibleName(points_[i].name);
        handle.setAccessibleDescription(points_[i].description);
        handle.setToolTip(
            QStringList{points_[i].description, points_[i].name}.join(u'\n').trimmed());
    }
    setCurrent(current_);
    placeHandles();
}

void ScheduleStrip::setCurrent(int index) {
    current_ = index;
    for (std::size_t i = 0; i < handles_.size(); ++i) {
        handles_[i]->setCurrent(static_cast<int>(i) == index);
        if (static_cast<int>(i) == index) {
            handles_[i]->raise();
        }
    }
    update();
}

void ScheduleStrip::setSun(const SunOfDay& sun) {
    if (std::exchange(sun_, sun) != sun) {
        update();
    }
}

void ScheduleStrip::setNow(int minutes) {
    if (std::exchange(now_, minutes) != minutes) {
        update();
    }
}

/// The indexes of points that come, the first of the day first.
std::vector<int> ScheduleStrip::inOrder() const {
    std::vector<int> order;
    for (std::size_t i = 0; i < points_.size(); ++i) {
        if (points_[i].time) {
            order.push_back(static_cast<int>(i));
        }
    }
    std::ranges::stable_sort(order, {}, [this](int index) {
        return handles_[static_cast<std::size_t>(index)]->sliderPosition();
    });
    return order;
}

std::vector<QWidget*> ScheduleStrip::handlesInOrder() const {
    std::vector<QWidget*> handles;
    for (const int index : inOrder()) {
        handles.push_back(handles_[static_cast<std::size_t>(index)]);
    }
    return handles;
}

QSize ScheduleStrip::sizeHint() const {
    return {fontMetrics().height() * 30, maximumHeight()};
}

void ScheduleStrip::followFont() {
    const int line = fontMetrics().height();
    setMinimumSize(line * 15, line * 3 / 2);
    setMaximumHeight(line * 9 / 2);
    placeHandles();
}

bool ScheduleStrip::hasRoomForTimes() const {
    return height() >= 7 * fontMetrics().height() / 2;
}

/// Room is left for half a time at both ends.
QRect ScheduleStrip::track() const {
    const int above = hasRoomForTimes() ? fontMetrics().height() + 4 : 2;
    const int beside = fontMetrics().horizontalAdvance(clockText(0)) / 2 + 2;
    return rect().adjusted(beside, above, -beside, -above);
}

int ScheduleStrip::xOf(int minutes) const {
    const QRect place = track();
    const int along = place.width() * minutes / kDay;
    return isRightToLeft() ? place.right() - along : place.left() + along;
}

int ScheduleStrip::timeAt(int x) const {
    const QRect place = track();
    const int along = isRightToLeft() ? place.right() - x : x - place.left();
    return std::clamp(along * kDay / std::max(1, place.width()), 0, kDay - 1);
}

void ScheduleStrip::placeHandles() {
    for (PointHandle* handle : handles_) {
        handle->resize(handle->sizeHint().boundedTo(size()));
        QRect place = handle->rect();
        place.moveCenter({xOf(handle->sliderPosition()), track().center().y()});
        handle->move(place.topLeft());
    }
    update();
}

void ScheduleStrip::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    placeHandles();
}

void ScheduleStrip::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange) {
        followFont();
    }
}

void ScheduleStrip::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintDaylight(painter);
    paintHours(painter);
    paintNames(painter);
    if (hasRoomForTimes()) {
        paintTimes(painter);
    }
}

void ScheduleStrip::paintDaylight(QPainter& painter) const {
    const QRect place = track();
    QPainterPath shape;
    shape.addRoundedRect(place, 5, 5);
    painter.setPen(Qt::NoPen);
    painter.fillPath(shape, mixedColor(palette().color(QPalette::Window),
                                       palette().color(QPalette::WindowText), 0.15F));
    if (sun_.sunrise && sun_.sunset && *sun_.sunrise < *sun_.sunset) {
        QLinearGradient light(xOf(0), 0, xOf(kDay), 0);
        const auto add = [&light](std::chrono::minutes time, const QColor& color) {
            light.setColorAt(std::clamp(static_cast<double>(time.count()) / kDay, 0.0, 1.0), color);
        };
        constexpr std::chrono::minutes kUsualTwilight(40);
        add(std::min(sun_.dawn.value_or(*sun_.sunrise - kUsualTwilight), *sun_.sunrise), kNight);
        add(*sun_.sunrise, kTwilight);
        add(*sun_.sunrise + kUsualTwilight, kDaylight);
        add(*sun_.sunset - kUsualTwilight, kDaylight);
        add(*sun_.sunset, kTwilight);
        add(std::max(sun_.dusk.value_or(*sun_.sunset + kUsualTwilight), *sun_.sunset), kNight);
        painter.fillPath(shape, light);
    }
}

void ScheduleStrip::paintHours(QPainter& painter) const {
    const QRect place = track();
    const QColor ink = palette().color(QPalette::WindowText);
    const QColor soft = mixedColor(palette().color(QPalette::Window), ink, 0.65F);
    const QRect row(0, place.bottom() + 4, width(), fontMetrics().height());
    const bool isWide = place.width() > 12 * painter.fontMetrics().horizontalAdvance(clockText(0));
    painter.setPen(soft);
    for (int hour = 0; hour <= 24; ++hour) {
        const int x = xOf(hour * 60);
        painter.drawLine(x, place.bottom() + 1, x, place.bottom() + (hour % 6 == 0 ? 4 : 2));
        if (hour % (isWide ? 3 : 6) == 0) {
            paintCentered(painter, x, row, clockText(hour * 60));
        }
    }
    if (now_ >= 0) {
        painter.setPen(QPen(palette().color(QPalette::Window), 4));
        painter.drawLine(xOf(now_), place.top() - 2, xOf(now_), place.bottom() + 2);
        painter.setPen(QPen(ink, 2));
        painter.drawLine(xOf(now_), place.top() - 2, xOf(now_), place.bottom() + 2);
    }
}

void ScheduleStrip::paintNames(QPainter& painter) const {
    const std::vector<int> order = inOrder();
    const QRect place = track();
    const int line = fontMetrics().height();
    const auto paintBetween = [&](int from, int to, const QString& name) {
        const int left = std::min(xOf(from), xOf(to)) + line * 2 / 3;
        const int room = std::abs(xOf(to) - xOf(from)) - line * 4 / 3;
        const QString text = fontMetrics().elidedText(name, Qt::ElideRight, room - line / 2);
        if (room < 2 * line || text.size() < 2) {
            return;
        }
        QRect band(0, 0, fontMetrics().horizontalAdvance(text) + line / 2, line + 2);
        band.moveCenter({left + room / 2, place.center().y()});
        QColor paper = palette().color(QPalette::Window);
        paper.setAlphaF(0.8F);
        painter.setPen(Qt::NoPen);
        painter.setBrush(paper);
        painter.drawRoundedRect(band, 3, 3);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(band, Qt::AlignCenter, text);
    };
    const auto timeOf = [this](int index) {
        return handles_[static_cast<std::size_t>(index)]->sliderPosition();
    };
    for (std::size_t i = 0; i < order.size(); ++i) {
        const QString& name = points_[static_cast<std::size_t>(order[i])].name;
        const bool isLast = i + 1 == order.size();
        paintBetween(timeOf(order[i]), isLast ? kDay : timeOf(order[i + 1]), name);
        if (isLast) {
            paintBetween(0, timeOf(order[0]), name); // since yesterday
        }
    }
}

/// Above each handle, the current one's for certain and of others as many as there is room for.
void ScheduleStrip::paintTimes(QPainter& painter) const {
    const QRect row(0, 0, width(), fontMetrics().height());
    const int room = fontMetrics().horizontalAdvance(clockText(0)) + 4;
    std::vector<int> taken;
    std::vector<int> order = inOrder();
    std::stable_partition(order.begin(), order.end(),
                          [this](int index) { return index == current_; });
    for (const int index : order) {
        const PointHandle& handle = *handles_[static_cast<std::size_t>(index)];
        const int x = xOf(handle.sliderPosition());
        if (std::ranges::none_of(taken, [&](int other) { return std::abs(other - x) < room; })) {
            taken.push_back(x);
            painter.setPen(palette().color(QPalette::WindowText));
            paintCentered(painter, x, row, clockText(handle.sliderPosition()));
        }
    }
}

} // namespace nocturo
