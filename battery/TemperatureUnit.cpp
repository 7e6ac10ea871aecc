#include "battery/TemperatureUnit.h"

#include <cmath>

namespace quindle {

double convertTemperature(double raw, TemperatureUnit unit)
{
    const double kelvin = raw / 10.0;
    double converted = kelvin;
    if (unit == TemperatureUnit::Celsius)
        converted = kelvin + -273.15;
    else if (unit == TemperatureUnit::Fahrenheit)
        converted = kelvin * 1.8 + -459.67; // from kelvin, not from the rounded Celsius value
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
    return QStringLiteral(" K");
}

} // namespace quindle
