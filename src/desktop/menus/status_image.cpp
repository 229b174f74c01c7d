#include "desktop/menus/status_image.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace nocturo {

namespace {

constexpr qreal kGrid = 16;
constexpr QColor kDark(0x36, 0x36, 0x36);
constexpr QColor kLight(0xff, 0xff, 0xff);

QPainterPath display() {
    QPainterPath display;
    display.addRoundedRect(QRectF(0, 1, 16, 12), 2, 2);
    return display;
}

QPainterPath stand() {
    QPainterPath stand;
    stand.addRect(QRectF(6, 13, 4, 1));
    stand.addRect(QRectF(4, 14, 8, 1));
    return stand;
}

// The same shapes as the image files of the icon theme: a display, with the effect's sign in it.
// While the effect is on the display is filled and the sign cut out of it.
QPainterPath shape(bool active) {
    QPainterPath screen = display();
    if (!active) {
        screen.addRect(QRectF(2, 3, 12, 8));
    }
    QPainterPath sign;
    sign.addEllipse(QPointF(8, 7), 3, 3);
    QPainterPath half; // the right one
    half.moveTo(8, 5);
    half.arcTo(QRectF(6, 5, 4, 4), 90, -180);
    half.closeSubpath();
    sign = sign.subtracted(half);
    return (active ? screen.subtracted(sign) : screen.united(sign)).united(stand());
}

class StatusImageEngine : public QIconEngine {
  public:
    StatusImageEngine(bool active, const std::optional<QColor>& color)
        : active_(active), color_(color) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode /*mode*/,
               QIcon::State /*state*/) override {
        const qreal whole = std::min(rect.width(), rect.height());
        // In whole pixels, so that small images stay sharp.
        const qreal edge = color_ ? 0 : std::max(1.0, std::round(whole / 22));
        const qreal side = whole - 2 * edge;
        const qreal scale = side / kGrid;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.x() + (rect.width() - side) / 2,
                           rect.y() + (rect.height() - side) / 2);
        painter->scale(scale, scale);
        if (!color_) {
            const QPainterPath outline = display().united(stand());
            const QPen pen(kLight, 2 * edge / scale, Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin);
            painter->strokePath(outline, pen);
            painter->fillPath(outline, kLight);
        }
        painter->fillPath(shape(active_), color_.value_or(kDark));
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }

    QList<QSize> availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
        return {QSize(16, 16), QSize(22, 22), QSize(24, 24), QSize(32, 32), QSize(48, 48)};
    }

    // Panels take this name rather than pixels, where they have an image of that name.
    QString iconName() override {
        const QString name = active_ ? QStringLiteral("nocturo-status-active-symbolic")
                                     : QStringLiteral("nocturo-status-symbolic");
        return QIcon::hasThemeIcon(name) ? name : QString();
    }

    QString key() const override { return QStringLiteral("nocturo-status"); }
    QIconEngine* clone() const override { return new StatusImageEngine(*this); }

  private:
    bool active_;
    std::optional<QColor> color_;
};

} // namespace

QIcon statusImage(const QString& name, const std::optional<QColor>& color) {
    const bool active = name == QLatin1String(kStatusActiveTemplate);
    if (!active && name != QLatin1String(kStatusTemplate)) {
        return {};
    }
    return QIcon(new StatusImageEngine(active, color));
}

} // namespace nocturo
