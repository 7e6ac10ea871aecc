#include "records/trend/TrendProjection.h"

#include <gtest/gtest.h>

using namespace quindle;

namespace {

constexpr qint64 lastMoment = 1'700'000'000;

TrendEstimate estimate(const WearPace& pace, qint64 days = 1000)
{
    return {.lastMoment = lastMoment, .days = days, .percent = pace.level, .reference = 5000, .pace = pace};
}

double yearsAhead(const TrendEstimate& trend)
{
    return static_cast<double>(projectionOf(trend)->to - lastMoment) / (365.25 * 86400);
}

TEST(TrendProjection, GoesOnFromTheLine)
{
    const auto ahead =
        projectionOf(estimate({.level = 90, .perYear = -10, .steepest = -12, .flattest = -9, .scatter = 2}));
    ASSERT_TRUE(ahead.has_value());
    const double years = 10.0 / 9 + 1.0 / 6;
    EXPECT_EQ(ahead->from, lastMoment);
    EXPECT_NEAR(yearsAhead(estimate({90, -10, -12, -9, 0})), years, 1e-6);
    EXPECT_DOUBLE_EQ(ahead->start, 4500);
    EXPECT_NEAR(ahead->end, (90 - 10 * years) * 50, 1e-6);
    EXPECT_DOUBLE_EQ(ahead->lowestStart, 4400);
    EXPECT_DOUBLE_EQ(ahead->highestStart, 4600);
    EXPECT_NEAR(ahead->lowestEnd, (88 - 12 * years) * 50, 1e-6);
    EXPECT_NEAR(ahead->highestEnd, (92 - 9 * years) * 50, 1e-6);
}

TEST(TrendProjection, GoesNoFartherThanTheHistoryBears)
{
    EXPECT_NEAR(yearsAhead(estimate({95, -1, -2, -0.5, 0})), 1000 / 365.25 / 2, 1e-6);
    EXPECT_NEAR(yearsAhead(estimate({95, -1, -2, -0.5, 0}, 100)), 1, 1e-6);
    EXPECT_NEAR(yearsAhead(estimate({80.1, -5, -5, -5, 0})), 0.5, 1e-6);
    EXPECT_NEAR(yearsAhead(estimate({70, -5, -5, -5, 0})), 0.5, 1e-6) << "80 % is behind it";
}

TEST(TrendProjection, NeverLeadsBelowNothing)
{
    const auto ahead = projectionOf(estimate({10, -90, -95, -1, 0}));
    EXPECT_EQ(ahead->end, 0);
    EXPECT_EQ(ahead->lowestEnd, 0);
}

TEST(TrendProjection, IsNothingWithoutWear)
{
    TrendEstimate trend = estimate({95, -0.1, -1, 0, 0});
    EXPECT_FALSE(projectionOf(trend).has_value());
    trend.pace.reset();
    EXPECT_FALSE(projectionOf(trend).has_value());
}

} // namespace
