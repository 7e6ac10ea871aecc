#include "tests/support/InventedHistory.h"

#include <limits>

#include "records/Thinning.h"
#include "records/trend/CapacityPoints.h"
#include "tests/records/TemporaryHistory.h"

using namespace quindle;

namespace {

constexpr InventedTime year{.end = 1'795'370'400, .days = 365};

using InventedHistoryTest = TemporaryHistory;

TEST_F(InventedHistoryTest, IsTheSameEveryTime)
{
    EXPECT_EQ(inventedSnapshots(year), inventedSnapshots(year));
    EXPECT_EQ(inventedSamples(year.end, 3), inventedSamples(year.end, 3));
}

TEST_F(InventedHistoryTest, HasASwappedBatteryThatWears)
{
    const auto points = capacityPoints(inventedSnapshots(year));
    ASSERT_GT(points.size(), 250U);
    EXPECT_LT(points.back().moment, year.end);
    EXPECT_NE(points.front().batteryID, points.back().batteryID);
    EXPECT_GT(points.front().fullChargeCapacity, points[150].fullChargeCapacity);
    EXPECT_GT(points.back().fullChargeCapacity, points.front().fullChargeCapacity);
}

TEST_F(InventedHistoryTest, IsWrittenAsItIsKept)
{
    EXPECT_EQ(inventHistory(year, folder()), QString());
    EXPECT_EQ(SnapshotArchive(archive()).read().records, inventedSnapshots(year));
    SampleStore store(database());
    const auto stored = store.storedBetween(0, std::numeric_limits<qint64>::max());
    EXPECT_EQ(thinned(stored, year.end), stored);
    EXPECT_EQ(stored.front().span, secondsOfHour);
    EXPECT_EQ(stored.back().span, 0);
}

} // namespace
