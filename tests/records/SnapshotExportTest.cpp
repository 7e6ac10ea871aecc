#include "records/SnapshotExport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QTimeZone>

#include "records/CsvText.h"
#include "tests/records/TemporaryHistory.h"
#include "tests/support/ScopedTimeZone.h"

using namespace quindle;

namespace {

QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

QByteArray exported(const QVariantList& records, const ExportOptions& options)
{
    QByteArray all;
    EXPECT_TRUE(exportSnapshots(records, options, [&all](const QByteArray& part) {
        all += part;
        return true;
    }));
    return all;
}

QVariantMap wholeRecord()
{
    return {{text("Battery.BatteryID"), text("fadf5effb0c647434d28a8f79357f0e5")},
            {text("Battery.StateOfHealth"), 86.5},
            {text("Battery.FullChargeCapacity"), qint64{4512}},
            {text("Battery.Manufacturer"), text("Simplo, \"Inc.\"")},
            {text("Data.SnapshotDate"),
             QDateTime(QDate(2026, 3, 2), QTime(0, 30), QTimeZone::utc()).toLocalTime()},
            {text("Data.Summary"), text("87% (4512 mAh)")},
            {text("Data.Uploaded"), false},
            {text("Mac.ID"), text("8b4902c06766c02aa3162d8a6a66ec38")},
            {text("Data.Raw"), QVariantMap{{text("BatterySerialNumber"), text("D865033Y2CXF9CPAW")},
                                           {text("Serial"), qint64{123456}},
                                           {text("Label"), text("Battery D865033Y2CXF9CPAW")},
                                           {text("Data"), QByteArray("\x01"
                                                                     "D865033Y2CXF9CPAW")},
                                           {text("Numbers"), QVariantList{qint64{1}, qint64{123456}}},
                                           {text("Cells"), QVariantMap{{text("serial-number"), text("X")},
                                                                       {text("Voltage"), qint64{4100}}}},
                                           {text("Voltage"), qint64{12000}}}}};
}

TEST(CsvText, FieldsAreQuotedWhereTheyMustBe)
{
    EXPECT_EQ(csvRecord({text("a"), QString(), text("b c")}), "a,,b c\r\n");
    EXPECT_EQ(csvRecord({text("a,b"), text("say \"x\""), text("two\nlines"), text("\r")}),
              "\"a,b\",\"say \"\"x\"\"\",\"two\nlines\",\"\r\"\r\n");
    EXPECT_EQ(csvRecord({QStringLiteral("Größe")}), "Größe\r\n");
}

TEST(SnapshotExport, CsvHasARecordALine)
{
    const ScopedTimeZone zone("Asia/Tokyo");
    const QLocale former;
    QLocale::setDefault(QLocale(QLocale::German));
    const QByteArray csv = exported({wholeRecord()}, {});
    QLocale::setDefault(former);
    EXPECT_EQ(
        csv,
        "Data.SnapshotDate,Battery.Number,Battery.Manufacturer,Battery.DeviceName,Battery.StateOfHealth,"
        "Battery.FullChargeCapacity,Battery.DesignCapacity,Battery.ActualDesignCapacity,"
        "Battery.ReportedDesignCapacity,Battery.CycleCount,Battery.LegacyAgeInMonths,"
        "Battery.ManufactureDateRaw,Mac.Model,Mac.ManufactureDateRaw,Data.Summary,Data.Type,Data.Uploaded,"
        "Data.ApplicationVersion,Data.Version\r\n"
        "2026-03-02T00:30:00Z,1,\"Simplo, \"\"Inc.\"\"\",,86.5,4512,,,,,,,,,87% (4512 mAh),,false,,\r\n");
}

TEST(SnapshotExport, IdentifiersOnlyIfAskedFor)
{
    const QVariantList records{wholeRecord()};
    for (const ExportFormat format : {ExportFormat::Csv, ExportFormat::Json}) {
        const QByteArray without = exported(records, {.format = format});
        for (const char* secret :
             {"D865033Y2CXF9CPAW", "123456", "fadf5eff", "8b4902c0", "BatteryID", "erial"})
            EXPECT_FALSE(without.contains(secret)) << secret;
        const QByteArray with = exported(records, {.format = format, .identity = ExportedIdentity::Included});
        for (const char* secret : {"fadf5eff", "8b4902c0"})
            EXPECT_TRUE(with.contains(secret)) << secret;
        EXPECT_EQ(with.contains("D865033Y2CXF9CPAW"), format == ExportFormat::Json);
    }
}

TEST(SnapshotExport, WithoutSerialNumbersTheRestStays)
{
    const QVariantMap raw = withoutSerialNumbers(wholeRecord()).value(text("Data.Raw")).toMap();
    EXPECT_EQ(raw, (QVariantMap{{text("Numbers"), QVariantList{qint64{1}}},
                                {text("Cells"), QVariantMap{{text("Voltage"), qint64{4100}}}},
                                {text("Voltage"), qint64{12000}}}));
}

/// Batteries have serial numbers of four digits, too.
TEST(SnapshotExport, FiguresAndDatesAreNoSerialNumbers)
{
    QVariantMap record = wholeRecord();
    record.insert(text("Data.Raw"), QVariantMap{{text("Serial"), qint64{4512}},
                                                {text("Year"), qint64{2026}},
                                                {text("Other Serial"), text("2026")},
                                                {text("Same"), qint64{4512}},
                                                {text("Voltage"), qint64{14512}},
                                                {text("Ratio"), 0.45122026}});
    const QVariantMap kept = withoutSerialNumbers(record);
    EXPECT_EQ(kept.value(text("Battery.FullChargeCapacity")), qint64{4512});
    EXPECT_EQ(kept.value(text("Data.SnapshotDate")), record.value(text("Data.SnapshotDate")));
    EXPECT_EQ(kept.value(text("Data.Raw")).toMap(),
              (QVariantMap{{text("Voltage"), qint64{14512}}, {text("Ratio"), 0.45122026}}));
}

TEST(SnapshotExport, JsonIsAnArrayWithTypes)
{
    const ScopedTimeZone zone("Asia/Tokyo");
    const QByteArray json = exported({wholeRecord(), recordAt(0)}, {.format = ExportFormat::Json});
    QJsonParseError error;
    const QJsonArray array = QJsonDocument::fromJson(json, &error).array();
    EXPECT_EQ(error.error, QJsonParseError::NoError) << error.errorString().toStdString();
    ASSERT_EQ(array.size(), 2);
    const QJsonObject first = array[0].toObject();
    EXPECT_EQ(first[text("Data.SnapshotDate")].toString(), text("2026-03-02T00:30:00Z"));
    EXPECT_EQ(first[text("Battery.StateOfHealth")].toDouble(), 86.5);
    EXPECT_TRUE(first[text("Data.Uploaded")].isBool());
    EXPECT_EQ(first[text("Data.Raw")].toObject()[text("Voltage")].toInt(), 12000);
    EXPECT_EQ(array[1].toObject()[text("Data.SnapshotDate")].toString(), text("1970-01-01T00:00:00Z"));
    EXPECT_EQ(json.count('\n'), 4); // a record a line
    EXPECT_EQ(QJsonDocument::fromJson(exported({}, {.format = ExportFormat::Json})).array().size(), 0);
}

TEST(SnapshotExport, SinceADateWithTheSameNumbersOfBatteries)
{
    const QVariantList records{recordAt(100, 4000, text("first")), recordAt(200, 4000, text("second")),
                               QVariantMap{{text("Battery.BatteryID"), text("undated")}},
                               recordAt(300, 4000, text("first"))};
    const ExportOptions since{.since = QDateTime::fromSecsSinceEpoch(200)};
    const QList<QByteArray> lines = exported(records, since).split('\n');
    ASSERT_EQ(lines.size(), 4); // the last is empty
    EXPECT_TRUE(lines[1].startsWith("1970-01-01T00:03:20Z,2,"));
    EXPECT_TRUE(lines[2].startsWith("1970-01-01T00:05:00Z,1,"));
}

TEST(SnapshotExport, EndsWhereNothingIsTaken)
{
    int parts = 0;
    EXPECT_FALSE(
        exportSnapshots({recordAt(1), recordAt(2)}, {}, [&parts](const QByteArray&) { return ++parts < 2; }));
    EXPECT_EQ(parts, 2);
}

} // namespace
