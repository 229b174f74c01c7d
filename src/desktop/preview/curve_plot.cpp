#include "desktop/preview/curve_plot.h"

#include "desktop/level_tables.h"
#include "desktop/mixed_color.h"
#include "desktop/qt/localized.h"

#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <vector>

namespace nocturo {

namespace {

constexpr float kSamePixel = 1.0F / 256; // half a pixel in a plot of usual size
constexpr double kBeyond = 0.07;         // how much room there is above 1 and below 0
constexpr int kGridCells = 4;

/// The colors of the plot, as they have to be drawn to be seen as such on a screen that inverts or
/// tints them. Ground and text, which are plain, pass through it as those of the window do.
class PlotColors {
  public:
    PlotColors(const QPalette& palette, const PreviewCurves& curves)
        : text_(palette.color(QPalette::Text)), levels_(plainLevels(curves)) {
        const auto& screen =
            curves.seenThrough.sampleCount > 0 ? curves.seenThrough : curves.before;
        onDark_ = seenLight(palette.color(QPalette::Base), screen) < seenLight(text_, screen);
    }

    /// Of channels that share a line; each bit one, red lowest.
    QColor line(unsigned channels) const {
        struct Pair {
            QRgb onLight;
            QRgb onDark;
        };
        // Readable on either background, also as thin lines; pure colors are not.
        static constexpr std::array<Pair, 6> kColors{{{0xd01c1f, 0xff6961},
                                                      {0x12873a, 0x4fd483},
                                                      {0x857000, 0xe3cf4d},
                                                      {0x1f54d1, 0x75a7ff},
                                                      {0x9a2fb0, 0xe58cff},
                                                      {0x00808a, 0x54d6de}}};
        if (channels == 7) {
            return text_;
        }
        const Pair& pair = kColors[channels - 1];
        return throughScreen(onDark_ ? pair.onDark : pair.onLight);
    }

    /// Marks clipping.
    QColor clip() const { return throughScreen(onDark_ ? 0xff9a1f : 0xe06c00); }

  private:
    QColor throughScreen(QRgb color) const {
        const auto level = [](int value) { return static_cast<std::size_t>(value); };
        return {levels_[0][level(qRed(color))], levels_[1][level(qGreen(color))],
                levels_[2][level(qBlue(color))]};
    }

    static double seenLight(const QColor& color, const ZQGammaCurve& screen) {
        const std::array levels{color.redF(), color.greenF(), color.blueF()};
        double light = 0;
        for (std::size_t channel = 0; channel < levels.size(); ++channel) {
            const auto place = static_cast<std::size_t>(
                levels[channel] * static_cast<float>(std::max(screen.sampleCount, 1U) - 1));
            const float seen = screen.sampleCount > 0
                                   ? limitedEntry((*channelsOf(screen)[channel])[place])
                                   : levels[channel];
            light += static_cast<double>(seen);
        }
        return light;
    }

    QColor text_;
    std::array<LevelTable, 3> levels_;
    bool onDark_ = false;
};

bool isAlike(const ZQGammaTable& left, const ZQGammaTable& right, std::uint32_t count) {
    for (std::uint32_t i = 0; i < count; ++i) {
        if (std::abs(limitedEntry(left[i]) - limitedEntry(right[i])) > kSamePixel) {
            return false;
        }
    }
    return true;
}

/// A line for each set of channels that agree.
struct Line {
    unsigned channels;
    const ZQGammaTable* table;
};
std::vector<Line> linesOf(const ZQGammaCurve& curve) {
    std::vector<Line> lines;
    unsigned bit = 1;
    for (const auto* table : channelsOf(curve)) {
        const auto same = std::find_if(lines.begin(), lines.end(), [&](const Line& line) {
            return isAlike(*line.table, *table, curve.sampleCount);
        });
        if (same != lines.end()) {
            same->channels |= bit;
        } else {
            lines.push_back({bit, table});
        }
        bit <<= 1U;
    }
    return lines;
}

struct Plot {
    QRectF frame; // with the room beyond
    QRectF grid;  // 0..1 either way

