#pragma once

#include <QString>

namespace quindle {

/// The units a temperature is shown in; stored as their numbers.
enum class TemperatureUnit { Celsius = 0, Fahrenheit = 1, Kelvin = 2 };

/// A raw temperature (tenths of a kelvin, the registry's "Temperature") in a unit, rounded to one decimal
/// with halves away from zero. Computed in plain doubles: raw 3031 is 30.0 °C, raw 2981.5 is 298.2 K.
double convertTemperature(double raw, TemperatureUnit unit);

/// " °C", " °F" or " K".
QString unitSign(TemperatureUnit unit);

} // namespace quindle
