#include "charts/PointColumns.h"

#include <cmath>
#include <functional>
#include <random>

#include <gtest/gtest.h>

#include "tests/support/Durations.h"

using namespace quindle;

namespace {

const LinearScale percents({0, 100}, {130, 0});

ChartSeries seriesOf(qint64 length, qint64 step, const std::function<double(double)>& value)
{
    ChartSeries series;
    for (qint64 moment = 0; moment < length; moment += step)
        series.points.push_back({moment, value(static_cast<double>(moment))});
    return series;
}

/// Emptied in 7 hours, filled in 2.
double sawtooth(double moment)
{
    const double phase = std::fmod(moment, 9 * hour) / hour;
    return phase < 7 ? 100 - phase * 9 : 37 + (phase - 7) * 31.5;
}

/// On 690 pixels.
bool fills(const ChartSeries& series)
{
    const LinearScale time({0, static_cast<double>(series.points.back().moment)}, {50, 740});
    return fillsArea(pointColumns(series, time, 3), percents);
}

TEST(PointColumns, HoldWhatLiesInTheirPixels)
{
    ChartSeries series;
    series.points = {{-5, 99}, {0, 10}, {1, 30}, {2, 20}, {10, 5}, {95, 7}, {101, 99}};
    const auto columns = pointColumns(series, LinearScale({0, 100}, {50, 150}), 3);
    ASSERT_EQ(columns.size(), 3U);
    EXPECT_EQ(columns[0].from, 50);
    EXPECT_EQ(columns[0].to, 53);
    EXPECT_EQ(columns[0].low, 10);
    EXPECT_EQ(columns[0].high, 30);
    EXPECT_DOUBLE_EQ(columns[0].mean, 20);
    EXPECT_EQ(columns[0].count, 3U);
    EXPECT_EQ(columns[1].from, 59);
    EXPECT_EQ(columns[2].mean, 7);
}

TEST(PointColumns, ALineThatCanBeFollowedIsALine)
{
    EXPECT_FALSE(fills(seriesOf(day, 60, sawtooth)));
    EXPECT_FALSE(fills(seriesOf(7 * day, 60, sawtooth)));
    EXPECT_FALSE(fills(seriesOf(30 * day, 60, sawtooth)));
    EXPECT_FALSE(fills(seriesOf(30 * day, 60, [](double) { return 80.0; }))) << "level";
    EXPECT_FALSE(fills(seriesOf(365 * day, 7 * day, sawtooth))) << "few points, however they lie";
}

TEST(PointColumns, ALineThatTurnsInEachColumnFillsAnArea)
{
    EXPECT_TRUE(fills(seriesOf(365 * day, hour, sawtooth)));
    EXPECT_TRUE(fills(seriesOf(1000 * day, hour, sawtooth)));
    std::mt19937 random(3); // the same numbers every time
    std::normal_distribution<double> noise(50, 6);
    EXPECT_TRUE(fills(seriesOf(3650 * day, day, [&](double) { return noise(random); })));
}

TEST(PointColumns, NothingFillsNothing)
{
    EXPECT_FALSE(fillsArea({}, percents));
    EXPECT_TRUE(pointColumns({}, LinearScale({0, 1}, {0, 100}), 3).empty());
}

} // namespace
