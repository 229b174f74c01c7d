#include "desktop/preview/effect_preview.h"

#include "desktop/level_tables.h"
#include "desktop/mixed_color.h"
#include "desktop/preview/curve_plot.h"
#include "desktop/preview/preview_description.h"
#include "desktop/qt/localized.h"

#include <QAccessibleWidget>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

// A static library's resources are dropped by the linker unless they are asked for by name, which
// must be done outside of any namespace.
static void keepResource() {
    Q_INIT_RESOURCE(preview);
}

namespace nocturo {

namespace {

constexpr double kGap = 12;

/// What is seen through the curves, in device pixels; the two sizes that were asked for last cost
/// nothing.
const QImage& scene(QSize size) {
    static const QImage drawn = [] {
        keepResource();
        return QImage(QStringLiteral(":/preview/preview.png"));
    }();
    static std::array<QImage, 2> scaled;
    if (scaled[0].size() != size) {
        std::swap(scaled[0], scaled[1]);
    }
    if (scaled[0].size() != size) {
        scaled[0] = drawn.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                        .convertToFormat(QImage::Format_RGB32);
    }
    return scaled[0];
}

void paintPicture(QPainter& painter, const QRectF& place, const PreviewCurves& curves,
                  const QPalette& palette) {
    // Whole device pixels, or the text in the picture would blur.
    const double ratio = painter.device()->devicePixelRatioF();
    const QSize pixels((place.size() * ratio).toSize());
    QImage seen = pictureThrough(curves, pixels);
    if (seen.isNull()) {
        return;
    }
    seen.setDevicePixelRatio(ratio);
    const QPointF corner(std::round(place.left() * ratio) / ratio,
                         std::round(place.top() * ratio) / ratio);
    painter.drawImage(corner, seen);
    painter.setPen(
        QPen(mixedColor(palette.color(QPalette::Base), palette.color(QPalette::Text), 0.4F), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(place.adjusted(-0.5, -0.5, 0.5, 0.5));
}

/// As large as it gets in the area with its shape kept, away from the edges for its frame.
QRectF pictureIn(const QRectF& area) {
    const QRectF room = area.adjusted(1, 1, -1, -1);
    const double width = std::floor(std::min(room.width(), room.height() * kPictureShape));
    return QRectF(room.topLeft(), QSizeF(width, std::floor(width / kPictureShape)));
}

struct Layout {
    QRectF plot;
    QRectF picture;
    QRectF legend;
};

Layout layoutIn(const QPainter& painter, const QRectF& area) {
    const double line = painter.fontMetrics().height();
    Layout layout;
    layout.legend = QRectF(area.left(), area.bottom() - line, area.width(), line);
    const QRectF room = area.adjusted(0, 0, 0, -line - 4);
    if (room.width() < 1.2 * room.height()) { // one above the other
        const double height = std::min(room.width() / kPictureShape, room.height() / 2);
        layout.plot = room.adjusted(0, 0, 0, -height - kGap);
        layout.picture =
            pictureIn(QRectF(room.left(), room.bottom() - height, room.width(), height));
        layout.picture.moveCenter(QPointF(room.center().x(), layout.picture.center().y()));
        return layout;
    }
    // The plot is about as wide as high at most, the picture gets what is left.
    const double width = std::min(room.height() * 1.15, room.width() * 0.42);
    layout.plot = QRectF(room.left(), room.top(), width, room.height());
    layout.picture = pictureIn(room.adjusted(width + kGap, 0, 0, 0));
    if (painter.layoutDirection() == Qt::RightToLeft) {
        layout.plot.moveRight(room.right());
        layout.picture.moveRight(room.right() - width - kGap);
    }
    return layout;
}

/// Describes an EffectPreview when somebody asks, instead of at every step of a slider.
class EffectPreviewAccessible : public QAccessibleWidget {
  public:
    explicit EffectPreviewAccessible(EffectPreview* preview)
        : QAccessibleWidget(preview, QAccessible::Graphic) {}

    QString text(QAccessible::Text kind) const override {
        QString text = QAccessibleWidget::text(kind);
        if (kind == QAccessible::Description && text.isEmpty()) {
            return static_cast<EffectPreview*>(object())->description();
        }
        return text;
    }
};

} // namespace

void paintEffectPreview(QPainter& painter, const QRectF& area, const PreviewCurves& curves,
                        const QPalette& palette) {
    painter.save();
    const Layout layout = layoutIn(painter, area);
    paintCurvePlot(painter, layout.plot, curves, palette);
    paintPicture(painter, layout.picture, curves, palette);
    paintPlotLegend(painter, layout.legend, curves, palette);
    painter.restore();
}

QImage renderEffectPreview(const PreviewCurves& curves, QSize size, double devicePixelRatio,
                           const QPalette& palette) {
    const QSize pixels = (QSizeF(size) * devicePixelRatio).toSize();
    if (pixels.isEmpty()) {
        return {};
    }
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(palette.color(QPalette::Window));
    QPainter painter(&image);
    constexpr double kMargin = 8;
    const QRectF area(QPointF(0, 0), QSizeF(size));
    paintEffectPreview(painter, area.adjusted(kMargin, kMargin, -kMargin, -kMargin), curves,
                       palette);
    return image;
}

QImage pictureThrough(const PreviewCurves& curves, QSize pixels) {
    return pixels.isEmpty() ? QImage() : throughLevels(scene(pixels), pictureLevels(curves));
}

EffectPreview::EffectPreview(QWidget* parent) : QWidget(parent) {
    QAccessible::registerAccessibleInterface(new EffectPreviewAccessible(this));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::MinimumExpanding);
    setAccessibleName(localized("Preview"));
}

void EffectPreview::setCurves(const PreviewCurves& curves) {
    curves_ = curves;
    update();
}

void EffectPreview::setPlotShown(bool shown) {
    plotShown_ = shown;
    update();
}

void EffectPreview::setDisplayName(const QString& displayName) {
    displayName_ = displayName;
}

QString EffectPreview::description() const {
    return previewDescription(curves_, displayName_);
}

QSize EffectPreview::sizeHint() const {
    const int em = fontMetrics().height();
    return {28 * em, 12 * em};
}

QSize EffectPreview::minimumSizeHint() const {
    const int em = fontMetrics().height();
    return {10 * em, 4 * em};
}

void EffectPreview::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setLayoutDirection(layoutDirection());
    if (plotShown_) {
        paintEffectPreview(painter, QRectF(rect()), curves_, palette());
        return;
    }
    QRectF picture = pictureIn(QRectF(rect()));
    picture.moveCenter({QRectF(rect()).center().x(), picture.center().y()});
    paintPicture(painter, picture, curves_, palette());
}

} // namespace nocturo
