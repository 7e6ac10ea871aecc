#include "records/trend/CapacityPoints.h"

#include <limits>

#include "tests/records/TemporaryHistory.h"

using namespace quindle;

namespace {

QVariantMap with(QVariantMap record, const char* key, const QVariant& value)
{
    record.insert(QLatin1String(key), value);
    return record;
}

TEST(CapacityPoints, SortedByMomentWithAllTheySay)
{
    QVariantMap whole = with(recordAt(200), "Battery.DesignCapacity", qint64{5200});
    whole = with(whole, "Battery.CycleCount", qint64{57});
    const std::vector<CapacityPoint> points =
        capacityPoints({whole, recordAt(100, 3900, QStringLiteral("other"))});
    const std::vector<CapacityPoint> expected{{100, QStringLiteral("other"), 3900, 0, 0},
                                              {200, QStringLiteral("battery"), 4000, 5200, 57}};
    EXPECT_EQ(points, expected);
}

TEST(CapacityPoints, AnyNumberIsANumber)
{
    const QVariantMap record = with(
        with(with(recordAt(100), "Battery.FullChargeCapacity", 4000.5), "Battery.DesignCapacity", 5200.0),
        "Battery.CycleCount", 57.0);
    const std::vector<CapacityPoint> expected{{100, QStringLiteral("battery"), 4000.5, 5200, 57}};
    EXPECT_EQ(capacityPoints({record}), expected);
}

TEST(CapacityPoints, WhatSaysNothingIsLeftOut)
{
    const QVariantList silent{
        QVariantMap(),
        with(recordAt(100), "Data.SnapshotDate", QVariant()),
        with(recordAt(100), "Data.SnapshotDate", QStringLiteral("2026-01-01")),
        with(recordAt(100), "Battery.FullChargeCapacity", QVariant()),
        with(recordAt(100), "Battery.FullChargeCapacity", QStringLiteral("4000")),
        with(recordAt(100), "Battery.FullChargeCapacity", qint64{0}),
        with(recordAt(100), "Battery.FullChargeCapacity", qint64{-1}),
        with(recordAt(100), "Battery.FullChargeCapacity", std::numeric_limits<double>::quiet_NaN()),
        with(recordAt(100), "Battery.FullChargeCapacity", std::numeric_limits<double>::infinity()),
    };
    EXPECT_TRUE(capacityPoints(silent).empty());
}

TEST(CapacityPoints, ImpossibleFiguresAreNotKnown)
{
    const QVariantMap record =
        with(with(recordAt(100), "Battery.DesignCapacity", qint64{-5}), "Battery.CycleCount", qint64{-1});
    const std::vector<CapacityPoint> expected{{100, QStringLiteral("battery"), 4000, 0, 0}};
    EXPECT_EQ(capacityPoints({record}), expected);
}

} // namespace