    QPointF at(double input, double output) const {
        const double limited = std::clamp(output, -kBeyond, 1 + kBeyond);
        return {grid.left() + input * grid.width(), grid.bottom() - limited * grid.height()};
    }
};

double inputOf(std::uint32_t i, std::uint32_t count) {
    return count > 1 ? static_cast<double>(i) / (count - 1) : 0.5;
}

void paintLine(QPainter& painter, const Plot& plot, const ZQGammaTable& table, std::uint32_t count,
               bool asShown) {
    QPolygonF points;
    points.reserve(static_cast<int>(count));
    for (std::uint32_t i = 0; i < count; ++i) {
        const float shown = limitedEntry(table[i]);
        const float entry = asShown || std::isnan(table[i]) ? shown : table[i];
        const QPointF point = plot.at(inputOf(i, count), static_cast<double>(entry));
        // Of a straight run, which most curves are, only the ends are needed.
        const auto last = points.size() - 1;
        if (last > 0) {
            const QPointF one = points[last] - points[last - 1];
            const QPointF two = point - points[last];
            if (std::abs(one.x() * two.y() - one.y() * two.x()) < 1e-3 * two.x()) {
                points[last] = point;
                continue;
            }
        }
        points.append(point);
    }
    painter.drawPolyline(points);
}

void paintGrid(QPainter& painter, const Plot& plot, const QPalette& palette) {
    const QColor base = palette.color(QPalette::Base);
    const QColor ink = palette.color(QPalette::Text);
    painter.fillRect(plot.frame, mixedColor(base, ink, 0.07F));
    painter.fillRect(plot.grid, base);
    painter.setPen(QPen(mixedColor(base, ink, 0.16F), 1));
    for (int i = 0; i <= kGridCells; ++i) {
        const double share = 1.0 * i / kGridCells;
        painter.drawLine(plot.at(share, 0), plot.at(share, 1));
        painter.drawLine(plot.at(0, share), plot.at(1, share));
    }
    painter.setPen(QPen(mixedColor(base, ink, 0.4F), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(plot.frame);
}

void paintClipMark(QPainter& painter, const QRectF& mark, const QColor& color) {
    QColor ground = color;
    ground.setAlphaF(0.35F);
    painter.fillRect(mark, ground);
    painter.fillRect(mark, QBrush(color, Qt::BDiagPattern));
}

void paintClipped(QPainter& painter, const Plot& plot, const ZQGammaCurve& curve,
                  const PlotColors& colors) {
    const auto clipped = clippedEntries(curve);
    const auto paintSpans = [&](const auto& entries, double from, double to) {
        for (std::uint32_t i = 0; i < curve.sampleCount; ++i) {
            if (!entries[i]) {
                continue;
            }
            const std::uint32_t first = i;
            while (i + 1 < curve.sampleCount && entries[i + 1]) {
                ++i;
            }
            const QPointF start = plot.at(inputOf(first, curve.sampleCount), from);
            const QPointF end = plot.at(inputOf(i, curve.sampleCount), to);
            const QRectF mark = QRectF(start, end).normalized();
            paintClipMark(painter, mark.adjusted(-1, 0, 1, 0), colors.clip());
        }
    };
    paintSpans(clipped.bright, 1, 1 + kBeyond);
    paintSpans(clipped.dark, -kBeyond, 0);
}

void paintLines(QPainter& painter, const Plot& plot, const PreviewCurves& curves,
                const PlotColors& colors) {
    painter.save();
    painter.setClipRect(plot.frame);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const auto& [channels, table] : linesOf(curves.before)) {
        QColor color = colors.line(channels);
        color.setAlphaF(0.75F);
        QPen pen(color, 1.2);
        pen.setDashPattern({3, 3});
        painter.setPen(pen);
        paintLine(painter, plot, *table, curves.before.sampleCount, true);
    }
    for (const auto& [channels, table] : linesOf(curves.after)) {
        painter.setPen(QPen(colors.line(channels), 1));
        paintLine(painter, plot, *table, curves.after.sampleCount, false);
        painter.setPen(QPen(colors.line(channels), 2.2, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
        paintLine(painter, plot, *table, curves.after.sampleCount, true);
    }
    painter.restore();
}

/// The channels that a line stands for, each bit one, by their initials.
QString lettersOf(unsigned channels) {
    const std::array letters{localized("R"), localized("G"), localized("B")};
    QString shared;
    unsigned bit = 1;
    for (const QString& letter : letters) {
        if ((channels & bit) != 0) {
            shared += letter;
        }
        bit <<= 1U;
    }
    return shared;
}

/// Their letters at the ends of their lines, pushed apart where these are close.
void paintLetters(QPainter& painter, const Plot& plot, const ZQGammaCurve& curve,
                  const PlotColors& colors) {
    const std::uint32_t last = curve.sampleCount - 1;
    const double height = painter.fontMetrics().capHeight() + 4.0;
    auto lines = linesOf(curve);
    const auto heightOf = [&](const Line& line) {
        return plot.at(1, static_cast<double>(limitedEntry((*line.table)[last]))).y();
    };
    std::stable_sort(lines.begin(), lines.end(), [&](const Line& left, const Line& right) {
        return heightOf(left) < heightOf(right);
    });
    double lowest = plot.frame.bottom() - height * (static_cast<double>(lines.size()) - 0.5);
    double next = plot.frame.top() + height / 2;
    for (const Line& line : lines) {
        const double y = std::min(std::max(heightOf(line), next), lowest);
        painter.setPen(colors.line(line.channels));
        painter.drawText(QRectF(plot.frame.right() + 4, y - height, 100, 2 * height),
                         Qt::AlignLeft | Qt::AlignVCenter, lettersOf(line.channels));
        next = y + height;
        lowest += height;
    }
}

void paintCaptions(QPainter& painter, const QRectF& area, const Plot& plot,
                   const QPalette& palette) {
    const double line = painter.fontMetrics().height();
    painter.setPen(
        mixedColor(palette.color(QPalette::Window), palette.color(QPalette::WindowText), 0.75F));
    painter.drawText(QRectF(plot.frame.left(), plot.frame.bottom() + 2, plot.frame.width(), line),
                     Qt::AlignCenter, localized("Input"));
    painter.save();
    painter.translate(area.left(), plot.frame.bottom());
    painter.rotate(-90);
    painter.drawText(QRectF(0, 0, plot.frame.height(), line), Qt::AlignCenter, localized("Output"));
    painter.restore();
}

void makeFontSmall(QPainter& painter) {
    QFont font = painter.font();
    if (font.pointSizeF() > 0) {
        font.setPointSizeF(font.pointSizeF() * 0.88);
    }
    painter.setFont(font);
}

Plot plotIn(const QPainter& painter, const QRectF& area) {
    const QFontMetricsF metrics(painter.font());
    const double text = metrics.height() + 2;
    const double letters = metrics.horizontalAdvance(lettersOf(7)) + 6;
    Plot plot;
    plot.frame = area.adjusted(text, 0.5, -letters, -text);
    const double beyond = plot.frame.height() * kBeyond / (1 + 2 * kBeyond);
    plot.grid = plot.frame.adjusted(0, beyond, 0, -beyond);
    return plot;
}

} // namespace

void paintCurvePlot(QPainter& painter, const QRectF& area, const PreviewCurves& curves,
                    const QPalette& palette) {
    painter.save();
    painter.setLayoutDirection(Qt::LeftToRight);
    makeFontSmall(painter);
    const Plot plot = plotIn(painter, area);
    paintGrid(painter, plot, palette);
    paintCaptions(painter, area, plot, palette);
    if (curves.after.sampleCount == 0) {
        painter.setPen(palette.color(QPalette::Text));
        painter.drawText(plot.grid.adjusted(8, 8, -8, -8), Qt::AlignCenter | Qt::TextWordWrap,
                         localized("The colors of this screen cannot be changed."));
    } else {
        const PlotColors colors(palette, curves);
        paintClipped(painter, plot, curves.after, colors);
        paintLines(painter, plot, curves, colors);
        paintLetters(painter, plot, curves.after, colors);
    }
    painter.restore();
}

void paintPlotLegend(QPainter& painter, const QRectF& area, const PreviewCurves& curves,
                     const QPalette& palette) {
    if (curves.after.sampleCount == 0) {
        return;
    }
    painter.save();
    makeFontSmall(painter);
    const QFontMetricsF metrics(painter.font());
    const double sample = metrics.averageCharWidth() * 3;
    const bool mirrored = painter.layoutDirection() == Qt::RightToLeft;
    const QColor ink = palette.color(QPalette::WindowText);
    double used = 0;
    const auto paintEntry = [&](const QString& text, const auto& paintSample) {
        const double width = metrics.horizontalAdvance(text);
        const auto placed = [&](double from, double length) {
            return QRectF(mirrored ? area.right() - from - length : area.left() + from, area.top(),
                          length, area.height());
        };
        paintSample(placed(used, sample));
        painter.setPen(ink);
        painter.drawText(placed(used + sample + 5, width + 1), Qt::AlignCenter, text);
        used += sample + width + 20;
    };
    const auto lineSample = [&](const QPen& pen) {
        return [&painter, pen](const QRectF& place) {
            painter.setPen(pen);
            const double y = std::floor(place.center().y()) + 0.5;
            painter.drawLine(QPointF(place.left(), y), QPointF(place.right(), y));
        };
    };
    QPen dashed(ink, 1.2);
    dashed.setDashPattern({3, 3});
    paintEntry(localized("Before"), lineSample(dashed));
    paintEntry(localized("With effect"), lineSample(QPen(ink, 2.2)));
    const auto clipped = clippedEntries(curves.after);
    if (clipped.anyBright || clipped.anyDark) {
        const PlotColors colors(palette, curves);
        paintEntry(localized("Clipped"), [&](const QRectF& place) {
            QRectF mark(0, 0, place.width(), metrics.capHeight());
            mark.moveCenter(place.center());
            paintClipMark(painter, mark, colors.clip());
        });
    }
    painter.restore();
}

} // namespace nocturo
