#include "application/snapshots/SnapshotOrder.h"

#include <QDateTime>
#include <gtest/gtest.h>

#include "tests/support/Texts.h"

using namespace quindle;

namespace {

using Order = std::vector<int>;

QVariantMap record(qint64 dayNumber, const QVariant& health, qint64 cycles, const char* computer)
{
    QVariantMap made{{latin("Battery.CycleCount"), cycles}, {latin("Mac.Model"), latin(computer)}};
    if (dayNumber > 0)
        made.insert(latin("Data.SnapshotDate"), QDateTime::fromSecsSinceEpoch(dayNumber * 86400, Qt::UTC));
    if (health.isValid())
        made.insert(latin("Battery.StateOfHealth"), health);
    return made;
}

const QVariantList unsorted{
    record(3, 91.5, 20, "beta"),
    record(0, {}, 10, "Alpha"),
    record(1, 99.0, 20, ""),
    record(2, 91.5, 0, "alpha"),
};

TEST(SnapshotOrder, EachColumnInBothDirections)
{
    struct Case
    {
        SnapshotColumn column;
        Order ascending;
        Order descending;
    };
    // Missing values come last in either direction; equal records keep their order in either.
    for (const Case& each : {
             Case{SnapshotColumn::Date, {2, 3, 0, 1}, {0, 3, 2, 1}},
             Case{SnapshotColumn::Health, {0, 3, 2, 1}, {2, 0, 3, 1}},
             Case{SnapshotColumn::Cycles, {1, 0, 2, 3}, {0, 2, 1, 3}},
             Case{SnapshotColumn::FullCharge, {0, 1, 2, 3}, {0, 1, 2, 3}},
             Case{SnapshotColumn::Computer, {1, 3, 0, 2}, {0, 1, 3, 2}},
         }) {
        EXPECT_EQ(snapshotOrder(unsorted, each.column, Qt::AscendingOrder), each.ascending);
        EXPECT_EQ(snapshotOrder(unsorted, each.column, Qt::DescendingOrder), each.descending);
    }
}

TEST(SnapshotOrder, OfNoneIsNone)
{
    EXPECT_EQ(snapshotOrder({}, SnapshotColumn::Health, Qt::AscendingOrder), Order());
}

} // namespace
