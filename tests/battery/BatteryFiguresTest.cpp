#include "battery/BatteryFigures.h"

#include <cmath>

#include <gtest/gtest.h>

#include "tests/support/NotFinite.h"

using namespace quindle;

namespace {

TEST(BatteryFigures, PercentageIsNeitherRoundedNorBounded)
{
    struct Row
    {
        qint64 part;
        qint64 whole;
        double percent;
    };
    constexpr Row rows[] = {
        {6000, 6000, 100.0},
        {0, 6000, 0.0},
        {3000, 6000, 50.0},
        {12000, 6000, 200.0},
        {-3000, 6000, -50.0},
        {3000, -6000, -50.0},
        {29, 100, 28.999999999999996}, // divided before multiplied, which 29 × 100 ÷ 100 is not
        {7, 100, 7.000000000000001},
        {4000, 6000, 66.66666666666666},
        {1, 0, infinity},
        {-1, 0, -infinity},
        {0, -1, 0.0},
    };
    for (const Row& row : rows)
        EXPECT_EQ(percentage(row.part, row.whole), row.percent) << row.part << " of " << row.whole;
    EXPECT_TRUE(std::isnan(percentage(0, 0)));
}

TEST(BatteryFigures, PowerIsAMagnitudeInWatts)
{
    struct Row
    {
        qint64 millivolts;
        qint64 milliamperes;
        double watts;
    };
    constexpr Row rows[] = {
        {12500, -1600, 20.0}, {12500, 1600, 20.0},    {-12500, 1600, 20.0}, {1000, 1000, 1.0},
        {1, 1, 0.000001},     {12000, -1999, 23.988}, // the current is brought to amperes first
        {0, -1600, 0.0},      {12500, 0, 0.0},
    };
    for (const Row& row : rows) {
        const double watts = wattThroughput(row.millivolts, row.milliamperes);
        EXPECT_EQ(watts, row.watts) << row.millivolts << " mV, " << row.milliamperes << " mA";
        EXPECT_FALSE(std::signbit(watts)) << row.millivolts << " mV, " << row.milliamperes << " mA";
    }
}

} // namespace
