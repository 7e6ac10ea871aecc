#include "records/trend/TrendEstimate.h"

#include <gtest/gtest.h>

#include "tests/records/trend/TrendHistory.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;
using test::capacitiesOf;
using test::TrendHistory;

namespace {

TEST(TrendEstimate, IsInPercentOfTheDesignCapacity)
{
    const auto points = capacitiesOf({.noise = 0});
    const auto trend = trendOf(points);
    ASSERT_TRUE(trend.has_value());
    EXPECT_EQ(trend->days, 1044);
    EXPECT_EQ(trend->daysRecorded, 1045);
    EXPECT_EQ(trend->cycles, 291);
    EXPECT_EQ(trend->firstMoment, points.front().moment);
    EXPECT_EQ(trend->lastMoment, points.back().moment);
    EXPECT_EQ(trend->reference, 7150);
    EXPECT_TRUE(trend->knowsDesign);
    EXPECT_NEAR(trend->percent, 98 - 4.9 * 1044 / 365.25, 0.01);
    ASSERT_TRUE(trend->pace.has_value());
    EXPECT_NEAR(trend->pace->perYear, -4.9, 0.01);
    EXPECT_NEAR(trend->pace->level, trend->percent, 0.02);
}

TEST(TrendEstimate, WithoutADesignCapacityIsOfTheFirstFullCharge)
{
    const auto trend = trendOf(capacitiesOf({.firstPercent = 90, .noise = 0, .tellsDesign = false}));
    EXPECT_FALSE(trend->knowsDesign);
    EXPECT_EQ(trend->reference, 6435);
    EXPECT_NEAR(trend->percent, (90 - 4.9 * 1044 / 365.25) / 0.9, 0.02);
}

TEST(TrendEstimate, ADesignCapacityThatIsMissingAtTimesIsTheOneOfTheOtherDays)
{
    auto points = capacitiesOf({.noise = 0});
    points.front().designCapacity = 0;
    points.back().designCapacity = 0;
    EXPECT_EQ(trendOf(points)->reference, 7150);
}

struct PaceCase
{
    const char* what;
    TrendHistory history;
    bool isWear;
};

TEST(TrendEstimate, TellsWearFromNoise)
{
    const PaceCase cases[]{
        {"three years", {}, true},
        {"three years, a firmware that guesses", {.noise = 2}, true},
        {"three years that wear slowly", {.perYear = -1}, true},
        {"three years that do not wear", {.perYear = 0}, false},
        {"a counter that grows", {.firstPercent = 90, .perYear = 1}, false},
        {"a year that does not wear, to the digit", {.days = 366, .perYear = 0, .noise = 0}, false},
        {"sixty-one days", {.days = 61}, true},
        {"sixty-one days under noise", {.days = 61, .perYear = -1, .noise = 2}, false},
    };
    for (const PaceCase& each : cases) {
        const auto trend = trendOf(capacitiesOf(each.history));
        ASSERT_TRUE(trend && trend->pace) << each.what;
        EXPECT_EQ(trend->pace->isWear(), each.isWear) << each.what;
        EXPECT_LE(trend->pace->steepest, trend->pace->perYear) << each.what;
        EXPECT_GE(trend->pace->flattest, trend->pace->perYear) << each.what;
        if (each.isWear) {
            EXPECT_LE(trend->pace->steepest, each.history.perYear) << each.what;
            EXPECT_GE(trend->pace->flattest, each.history.perYear) << each.what;
        }
    }
}

TEST(TrendEstimate, IsNotMovedByWrongReadings)
{
    auto points = capacitiesOf({});
    for (std::size_t index = 3; index < points.size(); index += 7)
        points[index].fullChargeCapacity = index % 2 == 0 ? 65535 : 12;
    EXPECT_NEAR(trendOf(points)->pace->perYear, -4.9, 0.2);
}

TEST(TrendEstimate, CountsOnlyTheNewestBattery)
{
    const auto old = capacitiesOf({.days = 700, .perYear = -12});
    const auto fresh =
        capacitiesOf({.firstDay = QDate(2026, 1, 1), .days = 100, .batteryID = QStringLiteral("second")});
    const auto trend = trendOf(test::joined(old, fresh));
    EXPECT_EQ(trend->firstMoment, fresh.front().moment);
    EXPECT_EQ(trend->days, 99);
    EXPECT_NEAR(trend->pace->perYear, -4.9, 1.5);
    const auto few =
        capacitiesOf({.firstDay = QDate(2026, 1, 1), .days = 20, .batteryID = QStringLiteral("second")});
    EXPECT_FALSE(trendOf(test::joined(old, few))->pace.has_value()) << "the old one's days are not its own";
}

TEST(TrendEstimate, NeedsSixtyDays)
{
    EXPECT_FALSE(trendOf(capacitiesOf({.days = 1}))->pace.has_value());
    EXPECT_FALSE(trendOf(capacitiesOf({.days = 60}))->pace.has_value()) << "59 days lie between them";
    EXPECT_TRUE(trendOf(capacitiesOf({.days = 61}))->pace.has_value());
}

TEST(TrendEstimate, NeedsMoreThanAClusterOfDays)
{
    // Sixty snapshots on two days and one a year later.
    std::vector<CapacityPoint> points;
    const qint64 first = capacitiesOf({.days = 1}).front().moment;
    for (qint64 index = 0; index < 60; ++index)
        points.push_back({first + index * 1800, {}, 7000.0 - static_cast<double>(index % 3), 7150, 10});
    points.push_back({first + 400 * 86400, {}, 6800, 7150, 90});
    const auto trend = trendOf(points);
    EXPECT_FALSE(trend->pace.has_value());
    EXPECT_EQ(trend->days, 400);
    EXPECT_EQ(trend->daysRecorded, 3);
}

TEST(TrendEstimate, OfSeveralPointsOfADayTheLastOneCounts)
{
    const auto daily = capacitiesOf({});
    std::vector<CapacityPoint> points;
    for (const CapacityPoint& point : daily) {
        CapacityPoint wrong = point;
        wrong.moment -= 3600;
        wrong.fullChargeCapacity = 1000;
        points.push_back(point);
        if (&point != &daily.front())
            points.insert(points.end() - 1, wrong);
    }
    EXPECT_NEAR(trendOf(points)->pace->perYear, trendOf(daily)->pace->perYear, 0.01);
}

TEST(TrendEstimate, OfNothingIsNothing)
{
    EXPECT_FALSE(trendOf({}).has_value());
    auto points = capacitiesOf({.days = 2});
    points[0].fullChargeCapacity = 0;
    points[1].fullChargeCapacity = NAN;
    EXPECT_FALSE(trendOf(points).has_value());
}

TEST(TrendEstimate, SaysWhenAPercentageComes)
{
    const WearPace pace{.level = 90, .perYear = -5, .steepest = -10, .flattest = -4};
    const WearMoment years = yearsUntil(pace, 80);
    EXPECT_DOUBLE_EQ(years.expected, 2);
    EXPECT_DOUBLE_EQ(years.earliest, 1);
    EXPECT_DOUBLE_EQ(years.latest, 2.5);
}

} // namespace
