#pragma once

#include <QImage>
#include <QSize>

namespace nocturo {

/// The picture that is seen through the curves: a landscape with light and shade, a sheet with
/// text, pure colors and a grey wedge, so that each effect shows where it matters. In device
/// pixels, opaque. Of a size that was just asked for it costs nothing. Main thread only.
const QImage& previewScene(QSize size);

} // namespace nocturo
