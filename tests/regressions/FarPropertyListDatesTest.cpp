// Dates that are further from 2001 than 32 bits of seconds came out as other dates, and one that is no number
// at all as any date.

#include <bit>
#include <limits>

#include <QDateTime>
#include <gtest/gtest.h>

#include "plist/PropertyList.h"
#include "tests/support/BinaryPropertyList.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

QByteArray binaryDate(double seconds)
{
    return binaryPropertyList({'\x33' + bigEndian(std::bit_cast<quint64>(seconds), 8)});
}

TEST(FarPropertyListDates, Xml)
{
    for (const char* text :
         {"0001-01-01T00:00:00Z", "1601-01-01T00:00:00Z", "1899-12-31T23:59:59Z", "1932-01-01T00:00:00Z",
          "2069-01-19T03:14:08Z", "2106-02-07T06:28:16Z", "9999-12-31T23:59:59Z"}) {
        const auto date = propertyListFromBytes(QByteArray("<plist><date>") + text + "</date></plist>");
        ASSERT_TRUE(date.has_value()) << text;
        EXPECT_EQ(date->toDateTime().toUTC().toString(Qt::ISODate), QLatin1String(text));
    }
}

TEST(FarPropertyListDates, Binary)
{
    const auto year = [](double seconds) {
        return propertyListFromBytes(binaryDate(seconds)).value().toDateTime().toUTC().date().year();
    };
    EXPECT_EQ(year(0), 2001);
    EXPECT_EQ(year(-3e9), 1905);
    EXPECT_EQ(year(1e11), 5169);
    EXPECT_GT(year(std::numeric_limits<double>::max()), 200'000);
    EXPECT_LT(year(-std::numeric_limits<double>::infinity()), -200'000);
    EXPECT_FALSE(
        propertyListFromBytes(binaryDate(std::numeric_limits<double>::quiet_NaN())).value().isValid());
}

// Dates after the year 9999 were written as empty ones, which spoiled the whole list for its reader.
TEST(FarPropertyListDates, ThatXmlCannotHoldAreLeftOut)
{
    for (const qint64 milliseconds : {qint64{9'000'000'000'000'000}, qint64{-9'000'000'000'000'000}}) {
        const QVariantList list{QDateTime::fromMSecsSinceEpoch(milliseconds), qint64{1}};
        const auto again = propertyListFromBytes(xmlPropertyList(list));
        ASSERT_TRUE(again.has_value());
        EXPECT_EQ(again->toList(), QVariantList{qint64{1}});
    }
}

} // namespace
