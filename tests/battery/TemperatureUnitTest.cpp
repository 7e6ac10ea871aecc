#include "battery/TemperatureUnit.h"

#include <cmath>

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

constexpr auto celsius = TemperatureUnit::Celsius;
constexpr auto fahrenheit = TemperatureUnit::Fahrenheit;
constexpr auto kelvin = TemperatureUnit::Kelvin;

TEST(TemperatureUnit, RawTenthsOfAKelvin)
{
    struct Row
    {
        double raw;
        TemperatureUnit unit;
        double shown;
    };
    constexpr Row rows[] = {
        // 303.1 - 273.15 is a little above 29.95 in doubles, so it rounds up.
        {3031, celsius, 30.0},
        {3031, fahrenheit, 85.9}, // 85.91; from the rounded 30.0 °C it would
                                  // be 86.0
        {3031, kelvin, 303.1},
        {2981.5, celsius, 25.0},
        {2981.5, fahrenheit, 77.0},
        {2981.5, kelvin, 298.2}, // halves go away from zero
        {-2981.5, kelvin, -298.2},
        {0, celsius, -273.2}, // -273.15, away from zero
        {0, fahrenheit, -459.7},
        {0, kelvin, 0.0},
        {3731.5, celsius, 100.0},
        {3731.5, fahrenheit, 212.0},
    };
    for (const Row& row : rows)
        EXPECT_EQ(convertTemperature(row.raw, row.unit), row.shown)
            << row.raw << " in unit " << static_cast<int>(row.unit);
}

TEST(TemperatureUnit, JustBelowZeroIsNegativeZero)
{
    const double shown = convertTemperature(2731.2, celsius); // -0.03 °C
    EXPECT_EQ(shown, 0.0);
    EXPECT_TRUE(std::signbit(shown));
}

TEST(TemperatureUnit, SignsAndStoredNumbers)
{
    EXPECT_EQ(unitSign(celsius), QStringLiteral(" °C"));
    EXPECT_EQ(unitSign(fahrenheit), QStringLiteral(" °F"));
    EXPECT_EQ(unitSign(kelvin), QStringLiteral(" K"));
    EXPECT_EQ(static_cast<int>(celsius), 0);
    EXPECT_EQ(static_cast<int>(fahrenheit), 1);
    EXPECT_EQ(static_cast<int>(kelvin), 2);
}

} // namespace
