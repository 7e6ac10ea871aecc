#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "common/NumberConversion.h"
#include "tests/support/NotFinite.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

QVariant integer(qint64 number)
{
    return QVariant::fromValue(number);
}

QVariant text(const char* value)
{
    return QString::fromUtf8(value);
}

TEST(NumberConversion, WhatIsANumber)
{
    EXPECT_TRUE(isNumber(true));
    EXPECT_TRUE(isNumber(integer(3)));
    EXPECT_TRUE(isNumber(3.5));
    for (const QVariant& other :
         {QVariant(), text("3"), QVariant(QByteArray("3")), QVariant(QVariantList{3})})
        EXPECT_FALSE(isNumber(other));
}

TEST(NumberConversion, Booleans)
{
    for (const QVariant& value : {QVariant(true), integer(1), QVariant(1.0)})
        EXPECT_EQ(convertToBoolean(value), true);
    for (const QVariant& value : {QVariant(false), integer(0), QVariant(0.0), QVariant(-0.0)})
        EXPECT_EQ(convertToBoolean(value), false);
    for (const QVariant& value :
         {QVariant(), integer(2), integer(-1), QVariant(0.5), text("1"), text("true")})
        EXPECT_FALSE(convertToBoolean(value).has_value());
}

TEST(NumberConversion, Integers)
{
    EXPECT_EQ(convertToInteger(true), 1);
    EXPECT_EQ(convertToInteger(integer(-1600)), -1600);
    EXPECT_EQ(convertToInteger(300.0), 300);
    EXPECT_EQ(convertToInteger(-9223372036854775808.0), std::numeric_limits<qint64>::min());
    for (const QVariant& value :
         {QVariant(), QVariant(1.5), QVariant(9223372036854775808.0), QVariant(infinity),
          QVariant(std::nan("")), text("300"), QVariant(QVariantList())})
        EXPECT_FALSE(convertToInteger(value).has_value());
}

TEST(NumberConversion, Doubles)
{
    EXPECT_EQ(convertToDouble(true), 1.0);
    EXPECT_EQ(convertToDouble(integer(3031)), 3031.0);
    EXPECT_EQ(convertToDouble(2981.5), 2981.5);
    EXPECT_FALSE(convertToDouble(text("3031")).has_value());
    EXPECT_FALSE(convertToDouble(QVariant()).has_value());
}

TEST(NumberConversion, Texts)
{
    EXPECT_EQ(convertToText(text("x")), QStringLiteral("x"));
    EXPECT_FALSE(convertToText(integer(1)).has_value());
    EXPECT_FALSE(convertToText(QVariant(QByteArray("x"))).has_value());
    EXPECT_FALSE(convertToText(QVariant()).has_value());
}

TEST(NumberConversion, IntegerFromAnyStoredObject)
{
    const struct
    {
        QVariant object;
        qint64 integer;
    } rows[] = {
        {QVariant(), 0},
        {true, 1},
        {integer(-5), -5},
        {1.9, 1},
        {-1.9, -1},
        {std::nan(""), 0},
        {infinity, std::numeric_limits<qint64>::max()},
        {-infinity, std::numeric_limits<qint64>::min()},
        {text("2"), 2},
        {text(" 2x"), 2},
        {text("-7"), -7},
        {text("1.9"), 1},
        {text("x"), 0},
        {text(""), 0},
        {text("99999999999999999999"), std::numeric_limits<qint64>::max()},
        {QVariantList{2}, 0},
        {QByteArray("2"), 0},
    };
    for (const auto& row : rows)
        EXPECT_EQ(integerFromObject(row.object), row.integer) << testing::PrintToString(row.object);
}

} // namespace
