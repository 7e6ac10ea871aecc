#include "charts/ChartReading.h"

#include <gtest/gtest.h>

using namespace quindle;

namespace quindle {

void PrintTo(const ChartReading& reading, std::ostream* out)
{
    *out << "series " << reading.series << " point " << reading.point;
}

} // namespace quindle

namespace {

using Reading = std::optional<ChartReading>;

/// Two batteries, one after the other.
ChartContent content()
{
    ChartContent made;
    made.series.resize(2);
    made.series[0].points = {{100, 1}, {200, 2}, {300, 3}};
    made.series[1].points = {{300, 8}, {400, 9}, {1000, 7}};
    return made;
}

TEST(ChartReading, IsThePointNearestInTime)
{
    const ChartContent both = content();
    EXPECT_EQ(readingNear(both, 120, 50), (Reading{{0, 0}}));
    EXPECT_EQ(readingNear(both, 170, 50), (Reading{{0, 1}}));
    EXPECT_EQ(readingNear(both, 390, 50), (Reading{{1, 1}}));
    EXPECT_EQ(readingNear(both, 300, 50), (Reading{{1, 0}})) << "the last series";
    EXPECT_EQ(readingNear(both, 60, 50), (Reading{{0, 0}}));
    EXPECT_EQ(readingNear(both, 1040, 50), (Reading{{1, 2}}));
}

TEST(ChartReading, IsNothingFarFromAllPoints)
{
    EXPECT_EQ(readingNear(content(), 700, 50), std::nullopt);
    EXPECT_EQ(readingNear(content(), 40, 50), std::nullopt);
    EXPECT_EQ(readingNear({}, 0, 50), std::nullopt);
}

TEST(ChartReading, KeysLeadThroughAllSeries)
{
    const ChartContent both = content();
    EXPECT_EQ(readingBeside(both, {0, 0}, 1), (Reading{{0, 1}}));
    EXPECT_EQ(readingBeside(both, {0, 1}, 150), (Reading{{1, 1}}));
    EXPECT_EQ(readingBeside(both, {1, 1}, 1), (Reading{{1, 2}})) << "over a gap";
    EXPECT_EQ(readingBeside(both, {1, 2}, 1), (Reading{{1, 2}})) << "the last one";
    EXPECT_EQ(readingBeside(both, {1, 0}, -1), (Reading{{0, 1}}));
    EXPECT_EQ(readingBeside(both, {0, 0}, -1), (Reading{{0, 0}})) << "the first one";
}

TEST(ChartReading, KnowsTheEnds)
{
    const ChartContent both = content();
    EXPECT_EQ(firstReading(both, 0), (Reading{{0, 0}}));
    EXPECT_EQ(firstReading(both, 301), (Reading{{1, 1}}));
    EXPECT_EQ(firstReading(both, 1001), std::nullopt);
    EXPECT_EQ(lastReading(both, 9999), (Reading{{1, 2}}));
    EXPECT_EQ(lastReading(both, 399), (Reading{{1, 0}}));
    EXPECT_EQ(lastReading(both, 99), std::nullopt);
}

} // namespace
