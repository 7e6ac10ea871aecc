#include "menubar/BarColours.h"

#include <gtest/gtest.h>

#include "tests/support/NotFinite.h"

using namespace quindle;

namespace {

constexpr auto green = std::optional(BarColour::Green);
constexpr auto yellow = std::optional(BarColour::Yellow);
constexpr auto red = std::optional(BarColour::Red);
constexpr std::optional<BarColour> unchanged;

TEST(ChargeBarColour, Bands)
{
    const std::pair<double, std::optional<BarColour>> cases[]{
        {40, green},
        {60, green},
        {100, green},
        {infinity, green},
        {39.9, yellow},
        {20, yellow},
        {19.9, red},
        {0, red},
        {-0.0, red},
        {-5, unchanged},
        {-infinity, unchanged},
        {notANumber, unchanged},
    };
    for (const auto& [charge, colour] : cases)
        EXPECT_EQ(chargeBarColour(charge), colour) << charge;
}

struct HealthCase
{
    double health;
    double charge;
    std::optional<BarColour> colour;
};

TEST(HealthBarColour, TestsTheChargeBelow80)
{
    const HealthCase cases[]{
        {95, 30, green},
        {80, 10, green},
        {80, notANumber, green},
        {infinity, -1, green},
        {70, 70, yellow},
        {70, 61, yellow},
        {70, 79.9, yellow},
        {70, 60, red},
        {70, 30, red},
        {70, 80, red},
        {70, 100, red},
        {79.9, 0, red},
        {70, -1, unchanged},
        {70, notANumber, unchanged},
        {notANumber, 70, yellow},
        {notANumber, 10, red},
        {70, infinity, red},
        {notANumber, notANumber, unchanged},
    };
    for (const HealthCase& row : cases)
        EXPECT_EQ(healthBarColour(row.health, row.charge), row.colour) << row.health << ' ' << row.charge;
}

} // namespace
