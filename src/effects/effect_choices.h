#pragma once

#include <optional>
#include <string_view>

namespace nocturo {

// What users choose of the effects, in the words that they have for it. Everything is kept in the
// settings; each function is one change of them.

/// Selects an effect by its class name, also where the list of the selected ones was damaged. A
/// color filter is offered a tint.
void chooseEffect(std::string_view name);

/// To be called when a user chooses the color filter. Where neither its hue nor its vividness was
/// ever written it gets a warm tint that can be read through; the values that hold without would be
/// pure red.
void offerGentleTint();

/// Chooses the dim effect at a level from -1 (black) to 1 (white), or so far from what is in force,
/// which is 0 while it is not chosen. Levels beyond are limited.
void setDim(double level);
void stepDim(double by);

/// Chooses the color filter with that hue, in degrees, and vividness, limited to 0 to 1.
void setTint(double hue, double vividness);

/// Goes so far from the number that a setting has now, at most to the end of its range; hues go
/// round. Nothing for a setting that is no real number.
void stepSetting(std::string_view key, double by);

/// The kelvin (color_temperature.h) that hue and vividness of the color filter come to, whether it
/// is chosen or not; nothing where they lie off the curve of temperatures.
std::optional<double> filterTemperature();

/// Chooses the filter and gives it the hue and vividness of `kelvin`, limited to 1000 to 25000.
void setFilterTemperature(double kelvin);

/// Goes by so many kelvin from what is in force, which is neutral while the filter is not chosen;
/// false, with nothing changed, where the filter is chosen and lies off the curve.
bool stepFilterTemperature(double kelvin);

} // namespace nocturo
