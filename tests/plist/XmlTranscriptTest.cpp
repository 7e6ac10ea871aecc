// What XML property lists may and may not say; the values are read as those of binary lists are.
#include "plist/XmlTranscript.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "plist/PropertyList.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/ScopedTimeZone.h"

using namespace quindle;

namespace {

constexpr double infiniteNumber = std::numeric_limits<double>::infinity();

QByteArray inList(const QByteArray& body)
{
    return "<?xml version=\"1.0\"?><plist version=\"1.0\">" + body + "</plist>";
}

QVariant readXml(const QByteArray& body)
{
    return propertyListFromBytes(inList(body)).value_or(QStringLiteral("no list"));
}

struct Row
{
    const char* xml;
    QVariant value;
};

void expectValues(std::initializer_list<Row> rows)
{
    for (const Row& row : rows) {
        EXPECT_EQ(readXml(row.xml), row.value) << row.xml;
        EXPECT_EQ(readXml(row.xml).typeId(), row.value.typeId()) << row.xml;
    }
}

TEST(XmlTranscript, IsABinaryList)
{
    EXPECT_TRUE(binaryFromXml(inList("<true/>")).startsWith("bplist00\x09"));
    EXPECT_EQ(binaryFromXml(inList("<nothing/>")), QByteArray());
}

TEST(XmlTranscript, Integers)
{
    expectValues({{"<integer>3031</integer>", qint64{3031}},
                  {"<integer> +7 </integer>", qint64{7}},
                  {"<integer>0x1F</integer>", qint64{31}},
                  {"<integer>-0x1f</integer>", qint64{-31}},
                  {"<integer>58481155946291</integer>", qint64{58481155946291}},
                  {"<integer>18446744073709550016</integer>", qint64{-1600}}, // an unsigned -1600
                  {"<integer>9223372036854775808</integer>", std::numeric_limits<qint64>::min()},
                  {"<integer>-9223372036854775808</integer>", std::numeric_limits<qint64>::min()}});
}

TEST(XmlTranscript, Reals)
{
    expectValues({{"<real>61.5</real>", 61.5},
                  {"<real>1</real>", 1.0},
                  {"<real> +1e3\n</real>", 1000.0},
                  {"<real>5e-324</real>", 5e-324},
                  {"<real>-inf</real>", -infiniteNumber},
                  {"<real>Infinity</real>", infiniteNumber}});
    EXPECT_TRUE(std::isnan(readXml("<real>NaN</real>").toDouble()));
}

TEST(XmlTranscript, RealsBeyondTheRangeAreInfiniteOrZero)
{
    expectValues({{"<real>1e999</real>", infiniteNumber},
                  {"<real>-1e999</real>", -infiniteNumber},
                  {"<real>1e-999</real>", 0.0},
                  {"<real>-1e-999</real>", 0.0}});
}

TEST(XmlTranscript, TextsAndData)
{
    expectValues({{"<string>a &amp; \xc3\xa9</string>", QStringLiteral("a & é")},
                  {"<string> a\n<![CDATA[<b>]]> </string>", QStringLiteral(" a\n<b> ")},
                  {"<string>\xf0\x9f\x94\x8b</string>", QStringLiteral("🔋")},
                  {"<!-- note --><string/>", QStringLiteral("")},
                  {"<data>YWIA</data>", QByteArray("ab\0", 3)},
                  {"<data>\n\tYW\n\tIA\n</data>", QByteArray("ab\0", 3)},
                  {"<data/>", QByteArray("")}});
}

TEST(XmlTranscript, DatesAreInstants)
{
    const ScopedTimeZone zone("Europe/Berlin");
    const QDateTime date = readXml("<date>2014-03-02T12:00:00Z</date>").toDateTime();
    EXPECT_EQ(date.toMSecsSinceEpoch(), 1393761600000);
    EXPECT_EQ(date.timeSpec(), Qt::LocalTime);
    EXPECT_EQ(date.time(), QTime(13, 0));
    EXPECT_EQ(readXml("<date> 2014-03-02T12:00:00+01:00 </date>").toDateTime(), date.addSecs(-3600));
    EXPECT_EQ(readXml("<date>2100-01-01T00:00:00Z</date>").toDateTime().toSecsSinceEpoch(), 4102444800);
}

TEST(XmlTranscript, Containers)
{
    const QString key = QStringLiteral("CF$UID");
    expectValues(
        {{"<array><integer>1</integer><false/></array>", QVariantList{qint64{1}, false}},
         {"<array>between<true/>them</array>", QVariantList{true}},
         {"<dict/>", QVariantMap()},
         {"<dict><key>a</key><string>b</string></dict>",
          QVariantMap{{QStringLiteral("a"), QStringLiteral("b")}}},
         {"<dict><key>a</key><true/><key>a</key><false/></dict>", QVariantMap{{QStringLiteral("a"), false}}},
         {"<dict><key>CF$UID</key><integer>-1</integer></dict>", QVariantMap{{key, qint64{-1}}}},
         {"<dict><key>CF$UID</key><string>12345678</string></dict>",
          QVariantMap{{key, QStringLiteral("12345678")}}},
         {"<dict><key>CF$UID</key><date>2001-01-01T00:00:00Z</date></dict>",
          QVariantMap{{key, QDateTime::fromMSecsSinceEpoch(978307200000)}}}});
}

TEST(XmlTranscript, BrokenXmlIsNoList)
{
    for (const char* body :
         {"", "<true/>", "<true/></plist>x", "<true/><true/></plist>", "</plist>",
          "<string>\xff\xfe</string></plist>", "<dict><key>a</key></dict></plist>",
          "<dict><true/></dict></plist>", "<dict><key>a</key><key>b</key></dict></plist>",
          "<dict><key>a<b/></key><true/></dict></plist>", "<other/></plist>", "<key>a</key></plist>",
          "<string>a<b/></string></plist>", "<array><true/></plist>", "&unknown;<true/></plist>"})
        EXPECT_FALSE(
            propertyListFromBytes(QByteArray("<?xml version=\"1.0\"?><plist version=\"1.0\">") + body))
            << body;
    for (const char* list : {"", "x", "<plist>", "<list><true/></list>", "{ a = b; }", "<true/>"})
        EXPECT_FALSE(propertyListFromBytes(list)) << list;
}

TEST(XmlTranscript, ValuesThatAreNoneSpoilTheList)
{
    for (const char* body :
         {"<integer>x</integer>", "<integer/>", "<integer>1.5</integer>", "<integer>--1</integer>",
          "<integer>18446744073709551616</integer>", "<integer>1,000</integer>", "<real>0,5</real>",
          "<real/>", "<real>1 2</real>", "<real>0x1p3</real>", "<date>yesterday</date>", "<date/>",
          "<data>!!!!</data>", "<data>YWI\xe2\x82\xac</data>"})
        EXPECT_EQ(readXml(body), QVariant(QStringLiteral("no list"))) << body;
}

} // namespace
