#pragma once

#include <array>
#include <optional>

namespace nocturo {

// Color temperatures as settings of the color filter: each from 1000 to 25000 K is one hue and one
// vividness, which give white the color of a black body of that temperature.

inline constexpr double kLowestTemperature = 1000.0;
inline constexpr double kHighestTemperature = 25000.0;
inline constexpr double kNeutralTemperature = 6500.0; // kelvin; white stays as it is

struct FilterColor {
    double hue;       // degrees
    double vividness; // 0 to 1
};

/// What white becomes at a temperature (kelvin, limited to the range above, and to one step of 100
/// K beyond its end): red, green and blue, the largest of them 1.
std::array<double, 3> whiteAtTemperature(double kelvin);

/// The color filter that gives white the color of `kelvin`, which is limited to the range above.
FilterColor filterAtTemperature(double kelvin);

/// The temperature whose white is within one step of an 8-bit channel of what the filter makes of
/// white; nothing where there is none.
std::optional<double> temperatureOfFilter(const FilterColor& filter);

} // namespace nocturo
