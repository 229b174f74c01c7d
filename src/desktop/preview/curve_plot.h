#pragma once

#include "desktop/preview/preview_curves.h"

#include <QPalette>
#include <QRectF>

class QPainter;

namespace nocturo {

/// Draws the curves of the three channels over a grid, input from left to right in every language:
/// after as solid lines, before as dashed ones, both as the hardware shows them, limited to 0..1.
/// Channels that agree are one line in their mixed color, all three in that of text, and letters
/// at its end say which they are. Inputs whose output is clipped are hatched above or below the
/// grid, and a thin line shows where the curve would have gone.
///
/// Without samples in `after` a sentence says that the screen's colors cannot be changed.
void paintCurvePlot(QPainter& painter, const QRectF& area, const PreviewCurves& curves,
                    const QPalette& palette);

/// The legend of the lines, from the left, or from the right in a mirrored painter.
void paintPlotLegend(QPainter& painter, const QRectF& area, const PreviewCurves& curves,
                     const QPalette& palette);

} // namespace nocturo
