#pragma once

#include "desktop/level_tables.h"

#include <QGradient>
#include <QString>

#include <array>
#include <functional>

namespace nocturo {

// What the controls of the color filter show and say of its colors.

/// The hue in a word: "orange".
QString hueWord(double degrees);

/// Light of that temperature in a word: "candle".
QString temperatureWord(double kelvin);

/// The colors that the color filter makes of white, by hue from 0 to 360 degrees, as they have to
/// be drawn to be seen through what the display does to its levels.
QGradientStops hueStops(const std::array<LevelTable, 3>& levels);

/// The same by temperature; `kelvinAt` tells the temperature at a place from 0 to 1.
QGradientStops temperatureStops(const std::array<LevelTable, 3>& levels,
                                const std::function<double(double)>& kelvinAt);

} // namespace nocturo
