#include "battery/TemperatureUnit.h"

#include <cmath>

namespace quindle {

double convertTemperature(double raw, TemperatureUnit unit)
{
    const double kelvin = raw / 10.0;
    double converted = kelvin;
    if (unit == TemperatureUnit::Celsius)
        // In doubles 303.1 K come out just above 29.95, so they are 30.0 when rounded.
        converted = kelvin + -273.15;
    else if (unit == TemperatureUnit::Fahrenheit)
        converted = kelvin * 1.8 + -459.67; // from kelvin: rounded Celsius would make 86.0 of 85.91
    // std::round takes halves away from zero, which printing does not: 298.15 K is 298.2.
    return std::round(converted * 10.0) / 10.0;
}

QString unitSign(TemperatureUnit unit)
{
    switch (unit) {
    case TemperatureUnit::Celsius:
        return QStringLiteral(" °C");
    case TemperatureUnit::Fahrenheit:
        return QStringLiteral(" °F");
    case TemperatureUnit::Kelvin:
        break;
    }
    // After the switch, so that the compiler still warns of a unit without a case.
    return QStringLiteral(" K");
}

} // namespace quindle
