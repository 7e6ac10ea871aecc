#include "inspect/InventedSerial.h"

#include <gtest/gtest.h>

#include <QStringList>

#include "tests/support/QtPrinters.h"
#include "tests/support/Texts.h"

using namespace quindle;

namespace {

bool sharesRun(const QString& text, const QString& serial)
{
    for (qsizetype start = 0; start + 4 <= serial.size(); ++start)
        if (text.contains(serial.mid(start, 4)))
            return true;
    return false;
}

TEST(InventedSerial, KeepsLengthAndDateAndNothingElse)
{
    const QStringList serials{
        QStringLiteral("C02MN1TXF5YW"), QStringLiteral("W8841A2BCDE"),
        QStringLiteral("ABC"),          QStringLiteral(""),
        QStringLiteral("QXJKWZVYHGTB"), QStringLiteral("7041925836"),
        QStringLiteral("AAAAAAAAAAAA"), QStringLiteral("D86439601R9DHDFAR"),
        QStringLiteral("000000000000"),
    };
    for (const QString& serial : serials) {
        const QString invented = inventedSerial(serial, true, {serial});
        EXPECT_EQ(invented.size(), serial.size());
        EXPECT_FALSE(sharesRun(invented, serial)) << serial.toStdString() << ' ' << invented.toStdString();
        const bool isDated = serial.size() == 11 || serial.size() == 12;
        for (qsizetype position = 0; position < serial.size(); ++position) {
            const bool stays = isDated && position >= 2 && position < 5;
            EXPECT_EQ(invented[position] == serial[position], stays) << serial.toStdString() << position;
        }
    }
}

TEST(InventedSerial, SharesNothingWithTheOtherSerial)
{
    const QString first = QStringLiteral("ABCDEFGHIJ");
    const QString second =
        inventedSerial(first, false, {first}); // the worst case: what would have been invented
    const QString invented = inventedSerial(first, false, {first, second});
    EXPECT_FALSE(sharesRun(invented, first));
    EXPECT_FALSE(sharesRun(invented, second));
}

struct SerialRow
{
    QVariant value;
    QVariant clean;
};

TEST(InventedSerial, IsReplacedWhereverItOccurs)
{
    const std::vector<SerialPair> serials{{QStringLiteral("ABCDEF"), QStringLiteral("UVWXYZ")},
                                          {QStringLiteral("12345"), QStringLiteral("67890")},
                                          {QStringLiteral("q"), QStringLiteral("Z")}};
    const auto text = [](const char* latin) { return QVariant(QString::fromLatin1(latin)); };
    const SerialRow rows[] = {
        {text("ABCDEF"), text("UVWXYZ")},
        {text("x ABCDEF, ABCDEF"), text("x UVWXYZ, UVWXYZ")},
        {text("BCDE"), text("VWXY")},
        {text("ABC BCD"), text("ABC BCD")},
        {text("abcdef"), text("abcdef")},
        {text("12345"), text("67890")},
        {text("q"), text("Z")},
        {text("quick"), text("quick")},
        {QVariant(QByteArray("\0ABCDEF\0", 8)), QVariant(QByteArray("\0UVWXYZ\0", 8))},
        {QVariant::fromValue<qint64>(12345), QVariant::fromValue<qint64>(67890)},
        {QVariant::fromValue<qint64>(123456), QVariant::fromValue<qint64>(123456)},
        {QVariant(true), QVariant(true)},
        {QVariant(1.5), QVariant(1.5)},
        {QVariantList{text("ABCDEF")}, QVariantList{text("UVWXYZ")}},
        {QVariantMap{{QStringLiteral("keyABCDEF"), text("BCDEF")}},
         QVariantMap{{QStringLiteral("keyUVWXYZ"), text("VWXYZ")}}},
    };
    for (const SerialRow& row : rows)
        EXPECT_EQ(withoutSerials(row.value, serials), row.clean);
}

TEST(InventedSerial, KeysKeepTheWordsThatASerialHasToo)
{
    const std::vector<SerialPair> serials{
        {QStringLiteral("System Serial Number"), QStringLiteral("XQJKWZ YVHGTB XQJKWZ")},
        {QStringLiteral("SmartBattery01"), QStringLiteral("QZTKHXVBWGJY72")},
        {QStringLiteral("standard"), QStringLiteral("QZTKHXVB")}};
    for (const char* key : {"IOPlatformSerialNumber", "BatterySerialNumber", "AppleSmartBattery", "standard"})
        EXPECT_EQ(withoutSerials(QVariantMap{{latin(key), true}}, serials),
                  (QVariantMap{{latin(key), true}}));
    EXPECT_EQ(withoutSerials(QVariantMap{{QStringLiteral("of tery01"), QStringLiteral("standard")}}, serials),
              (QVariantMap{{QStringLiteral("of WGJY72"), QStringLiteral("QZTKHXVB")}}));
}

} // namespace
