#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "common/PropertyList.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/ScopedTimeZone.h"

using namespace quindle;

namespace {

QVariant readXml(const QByteArray& body)
{
    return propertyListFromBytes("<?xml version=\"1.0\"?><plist version=\"1.0\">" + body + "</plist>")
        .value();
}

/// A binary property list that holds one date, in seconds since 2001.
QByteArray binaryDate(const char (&bigEndianDouble)[9])
{
    return QByteArray("bplist00\x33", 9) + QByteArray(bigEndianDouble, 8) +
           QByteArray("\x08"                 // the offset table: the date's offset
                      "\0\0\0\0\0\0\x01\x01" // sizes of offsets and references
                      "\0\0\0\0\0\0\0\x01"   // one object
                      "\0\0\0\0\0\0\0\0"     // which is the top one
                      "\0\0\0\0\0\0\0\x11",  // where the offset table is
                      33);
}

TEST(PropertyList, EveryType)
{
    EXPECT_EQ(readXml("<string>a &amp; \xc3\xa9</string>"), QVariant(QStringLiteral("a & é")));
    EXPECT_EQ(readXml("<true/>"), QVariant(true));
    EXPECT_EQ(readXml("<real>61.5</real>"), QVariant(61.5));
    EXPECT_EQ(readXml("<data>YWIA</data>"), QVariant(QByteArray("ab\0", 3)));
    EXPECT_EQ(readXml("<array><integer>1</integer><false/></array>"),
              QVariant(QVariantList{qint64{1}, false}));
    EXPECT_EQ(readXml("<dict><key>a</key><string>b</string></dict>"),
              QVariant(QVariantMap{{QStringLiteral("a"), QStringLiteral("b")}}));
}

TEST(PropertyList, IntegersAreSigned64Bits)
{
    const QVariant integer = readXml("<integer>3031</integer>");
    EXPECT_EQ(integer.typeId(), QMetaType::LongLong);
    EXPECT_EQ(integer.toLongLong(), 3031);
    EXPECT_EQ(readXml("<integer>-1600</integer>").toLongLong(), -1600);
    EXPECT_EQ(readXml("<integer>18446744073709550016</integer>").toLongLong(), -1600);
    EXPECT_EQ(readXml("<integer>58481155946291</integer>").toLongLong(), 58481155946291);
}

TEST(PropertyList, DatesAreInstants)
{
    const ScopedTimeZone zone("Europe/Berlin");
    const QDateTime date = readXml("<date>2014-03-02T12:00:00Z</date>").toDateTime();
    EXPECT_EQ(date.toMSecsSinceEpoch(), 1393761600000);
    EXPECT_EQ(date.timeSpec(), Qt::LocalTime);
    EXPECT_EQ(date.time(), QTime(13, 0));
    EXPECT_EQ(readXml("<date>2100-01-01T00:00:00Z</date>").toDateTime().toSecsSinceEpoch(), 4102444800);
}

TEST(PropertyList, BinaryDatesHaveFractions)
{
    // 86400.001, -0.5 and 3000000000.25 seconds after the start of 2001
    const qint64 reference = 978307200000;
    const auto milliseconds = [](const QByteArray& bytes) {
        return propertyListFromBytes(bytes).value().toDateTime().toMSecsSinceEpoch();
    };
    EXPECT_EQ(milliseconds(binaryDate("\x40\xf5\x18\x00\x04\x18\x93\x75")), reference + 86400001);
    EXPECT_EQ(milliseconds(binaryDate("\xbf\xe0\x00\x00\x00\x00\x00\x00")), reference - 500);
    EXPECT_EQ(milliseconds(binaryDate("\x41\xe6\x5a\x0b\xc0\x08\x00\x00")), reference + 3000000000250);
}

TEST(PropertyList, OtherBytesGiveNothing)
{
    for (const QByteArray& bytes :
         {QByteArray(), QByteArray("x"), QByteArray("<plist>"), QByteArray("bplist00"),
          QByteArray("bplist00") + QByteArray(60, '\xff'), QByteArray("{ a = b; }"),
          QByteArray("<plist><dict><key>a</key><string>b")})
        EXPECT_FALSE(propertyListFromBytes(bytes).has_value()) << bytes.toStdString();
    EXPECT_FALSE(propertyListFromFile(QStringLiteral("/no/such/file.plist")).has_value());
}

TEST(PropertyList, BrokenXmlGivesNothing)
{
    const QByteArray head = "<?xml version=\"1.0\"?><plist version=\"1.0\">";
    for (const QByteArray& body :
         {QByteArray("<true/>"), QByteArray("<true/></plist>x"), QByteArray("<true/><true/></plist>"),
          QByteArray("</plist>"), QByteArray("x<true/>"), QByteArray("<string>\xff\xfe</string></plist>"),
          QByteArray("<dict><key>a</key></dict></plist>"), QByteArray("<dict><true/></dict></plist>"),
          QByteArray("<dict><key>a</key><key>b</key></dict></plist>"), QByteArray("<other/></plist>"),
          QByteArray("<string>a<b/></string></plist>")})
        EXPECT_FALSE(propertyListFromBytes(head + body).has_value()) << body.toStdString();
}

TEST(PropertyList, ValuesThatAreNoneGiveNothing)
{
    for (const QByteArray& body :
         {QByteArray("<integer>x</integer>"), QByteArray("<integer/>"), QByteArray("<integer>1.5</integer>"),
          QByteArray("<integer>--1</integer>"), QByteArray("<real>0,5</real>"), QByteArray("<real/>"),
          QByteArray("<real>1 2</real>"), QByteArray("<date>yesterday</date>"), QByteArray("<date/>"),
          QByteArray("<data>!!!!</data>")})
        EXPECT_FALSE(propertyListFromBytes("<plist version=\"1.0\">" + body + "</plist>").has_value())
            << body.toStdString();
}

TEST(PropertyList, WaysToWriteTheSame)
{
    EXPECT_EQ(readXml("<integer> +7 </integer>"), QVariant(qint64{7}));
    EXPECT_EQ(readXml("<integer>0x1F</integer>"), QVariant(qint64{31}));
    EXPECT_EQ(readXml("<integer>-9223372036854775808</integer>"),
              QVariant(std::numeric_limits<qint64>::min()));
    EXPECT_EQ(readXml("<real>1e3</real>"), QVariant(1000.0));
    EXPECT_EQ(readXml("<real>-inf</real>"), QVariant(-std::numeric_limits<double>::infinity()));
    EXPECT_TRUE(std::isnan(readXml("<real>nan</real>").toDouble()));
    EXPECT_EQ(readXml("<data>\n\tYW\n\tIA\n</data>"), QVariant(QByteArray("ab\0", 3)));
    EXPECT_EQ(readXml("<string> a\n<![CDATA[<b>]]> </string>"), QVariant(QStringLiteral(" a\n<b> ")));
    EXPECT_EQ(readXml("<!-- note --><string/>"), QVariant(QStringLiteral("")));
}

QByteArray nestedXml(int levels)
{
    return "<plist version=\"1.0\">" + QByteArray("<array>").repeated(levels) +
           QByteArray("</array>").repeated(levels) + "</plist>";
}

/// Arrays in each other, each the only item of the one before.
QByteArray nestedBinary(int levels)
{
    const auto twoBytes = [](int number) {
        return QByteArray(1, static_cast<char>(number >> 8)) + static_cast<char>(number & 0xff);
    };
    QByteArray objects("bplist00");
    QByteArray offsets;
    for (int level = 1; level <= levels; ++level) {
        offsets += twoBytes(static_cast<int>(objects.size()));
        objects += level < levels ? '\xa1' + twoBytes(level) : QByteArray("\xa0");
    }
    return objects + offsets + QByteArray("\0\0\0\0\0\0\x02\x02", 8) + QByteArray(6, '\0') +
           twoBytes(levels) + QByteArray(8, '\0') + QByteArray(6, '\0') +
           twoBytes(static_cast<int>(objects.size()));
}

TEST(PropertyList, DeepNestingGivesNothing)
{
    for (const auto& nested : {nestedXml, nestedBinary}) {
        EXPECT_TRUE(propertyListFromBytes(nested(512)).has_value());
        EXPECT_FALSE(propertyListFromBytes(nested(513)).has_value());
        EXPECT_FALSE(propertyListFromBytes(nested(15'000)).has_value());
    }
}

TEST(PropertyList, BinaryListInItselfGivesNothing)
{
    const QByteArray inItself("bplist00\xa1\0\x08\0\0\0\0\0\0\x01\x01\0\0\0\0\0\0\0\x01"
                              "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\x0a",
                              43);
    EXPECT_FALSE(propertyListFromBytes(inItself).has_value());
}

} // namespace
