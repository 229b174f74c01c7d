#include "desktop/preview/preview_scene.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include <array>

namespace nocturo {

namespace {

// The scene is composed on a canvas of 300 by 200.
constexpr QSizeF kCanvas(300, 200);
constexpr double kHorizon = 118;
constexpr double kStripTop = 162;

constexpr std::array<QRgb, 6> kPureColors{0xffff0000, 0xffffff00, 0xff00ff00,
                                          0xff00ffff, 0xff0000ff, 0xffff00ff};
constexpr int kGreySteps = 12;

void paintSky(QPainter& painter) {
    QLinearGradient sky(0, 0, 0, kHorizon);
    sky.setColorAt(0, QColor(0x1b, 0x4f, 0x9c));
    sky.setColorAt(0.6, QColor(0x8f, 0xc1, 0xea));
    sky.setColorAt(1, QColor(0xff, 0xdf, 0xb0));
    painter.fillRect(QRectF(0, 0, kCanvas.width(), kHorizon), sky);
    QRadialGradient sun(QPointF(72, 70), 44);
    sun.setColorAt(0, Qt::white);
    sun.setColorAt(0.28, QColor(0xff, 0xf8, 0xd8));
    sun.setColorAt(0.38, QColor(0xff, 0xe0, 0x80, 0x90));
    sun.setColorAt(1, QColor(0xff, 0xd0, 0x60, 0));
    painter.fillRect(QRectF(0, 0, kCanvas.width(), kHorizon), sun);
}

void paintHills(QPainter& painter) {
    QPainterPath far(QPointF(0, 102));
    far.cubicTo(40, 66, 74, 108, 112, 84);
    far.cubicTo(150, 60, 190, 116, 300, 80);
    far.lineTo(300, kHorizon);
    far.lineTo(0, kHorizon);
    painter.fillPath(far, QColor(0x5c, 0x6f, 0x96));
    QPainterPath meadow(QPointF(0, 116));
    meadow.cubicTo(80, 98, 150, 126, 300, 108);
    meadow.lineTo(300, kStripTop);
    meadow.lineTo(0, kStripTop);
    QLinearGradient grass(0, 104, 0, kStripTop);
    grass.setColorAt(0, QColor(0x8c, 0xb8, 0x4a));
    grass.setColorAt(1, QColor(0x12, 0x30, 0x18));
    painter.fillPath(meadow, grass);
}

void paintBalloon(QPainter& painter) {
    const QPointF middle(128, 46);
    QRadialGradient skin(middle - QPointF(9, 10), 40);
    skin.setColorAt(0, QColor(0xff, 0xb0, 0x90));
    skin.setColorAt(0.5, QColor(0xe0, 0x30, 0x28));
    skin.setColorAt(1, QColor(0x50, 0x08, 0x10));
    painter.setBrush(skin);
    painter.drawEllipse(middle, 26, 28);
    QPainterPath stripe;
    stripe.addEllipse(middle, 10, 28);
    QLinearGradient yellow(0, 18, 0, 74);
    yellow.setColorAt(0, QColor(0xff, 0xf0, 0x90));
    yellow.setColorAt(1, QColor(0xa0, 0x70, 0x00));
    painter.fillPath(stripe, yellow);
    painter.setBrush(QColor(0x4a, 0x30, 0x1c));
    painter.drawRect(QRectF(122, 82, 12, 9));
    painter.setPen(QPen(QColor(0x30, 0x20, 0x18), 0.8));
    painter.drawLine(QPointF(114, 71), QPointF(122, 82));
    painter.drawLine(QPointF(142, 71), QPointF(134, 82));
    painter.setPen(Qt::NoPen);
}

/// What most of a screen is in truth: black on white, and greys that must stay apart.
void paintSheet(QPainter& painter) {
    const QRectF sheet(186, 22, 92, 118);
    painter.setBrush(QColor(0, 0, 0, 70));
    painter.drawRoundedRect(sheet.translated(2, 3), 3, 3);
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(sheet, 3, 3);
    QFont font(painter.font());
    font.setBold(true);
    font.setPixelSize(34);
    painter.setFont(font);
    painter.setPen(Qt::black);
    painter.drawText(QRectF(196, 24, 76, 44), Qt::AlignLeft | Qt::AlignVCenter,
                     QStringLiteral("Aa"));
    painter.setPen(Qt::NoPen);
    constexpr std::array<double, 6> kWidths{72, 66, 72, 48, 70, 56};
    for (std::size_t i = 0; i < kWidths.size(); ++i) {
        const int grey = static_cast<int>(i) * 40;
        painter.fillRect(QRectF(196, 74 + 10.0 * static_cast<double>(i), kWidths[i], 4.5),
                         QColor(grey, grey, grey));
    }
}

void paintStrips(QPainter& painter) {
    painter.setRenderHint(QPainter::Antialiasing, false); // or seams show between the patches
    const double half = (kCanvas.height() - kStripTop) / 2;
    const double wide = kCanvas.width() / kPureColors.size();
    for (std::size_t i = 0; i < kPureColors.size(); ++i) {
        painter.fillRect(QRectF(wide * static_cast<double>(i), kStripTop, wide, half),
                         QColor(kPureColors[i]));
    }
    for (int i = 0; i < kGreySteps; ++i) {
        const int grey = i * 255 / (kGreySteps - 1);
        painter.fillRect(QRectF(kCanvas.width() / kGreySteps * i, kStripTop + half,
                                kCanvas.width() / kGreySteps, half),
                         QColor(grey, grey, grey));
    }
}

QImage paintedScene(QSize size) {
    QImage scene(size, QImage::Format_RGB32);
    scene.fill(Qt::black);
    QPainter painter(&scene);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size.width() / kCanvas.width(), size.height() / kCanvas.height());
    painter.setPen(Qt::NoPen);
    paintSky(painter);
    paintHills(painter);
    paintBalloon(painter);
    paintSheet(painter);
    paintStrips(painter);
    return scene;
}

} // namespace

const QImage& previewScene(QSize size) {
    static QImage scene;
    if (scene.size() != size) {
        scene = paintedScene(size);
    }
    return scene;
}

} // namespace nocturo
