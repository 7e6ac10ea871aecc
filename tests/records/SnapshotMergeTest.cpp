#include "records/SnapshotMerge.h"

#include "records/SnapshotIdentity.h"
#include "tests/records/TemporaryHistory.h"
#include "tests/support/ScopedTimeZone.h"

using namespace quindle;

namespace {

const QVariantMap undated{{QStringLiteral("old"), qint64{1}}};

TEST(SnapshotMerge, SortedByDateWithoutDoubles)
{
    const QVariantList present{recordAt(300), recordAt(100)};
    const QVariantList others{recordAt(200), recordAt(100, 1), recordAt(100, 4000, QStringLiteral("other")),
                              recordAt(200)};
    const MergedSnapshots merged = mergedSnapshots(present, others);
    EXPECT_EQ(merged.added, 2);
    EXPECT_EQ(merged.records, (QVariantList{recordAt(100), recordAt(100, 4000, QStringLiteral("other")),
                                            recordAt(200), recordAt(300)}));
}

TEST(SnapshotMerge, TheSameMomentInAnotherZoneIsADouble)
{
    QVariantMap elsewhere = recordAt(100);
    elsewhere.insert(QStringLiteral("Data.SnapshotDate"),
                     QDateTime::fromSecsSinceEpoch(100).toOffsetFromUtc(7200));
    EXPECT_EQ(mergedSnapshots({recordAt(100)}, {elsewhere}).added, 0);
}

TEST(SnapshotMerge, RecordsWithoutADateAreKnownByAllTheySay)
{
    const MergedSnapshots merged = mergedSnapshots({recordAt(100), undated}, {undated, QVariantMap()});
    EXPECT_EQ(merged.added, 1);
    EXPECT_EQ(merged.records, (QVariantList{undated, QVariantMap(), recordAt(100)}));
    EXPECT_EQ(withoutSnapshots(merged.records, {undated}), (QVariantList{QVariantMap(), recordAt(100)}));
}

TEST(SnapshotIdentity, OfAnyRecord)
{
    EXPECT_EQ(snapshotDate(undated), std::nullopt);
    EXPECT_EQ(snapshotDate(QVariantMap{{QStringLiteral("Data.SnapshotDate"), QStringLiteral("2026-01-01")}}),
              std::nullopt);
    EXPECT_EQ(snapshotDate(recordAt(100)), QDateTime::fromSecsSinceEpoch(100));
    EXPECT_EQ(snapshotBattery(undated), QString());
    EXPECT_EQ(snapshotBattery(recordAt(100)), QStringLiteral("battery"));
}

struct DueRow
{
    const char* what;
    QVariantList records;
    QVariantMap snapshot;
    bool isDue;
};

TEST(SnapshotDue, OneOfABatteryADay)
{
    const ScopedTimeZone zone("Asia/Tokyo"); // nine hours ahead
    constexpr qint64 hour = 3600;
    constexpr qint64 midnight = 20'000 * 24 * hour - 9 * hour;
    QVariantMap nothingKnown = recordAt(midnight);
    nothingKnown.remove(QStringLiteral("Battery.FullChargeCapacity"));
    const DueRow rows[] = {
        {"the first of all", {}, recordAt(midnight), true},
        {"the same day", {recordAt(midnight)}, recordAt(midnight + 23 * hour), false},
        {"the evening before", {recordAt(midnight - 1)}, recordAt(midnight), true},
        {"the next morning", {recordAt(midnight)}, recordAt(midnight + 24 * hour), true},
        {"another battery", {recordAt(midnight, 4000, QStringLiteral("other"))}, recordAt(midnight), true},
        {"today's is not the last in the list",
         {recordAt(midnight), recordAt(midnight - 99 * hour)},
         recordAt(midnight + hour),
         false},
        {"a clock that was set back", {recordAt(midnight + 999 * hour)}, recordAt(midnight), true},
        {"records that do not say", {undated}, recordAt(midnight), true},
        {"no date", {}, undated, false},
        {"no capacity", {}, nothingKnown, false},
        {"a driver that is not ready", {}, recordAt(midnight, 0), false},
    };
    for (const DueRow& row : rows)
        EXPECT_EQ(isSnapshotDue(row.records, row.snapshot), row.isDue) << row.what;
}

} // namespace
