#include "history/DailyUpload.h"

#include <gtest/gtest.h>

#include <limits>

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "common/Digests.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

QVariantMap record()
{
    return {{QStringLiteral("Battery.BatteryID"), QStringLiteral("id")},
            {QStringLiteral("Battery.CycleCount"), qint64{-5}},
            {QStringLiteral("Battery.FullChargeCapacity"), qint64{4512}},
            {QStringLiteral("Battery.DesignCapacity"), qint64{5200}},
            {QStringLiteral("Battery.StateOfHealth"), 100.0},
            {QStringLiteral("Mac.Model"), QStringLiteral("MacBookAir6,2")},
            {QStringLiteral("Battery.ManufactureDateRaw"), qint64{17506}},
            {QStringLiteral("Data.Uploaded"), false},
            {QStringLiteral("Data.SnapshotDate"), QDateTime(QDate(2014, 3, 2), QTime(23, 59))},
            {QStringLiteral("Data.Raw"),
             QVariantMap{{QStringLiteral("BatterySerialNumber"), QStringLiteral("ABCD")},
                         {QStringLiteral("Voltage"), qint64{12000}}}}};
}

std::optional<DailyUpload> masked(const QVariantMap& snapshot)
{
    return dailyUpload(snapshot, QStringLiteral("1.2"), SerialText::Masked);
}

QString rawText(const DailyUpload& upload)
{
    const QString text = upload.record.value(QStringLiteral("Data.Raw")).toString();
    return QString::fromUtf8(QByteArray::fromBase64(text.toLatin1()));
}

TEST(DailyUploadRule, HashesTheSevenTexts)
{
    const auto upload = masked(record());
    ASSERT_TRUE(upload);
    EXPECT_EQ(upload->record.value(QStringLiteral("Data.SnapshotDate")), QStringLiteral("2014-03-02"));
    EXPECT_EQ(upload->record.value(QStringLiteral("Data.Hash")),
              sha1Hex(QStringLiteral("id-545125200MacBookAir6,2175062014-03-02")));
    EXPECT_EQ(upload->record.value(QStringLiteral("Application.SendingVersion")), QStringLiteral("1.2"));
    EXPECT_EQ(upload->record.value(QStringLiteral("Data.Daily")), QStringLiteral("1"));
}

TEST(DailyUploadRule, EachOfTheSevenIsNeeded)
{
    for (const char* key :
         {"Battery.BatteryID", "Battery.CycleCount", "Battery.FullChargeCapacity", "Battery.DesignCapacity",
          "Mac.Model", "Battery.ManufactureDateRaw", "Data.SnapshotDate"}) {
        QVariantMap incomplete = record();
        incomplete.remove(QLatin1String(key));
        EXPECT_FALSE(masked(incomplete)) << key;
    }
}

TEST(DailyUploadRule, HashChangesWithCyclesCapacityAndDay)
{
    const auto hash = [](const char* key, const QVariant& value) {
        QVariantMap changed = record();
        changed.insert(QLatin1String(key), value);
        return masked(changed)->record.value(QStringLiteral("Data.Hash")).toString();
    };
    const QString same = hash("Data.SnapshotDate", QDateTime(QDate(2014, 3, 2), QTime(0, 0)));
    EXPECT_EQ(same, hash("Mac.Name", QStringLiteral("other")));
    EXPECT_NE(same, hash("Battery.CycleCount", qint64{6}));
    EXPECT_NE(same, hash("Battery.FullChargeCapacity", qint64{4511}));
    EXPECT_NE(same, hash("Data.SnapshotDate", QDateTime(QDate(2014, 3, 3), QTime(0, 0))));
}

TEST(DailyUploadRule, BodyIsOneObjectInAnArrayInBase64)
{
    const auto upload = masked(record());
    const auto json = QByteArray::fromBase64Encoding(upload->body, QByteArray::AbortOnBase64DecodingErrors);
    ASSERT_TRUE(json);
    EXPECT_FALSE(upload->body.contains('\n'));
    EXPECT_FALSE((*json).contains('\n'));
    const QJsonArray array = QJsonDocument::fromJson(*json).array();
    ASSERT_EQ(array.size(), 1);
    EXPECT_EQ(array.at(0).toObject().value(u"Data.Uploaded"), QJsonValue(false));
    EXPECT_EQ(array.at(0).toObject().toVariantMap().size(), upload->record.size());
}

TEST(DailyUploadRule, LargestIntegersAreExact)
{
    QVariantMap large = record();
    large.insert(QStringLiteral("Battery.CycleCount"), std::numeric_limits<qint64>::max());
    EXPECT_TRUE(
        QByteArray::fromBase64(masked(large)->body).contains("\"Battery.CycleCount\":9223372036854775807,"));
}

TEST(DailyUploadRule, NothingThatJsonCannotHold)
{
    for (const double health :
         {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        QVariantMap record = ::record();
        record.insert(QStringLiteral("Battery.StateOfHealth"), health);
        EXPECT_FALSE(masked(record));
    }
}

TEST(DailyUploadRule, SerialIsClearOnlyInTheFormerUpload)
{
    const QVariantMap snapshot = record();
    EXPECT_EQ(rawText(*masked(snapshot)),
              QStringLiteral("{\n    BatterySerialNumber = xxxx;\n    Voltage = 12000;\n}"));
    EXPECT_EQ(rawText(*dailyUpload(snapshot, std::nullopt, SerialText::Clear)),
              QStringLiteral("{\n    BatterySerialNumber = ABCD;\n    Voltage = 12000;\n}"));
    EXPECT_EQ(snapshot, record());
}

TEST(DailyUploadRule, SerialThatIsNoTextStays)
{
    QVariantMap numbered = record();
    numbered.insert(QStringLiteral("Data.Raw"),
                    QVariantMap{{QStringLiteral("BatterySerialNumber"), qint64{12345678}}});
    EXPECT_EQ(rawText(*masked(numbered)), QStringLiteral("{\n    BatterySerialNumber = 12345678;\n}"));
}

TEST(DailyUploadRule, NoRawEntryAndNoVersionLeaveTheirKeysOut)
{
    QVariantMap plain = record();
    plain.remove(QStringLiteral("Data.Raw"));
    const auto upload = dailyUpload(plain, std::nullopt, SerialText::Masked);
    EXPECT_FALSE(upload->record.contains(QStringLiteral("Data.Raw")));
    EXPECT_FALSE(upload->record.contains(QStringLiteral("Application.SendingVersion")));
}

TEST(MaskedSerial, LastFourWhereverTheyStand)
{
    const std::pair<const char*, const char*> cases[]{
        {"ABCD12ABCD", "xxxx12xxxx"},
        {"AAAAAA", "xxxxAA"},
        {"1234", "xxxx"},
        {"123", "123"},
        {"", ""},
        {"D86", "D86"},
        {"12345", "1xxxx"},
        {"xxxxx", "xxxxx"},
    };
    for (const auto& [serial, shown] : cases)
        EXPECT_EQ(maskedSerial(QLatin1String(serial)), QLatin1String(shown)) << serial;
}

TEST(DailyUploadUrl, IsAlwaysHttps)
{
    EXPECT_EQ(dailyUploadUrl(QStringLiteral("stats.example")),
              QStringLiteral("https://stats.example/qndonline/upload_mac_db_pro.php"));
}

} // namespace
