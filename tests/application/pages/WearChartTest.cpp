#include "application/pages/WearChart.h"

#include <gtest/gtest.h>

#include "tests/records/trend/TrendHistory.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;
using test::capacitiesOf;

namespace {

ChartContent chartOf(const std::vector<CapacityPoint>& points)
{
    return wearChart(points, trendOf(points));
}

TEST(WearChart, ShowsTheFullChargeBesideTheDesignCapacity)
{
    const auto points = capacitiesOf({.noise = 0});
    const ChartContent chart = chartOf(points);
    ASSERT_EQ(chart.series.size(), 1U);
    EXPECT_EQ(chart.series[0].points.size(), points.size());
    EXPECT_EQ(chart.series[0].points.front(), (ChartPoint{points[0].moment, 7007}));
    EXPECT_FALSE(chart.series[0].isQuiet);
    ASSERT_EQ(chart.lines.size(), 2U);
    EXPECT_EQ(chart.lines[0].value, 7150);
    EXPECT_EQ(chart.lines[0].label, QStringLiteral("Design capacity 7,150"));
    EXPECT_EQ(chart.lines[1].value, 5720);
    EXPECT_EQ(chart.lines[1].label, QStringLiteral("80 %"));
    ASSERT_TRUE(chart.projection.has_value());
    EXPECT_EQ(chart.projection->from.moment, points.back().moment);
    EXPECT_GT(chart.moments.to, static_cast<double>(chart.projection->to.moment));
    EXPECT_LT(chart.moments.from, static_cast<double>(points.front().moment));
}

TEST(WearChart, ReadsCapacityHealthAndCycles)
{
    const ChartContent chart = chartOf(capacitiesOf({.noise = 0}));
    EXPECT_EQ(chart.readingText({0, 0}), QStringLiteral(u"7,007 mAh \u00B7 98.0 %"))
        << "cycles are not counted yet";
    EXPECT_EQ(chart.readingText({0, 1044}), QStringLiteral(u"6,006 mAh \u00B7 84.0 % \u00B7 291 cycles"));
    EXPECT_EQ(chart.tickText(6500, 0), QStringLiteral("6,500"));
    EXPECT_EQ(chart.tickText(0.5, 1), QStringLiteral("0.5"));
}

TEST(WearChart, EachBatteryHasALineOfItsOwn)
{
    const auto old = capacitiesOf({.days = 100, .design = 5000, .batteryID = QStringLiteral("old")});
    const auto fresh =
        capacitiesOf({.firstDay = QDate(2024, 6, 1), .days = 80, .batteryID = QStringLiteral("new")});
    const ChartContent chart = chartOf(test::joined(old, fresh));
    ASSERT_EQ(chart.series.size(), 2U);
    EXPECT_EQ(chart.series[0].points.size(), 100U);
    EXPECT_TRUE(chart.series[0].isQuiet);
    EXPECT_EQ(chart.series[1].points.size(), 80U);
    EXPECT_FALSE(chart.series[1].isQuiet);
    EXPECT_EQ(chart.lines[0].value, 7150) << "of the newest one";
    EXPECT_TRUE(chart.readingText({0, 0}).contains(QStringLiteral("98."))) << "of its own design capacity";
}

TEST(WearChart, WithoutADesignCapacityNamesTheFirstFullCharge)
{
    const ChartContent chart = chartOf(capacitiesOf({.noise = 0, .tellsDesign = false}));
    EXPECT_EQ(chart.lines[0].label, QStringLiteral("First full charge 7,007"));
    EXPECT_TRUE(chart.readingText({0, 0}).contains(QStringLiteral("100.0 %")));
}

TEST(WearChart, OfOnePointHasAnAxis)
{
    const ChartContent chart = chartOf(capacitiesOf({.days = 1}));
    EXPECT_DOUBLE_EQ(chart.moments.length(), 60.0 * 86400);
    EXPECT_FALSE(chart.projection.has_value());
}

TEST(WearChart, OfNothingSaysSo)
{
    EXPECT_FALSE(hasPoints(chartOf({})));
    EXPECT_FALSE(chartOf({}).emptyText.isEmpty());
    auto broken = capacitiesOf({.days = 1});
    broken[0].fullChargeCapacity = 0;
    EXPECT_FALSE(hasPoints(chartOf(broken)));
}

} // namespace
