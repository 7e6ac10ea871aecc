#include "application/snapshots/SnapshotRows.h"

#include <limits>

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"
#include "tests/support/ScopedTimeZone.h"

using namespace quindle;

namespace {

QVariantMap record(const QDateTime& date, qint64 fullCharge, double health = 90, qint64 cycles = 100)
{
    return {{QStringLiteral("Data.SnapshotDate"), date},
            {QStringLiteral("Battery.FullChargeCapacity"), fullCharge},
            {QStringLiteral("Battery.DesignCapacity"), qint64{5000}},
            {QStringLiteral("Battery.StateOfHealth"), health},
            {QStringLiteral("Battery.CycleCount"), cycles},
            {QStringLiteral("Battery.DeviceName"), QStringLiteral("bq20z451")},
            {QStringLiteral("Mac.Model"), QStringLiteral("ThinkPad T14")}};
}

QDateTime morningOf(int number)
{
    return QDateTime(QDate(2026, 3, number), QTime(9, 30), Qt::UTC);
}

TEST(SnapshotRowsTest, ValuesOfARecord)
{
    const ScopedTimeZone zone("Europe/Berlin");
    const SnapshotRow row = snapshotRow(record(morningOf(1), 4012, 80.24, 293));
    EXPECT_EQ(row.date.time(), QTime(10, 30)) << "of this place";
    EXPECT_EQ(row.health, std::optional(80.24));
    EXPECT_EQ(row.fullCharge, 4012);
    EXPECT_EQ(row.cycles, 293);
    EXPECT_EQ(row.computer, QStringLiteral("ThinkPad T14"));
}

TEST(SnapshotRowsTest, DatesHaveNoSeconds)
{
    const QDateTime date(QDate(2026, 12, 9), QTime(7, 47, 24));
    EXPECT_EQ(snapshotDateText(date), QStringLiteral("9 Dec 2026 07:47"));
    EXPECT_EQ(snapshotDateText({}), QStringLiteral("–"));
}

TEST(SnapshotRowsTest, WhatIsNotKnownIsNothing)
{
    const SnapshotRow row =
        snapshotRow({{QStringLiteral("Data.SnapshotDate"), QStringLiteral("yesterday")},
                     {QStringLiteral("Battery.FullChargeCapacity"), QStringLiteral("much")},
                     {QStringLiteral("Mac.Model"), QStringLiteral("  ")}});
    EXPECT_FALSE(row.date.isValid());
    EXPECT_FALSE(row.health);
    EXPECT_EQ(row.fullCharge, 0);
    EXPECT_EQ(row.computer, QString());
    for (const double odd : {std::numeric_limits<double>::infinity(), std::nan(""), 0.0, -5.0})
        EXPECT_FALSE(snapshotRow(record(morningOf(1), 1, odd)).health) << odd;
}

TEST(SnapshotRowsTest, TheNewestComesFirstAndWhatHasNoDateLast)
{
    const QVariantMap undated{{QStringLiteral("Battery.FullChargeCapacity"), qint64{1}}};
    const QVariantList sorted =
        newestFirst({record(morningOf(2), 2), undated, record(morningOf(3), 3), record(morningOf(1), 1)});
    QList<qint64> order;
    for (const QVariant& one : sorted)
        order.append(one.toMap().value(QStringLiteral("Battery.FullChargeCapacity")).toLongLong());
    EXPECT_EQ(order, (QList<qint64>{3, 2, 1, 1}));
    EXPECT_EQ(sorted.last().toMap(), undated);
}

TEST(SnapshotRowsTest, ComparedTheOlderOneFirst)
{
    const ScopedTimeZone zone("UTC");
    const QVariantMap older = record(morningOf(1), 4100, 82, 290);
    const QVariantMap newer = record(morningOf(11), 4012, 80.24, 293);
    const auto rows = comparedSnapshots(newer, older);
    EXPECT_EQ(rows, comparedSnapshots(older, newer)) << "whichever way they are given";
    ASSERT_EQ(rows.size(), 7U);
    EXPECT_EQ(rows[0].difference, QStringLiteral("10 days"));
    EXPECT_EQ(rows[1], (ComparedRow{QStringLiteral("Health"), QStringLiteral("82.0 %"),
                                    QStringLiteral("80.2 %"), QStringLiteral("-1.8 points")}));
    EXPECT_EQ(rows[2], (ComparedRow{QStringLiteral("Full charge"), QStringLiteral("4,100 mAh"),
                                    QStringLiteral("4,012 mAh"), QStringLiteral("-88 mAh")}));
    EXPECT_EQ(rows[3].difference, QString()) << "equal values have none";
    EXPECT_EQ(rows[4].difference, QStringLiteral("+3"));
    EXPECT_EQ(rows[6].newer, QStringLiteral("ThinkPad T14"));
}

TEST(SnapshotRowsTest, WhatOneOfTwoLacksHasNoDifference)
{
    const auto rows = comparedSnapshots(record(morningOf(1), 4100), {});
    for (const ComparedRow& row : rows) {
        EXPECT_EQ(row.difference, QString()) << row.caption.toStdString();
        EXPECT_TRUE(row.older == QStringLiteral("–") || row.newer == QStringLiteral("–"));
    }
}

} // namespace
