#include "mac/SnapshotRecord.h"

#include <gtest/gtest.h>

#include <limits>

#include "plist/PropertyList.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

SnapshotValues values()
{
    SnapshotValues values;
    values.stateOfHealth = 100.0;
    values.cycleCount = 57;
    values.fullChargeCapacity = 4512;
    values.manufacturer = QStringLiteral("Simplo");
    values.snapshotDate = QDateTime(QDate(2014, 3, 1), QTime(23, 30, 12));
    values.raw = {{QStringLiteral("Voltage"), qint64{12000}}};
    return values;
}

TEST(SnapshotRecord, EveryKeyWithItsValueAndType)
{
    const QVariantMap expected{
        {QStringLiteral("Battery.DesignCapacity"), qint64{7150}},
        {QStringLiteral("Battery.Manufacturer"), QStringLiteral("Simplo")},
        {QStringLiteral("Battery.StateOfHealth"), 86.6},
        {QStringLiteral("Battery.LegacyAgeInMonths"), qint64{10}},
        {QStringLiteral("Battery.CycleCount"), qint64{57}},
        {QStringLiteral("Battery.ActualDesignCapacity"), qint64{7151}},
        {QStringLiteral("Battery.ReportedDesignCapacity"), qint64{7300}},
        {QStringLiteral("Battery.ManufactureDateRaw"), qint64{17506}},
        {QStringLiteral("Battery.FullChargeCapacity"), qint64{4512}},
        {QStringLiteral("Battery.DeviceName"), QStringLiteral("bq20z451")},
        {QStringLiteral("Battery.BatteryID"), QStringLiteral("0123")},
        {QStringLiteral("Mac.Model"), QStringLiteral("MacBookAir6,2")},
        {QStringLiteral("Mac.ManufactureDateRaw"), QStringLiteral("MN")},
        {QStringLiteral("Mac.ID"), QStringLiteral("4567")},
        {QStringLiteral("Data.Summary"), QStringLiteral("87% (4512 mAh)")},
        {QStringLiteral("Data.Uploaded"), false},
        {QStringLiteral("Data.Type"), QStringLiteral("Mac")},
        {QStringLiteral("Data.SnapshotDate"), QDateTime(QDate(2014, 3, 1), QTime(23, 30, 12))},
        {QStringLiteral("Data.ApplicationVersion"), QStringLiteral("1.11")},
        {QStringLiteral("Data.Raw"), QVariantMap{{QStringLiteral("Voltage"), qint64{12000}}}},
        {QStringLiteral("Data.Version"), QStringLiteral("3.4")},
    };
    SnapshotValues all = values();
    all.designCapacity = 7150;
    all.stateOfHealth = 86.6;
    all.legacyAgeInMonths = 10;
    all.actualDesignCapacity = 7151;
    all.reportedDesignCapacity = 7300;
    all.batteryManufactureDateRaw = 17506;
    all.deviceName = QStringLiteral("bq20z451");
    all.batteryID = QStringLiteral("0123");
    all.model = QStringLiteral("MacBookAir6,2");
    all.macManufactureDateRaw = QStringLiteral("MN");
    all.macID = QStringLiteral("4567");
    all.applicationVersion = QStringLiteral("1.11");
    const QVariantMap record = snapshotRecord(all);
    EXPECT_EQ(record.keys(), expected.keys());
    for (auto entry = expected.cbegin(); entry != expected.cend(); ++entry) {
        EXPECT_EQ(record.value(entry.key()), entry.value()) << entry.key().toStdString();
        EXPECT_EQ(record.value(entry.key()).typeId(), entry.value().typeId()) << entry.key().toStdString();
    }
}

TEST(SnapshotRecord, SurvivesAPropertyListWithItsTypes)
{
    const QVariantMap record = snapshotRecord(values());
    const QByteArray written = xmlPropertyList(record);
    EXPECT_TRUE(written.contains("<real>100.0</real>"));
    EXPECT_TRUE(written.contains("<false/>"));
    EXPECT_TRUE(written.contains("<date>"));
    const auto read = propertyListFromBytes(written);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->toMap(), record);
    EXPECT_EQ(read->toMap().value(QStringLiteral("Battery.StateOfHealth")).typeId(), QMetaType::Double);
    EXPECT_EQ(read->toMap().value(QStringLiteral("Battery.CycleCount")).typeId(), QMetaType::LongLong);
}

TEST(SnapshotRecord, AbsentValuesLeaveTheirKeysOut)
{
    SnapshotValues bare = values();
    bare.manufacturer.reset();
    bare.raw.clear();
    const QVariantMap record = snapshotRecord(bare);
    for (const char* key :
         {"Battery.Manufacturer", "Battery.DeviceName", "Mac.Model", "Data.ApplicationVersion", "Data.Raw"})
        EXPECT_FALSE(record.contains(QLatin1String(key))) << key;
    EXPECT_EQ(record.size(), 16);
    EXPECT_EQ(record.value(QStringLiteral("Mac.ManufactureDateRaw")), QVariant(QString()));
}

TEST(SnapshotSummary, HealthWithoutDecimals)
{
    const std::pair<double, const char*> cases[]{
        {86.6, "87% (4512 mAh)"},   {87.5, "88% (4512 mAh)"},
        {86.5, "86% (4512 mAh)"},   {std::numeric_limits<double>::infinity(), "inf% (4512 mAh)"},
        {100.0, "100% (4512 mAh)"}, {std::numeric_limits<double>::quiet_NaN(), "nan% (4512 mAh)"},
    };
    for (const auto& [health, text] : cases)
        EXPECT_EQ(snapshotSummary(health, 4512), QLatin1String(text));
}

} // namespace
