#include "charts/Decimation.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace quindle;
using testing::ElementsAre;
using testing::IsEmpty;

namespace quindle {

void PrintTo(const ChartPoint& point, std::ostream* out)
{
    *out << point.moment << ": " << point.value;
}

} // namespace quindle

namespace {

using Points = std::vector<ChartPoint>;

TEST(Decimation, KeepsTheLowestAndTheHighestOfAColumnAndBothEnds)
{
    ChartSeries series;
    series.points = {{0, 5}, {1, 7}, {2, 9}, {3, 4}, {4, 1}, {6, 6}, {10, 2}, {11, 8}, {12, 3}};
    EXPECT_THAT(decimated(series, LinearScale({0, 20}, {0, 2})),
                ElementsAre(Points{{0, 5}, {2, 9}, {4, 1}, {10, 2}, {11, 8}, {12, 3}}));
}

TEST(Decimation, FewPointsStayAsTheyAre)
{
    ChartSeries series;
    series.points = {{0, 5}, {10, 7}, {20, 9}};
    EXPECT_THAT(decimated(series, LinearScale({0, 20}, {0, 100})), ElementsAre(series.points));
    series.points = {{7, 5}};
    EXPECT_THAT(decimated(series, LinearScale({0, 20}, {0, 100})), ElementsAre(series.points));
    series.points.clear();
    EXPECT_THAT(decimated(series, LinearScale({0, 20}, {0, 100})), IsEmpty());
}

TEST(Decimation, LeavesGapsOpenHoweverNarrow)
{
    ChartSeries series;
    series.points = {{0, 5}, {1, 6}, {2, 7}, {3, 8}, {4, 9}};
    series.gaps = {1, 3};
    EXPECT_THAT(decimated(series, LinearScale({0, 100}, {0, 10})),
                ElementsAre(Points{{0, 5}, {1, 6}}, Points{{2, 7}, {3, 8}}, Points{{4, 9}}));
}

TEST(Decimation, LinesRunOutOfThePicture)
{
    ChartSeries series;
    series.points = {{0, 1}, {10, 2}, {20, 3}, {30, 4}, {40, 5}};
    EXPECT_THAT(decimated(series, LinearScale({15, 25}, {0, 100})),
                ElementsAre(Points{{10, 2}, {20, 3}, {30, 4}}));
    EXPECT_THAT(decimated(series, LinearScale({12, 18}, {0, 100})), ElementsAre(Points{{10, 2}, {20, 3}}))
        << "also where none of its points is inside";
    EXPECT_THAT(decimated(series, LinearScale({41, 50}, {0, 100})), IsEmpty());
    EXPECT_THAT(decimated(series, LinearScale({-9, -1}, {0, 100})), IsEmpty());
    series.gaps = {1};
    EXPECT_THAT(decimated(series, LinearScale({12, 18}, {0, 100})), IsEmpty()) << "a gap is all there is";
    EXPECT_THAT(decimated(series, LinearScale({40, 50}, {0, 100})), ElementsAre(Points{{30, 4}, {40, 5}}));
}

/// The span of values in each column of pixels.
std::map<double, std::pair<double, double>> extremes(const Points& points, const LinearScale& time)
{
    std::map<double, std::pair<double, double>> columns;
    for (const ChartPoint& point : points) {
        const double column = std::floor(time.pixel(static_cast<double>(point.moment)));
        auto& [low, high] = columns.try_emplace(column, point.value, point.value).first->second;
        low = std::min(low, point.value);
        high = std::max(high, point.value);
    }
    return columns;
}

TEST(Decimation, ShowsTheSameAsAllPoints)
{
    std::mt19937 random(3); // the same numbers every time
    std::normal_distribution<double> noise(0, 1);
    ChartSeries series;
    double value = 50;
    for (qint64 index = 0; index < 45'000; ++index)
        series.points.push_back({index * 60, value += noise(random)});
    const LinearScale time({0, 45'000 * 60}, {0, 600});
    const auto lines = decimated(series, time);
    ASSERT_EQ(lines.size(), 1U);
    const Points& kept = lines.front();
    EXPECT_LE(kept.size(), 2U * 600 + 2);
    EXPECT_EQ(kept.front(), series.points.front());
    EXPECT_EQ(kept.back(), series.points.back());
    EXPECT_EQ(extremes(kept, time), extremes(series.points, time));
    EXPECT_TRUE(std::is_sorted(kept.begin(), kept.end(), [](const ChartPoint& one, const ChartPoint& other) {
        return one.moment < other.moment;
    }));
}

} // namespace
