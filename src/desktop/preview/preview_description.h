#pragma once

#include "desktop/preview/preview_curves.h"

#include <QString>

namespace nocturo {

/// The preview in words, for those who cannot see it: "Screen 1: brightness from 0 % to 60 %,
/// inverted, red strongest". Brightness is a curve's entry, weighted as the eye weights the
/// channels, and limited to what a display can show.
QString previewDescription(const PreviewCurves& curves, const QString& displayName);

} // namespace nocturo
