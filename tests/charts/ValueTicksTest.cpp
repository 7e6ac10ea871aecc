#include "charts/ValueTicks.h"

#include <cmath>
#include <limits>
#include <random>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace quindle;
using testing::ElementsAre;

namespace {

struct TickCase
{
    AxisSpan span;
    int most;
    std::vector<double> values;
    int decimals;
};

TEST(ValueTicks, AreMultiplesOfOneTwoOrFive)
{
    const TickCase cases[]{
        {{0, 100}, 6, {0, 20, 40, 60, 80, 100}, 0},
        {{0, 100}, 5, {0, 50, 100}, 0},
        {{0, 100}, 11, {0, 10, 20, 30, 40, 50, 60, 70, 80, 90, 100}, 0},
        {{5400, 7250}, 4, {5500, 6000, 6500, 7000}, 0},
        {{5400, 7250}, 3, {6000, 7000}, 0},
        {{-12.5, 3}, 4, {-10, -5, 0}, 0},
        {{0, 1}, 6, {0, 0.2, 0.4, 0.6, 0.8, 1}, 1},
        {{0.12, 0.19}, 4, {0.12, 0.14, 0.16, 0.18}, 2},
        {{1.2e9, 1.9e9}, 4, {1.2e9, 1.4e9, 1.6e9, 1.8e9}, 0},
    };
    for (const TickCase& each : cases) {
        const ValueTicks ticks = valueTicks(each.span, each.most);
        EXPECT_EQ(ticks.values, each.values) << each.span.from << " to " << each.span.to;
        EXPECT_EQ(ticks.decimals, each.decimals) << each.span.from << " to " << each.span.to;
    }
}

TEST(ValueTicks, ZeroHasNoSign)
{
    EXPECT_FALSE(std::signbit(valueTicks({0, 100}, 3).values.front()));
    EXPECT_FALSE(std::signbit(valueTicks({-3, 53}, 4).values.front()));
}

TEST(ValueTicks, AreTheOutermostTwoWhereNoStepFits)
{
    // By 2 there are five, by 5 there is one.
    EXPECT_THAT(valueTicks({6, 14}, 4).values, ElementsAre(6, 14));
}

TEST(ValueTicks, AreNeverFewerThanTwoNorMoreThanFit)
{
    std::mt19937 random(7); // the same numbers every time
    std::uniform_real_distribution<double> exponent(-6, 9);
    std::uniform_real_distribution<double> share(-3, 3);
    for (int round = 0; round < 20'000; ++round) {
        const double length = std::pow(10, exponent(random));
        const double from = share(random) * length;
        const int most = 2 + round % 12;
        const ValueTicks ticks = valueTicks({from, from + length}, most);
        ASSERT_GE(ticks.values.size(), 2U) << from << ' ' << length << ' ' << most;
        ASSERT_LE(ticks.values.size(), static_cast<std::size_t>(most)) << from << ' ' << length;
        ASSERT_GE(ticks.values.front(), from - length * 1e-6);
        ASSERT_LE(ticks.values.back(), from + length * (1 + 1e-6));
    }
}

TEST(ValueTicks, AreNoneWhereThereIsNothingToTellApart)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const AxisSpan span : {AxisSpan{5, 5}, AxisSpan{6, 5}, AxisSpan{0, infinity}, AxisSpan{-infinity, 0},
                                AxisSpan{NAN, 1}, AxisSpan{1e300, 1e300 * (1 + 1e-14)}})
        EXPECT_TRUE(valueTicks(span, 5).values.empty()) << span.from << " to " << span.to;
}

TEST(ValueTicks, TakeAtLeastTwoForRoom)
{
    EXPECT_EQ(valueTicks({0, 10}, -3), valueTicks({0, 10}, 2));
    EXPECT_THAT(valueTicks({0, 10}, 0).values, ElementsAre(0, 10));
}

} // namespace
