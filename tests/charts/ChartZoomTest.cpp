#include "charts/ChartZoom.h"

#include <gtest/gtest.h>

using namespace quindle;

namespace quindle {

void PrintTo(const AxisSpan& span, std::ostream* out)
{
    *out << span.from << " to " << span.to;
}

} // namespace quindle

namespace {

constexpr AxisSpan whole{0, 1000};

TEST(ChartZoom, KeepsWhatItZoomsAroundInItsPlace)
{
    EXPECT_EQ(zoomed({0, 1000}, 250, 0.5), (AxisSpan{125, 625}));
    EXPECT_EQ(zoomed({125, 625}, 250, 2), (AxisSpan{0, 1000}));
    EXPECT_EQ(zoomed({0, 1000}, 0, 0.5), (AxisSpan{0, 500}));
}

TEST(ChartZoom, StaysInside)
{
    EXPECT_EQ(keptInside({100, 300}, whole, 10), (AxisSpan{100, 300}));
    EXPECT_EQ(keptInside({-100, 300}, whole, 10), (AxisSpan{0, 400}));
    EXPECT_EQ(keptInside({900, 1200}, whole, 10), (AxisSpan{700, 1000}));
    EXPECT_EQ(keptInside({-100, 1200}, whole, 10), whole);
}

TEST(ChartZoom, IsNeverShorterThanTheShortest)
{
    EXPECT_EQ(keptInside({500, 500}, whole, 10), (AxisSpan{495, 505}));
    EXPECT_EQ(keptInside({0, 2}, whole, 10), (AxisSpan{0, 10}));
    EXPECT_EQ(keptInside({2, 4}, {0, 5}, 10), (AxisSpan{0, 5})) << "the whole is shorter";
}

TEST(ChartZoom, FollowsAReading)
{
    EXPECT_EQ(movedTo({100, 200}, 150), (AxisSpan{100, 200}));
    EXPECT_EQ(movedTo({100, 200}, 200), (AxisSpan{100, 200}));
    EXPECT_EQ(movedTo({100, 200}, 250), (AxisSpan{160, 260}));
    EXPECT_EQ(movedTo({100, 200}, 40), (AxisSpan{30, 130}));
}

} // namespace
