#include "charts/Gaps.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/Durations.h"

using namespace quindle;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// Points at these distances from each other.
std::vector<ChartPoint> points(std::initializer_list<qint64> distances)
{
    std::vector<ChartPoint> made{{1'700'000'000, 50}};
    for (const qint64 distance : distances)
        made.push_back({made.back().moment + distance, 50});
    return made;
}

TEST(Gaps, APauseOfMoreThanTenMinutesIsOne)
{
    EXPECT_THAT(gapsBetween(points({60, 60, 120, 600, 60, 60})), IsEmpty());
    EXPECT_THAT(gapsBetween(points({60, 60, 120, 601, 60, 60})), ElementsAre(3));
    EXPECT_THAT(gapsBetween(points({60, 60, 8 * hour, 60, 60, 3 * hour, 60})), ElementsAre(2, 5));
}

TEST(Gaps, FewPointsHaveThemToo)
{
    EXPECT_THAT(gapsBetween({}), IsEmpty());
    EXPECT_THAT(gapsBetween(points({})), IsEmpty());
    EXPECT_THAT(gapsBetween(points({600})), IsEmpty());
    EXPECT_THAT(gapsBetween(points({601})), ElementsAre(0));
    EXPECT_THAT(gapsBetween(points({60, hour})), ElementsAre(1));
    EXPECT_THAT(gapsBetween(points({hour, 60})), ElementsAre(0));
}

TEST(Gaps, WholePercentsOfALongLastingBatteryAreNone)
{
    EXPECT_THAT(gapsBetween(points({12 * minute, 13 * minute, 30 * minute, 11 * minute})), IsEmpty());
    EXPECT_THAT(gapsBetween(points({12 * minute, 13 * minute, 2 * hour, 11 * minute})), ElementsAre(2));
}

TEST(Gaps, HourlyValuesAreALineAndNightsAreOpen)
{
    EXPECT_THAT(gapsBetween(points({hour, hour, hour, 9 * hour, hour, hour, hour})), ElementsAre(3));
    EXPECT_THAT(gapsBetween(points({hour, hour, 2 * hour, hour, 3 * hour, hour})), IsEmpty());
}

TEST(Gaps, DailyValuesLeaveWeekendsInAndHolidaysOut)
{
    EXPECT_THAT(gapsBetween(points({day, day, day, 3 * day, day, day, day, day, 21 * day, day, day})),
                ElementsAre(8));
}

TEST(Gaps, ValuesOfTwoDistancesMeet)
{
    EXPECT_THAT(gapsBetween(points({day, day, day, day, hour, hour, hour, hour, 60, 60, 60, 60})), IsEmpty());
    EXPECT_THAT(gapsBetween(points({hour, hour, hour, 2 * hour, 60, 60, 60})), IsEmpty());
    EXPECT_THAT(gapsBetween(points({hour, hour, hour, 4 * hour, 60, 60, 60})), ElementsAre(3));
}

TEST(Gaps, OneLongPauseDoesNotHideItsNeighbour)
{
    EXPECT_THAT(gapsBetween(points({60, 60, 60, 9 * hour, 60, hour, 60, 60, 60})), ElementsAre(3, 5));
}

} // namespace
