#include <limits>

#include <QTimeZone>
#include <gtest/gtest.h>

#include "plist/PropertyList.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

QVariant roundTrip(const QVariant& value)
{
    return propertyListFromBytes(xmlPropertyList(value)).value();
}

TEST(PropertyListWriter, EveryTypeReadsBack)
{
    const QVariantMap values{
        {QStringLiteral("text"), QStringLiteral("a <b> & \"c\" 'd' é 😀 \n\tend  ")},
        {QStringLiteral("empty text"), QStringLiteral("")},
        {QStringLiteral("<key> & so"), QStringLiteral("x")},
        {QStringLiteral("yes"), true},
        {QStringLiteral("no"), false},
        {QStringLiteral("data"), QByteArray("a\0\xff", 3)},
        {QStringLiteral("empty data"), QByteArray("")},
        {QStringLiteral("date"),
         QDateTime(QDate(2014, 3, 2), QTime(1, 2, 3), QTimeZone::utc()).toLocalTime()},
        {QStringLiteral("far date"),
         QDateTime(QDate(2150, 3, 2), QTime(1, 2, 3), QTimeZone::utc()).toLocalTime()},
        {QStringLiteral("list"), QVariantList{qint64{1}, QStringLiteral("two"), QVariantList()}},
        {QStringLiteral("map"), QVariantMap{{QStringLiteral("inner"), QVariantMap()}}},
    };
    EXPECT_EQ(roundTrip(values).toMap(), values);
}

TEST(PropertyListWriter, NumbersReadBackToTheLastDigit)
{
    for (const qint64 number : {qint64{0}, qint64{-1600}, qint64{58481155946291},
                                std::numeric_limits<qint64>::min(), std::numeric_limits<qint64>::max()})
        EXPECT_EQ(roundTrip(QVariant::fromValue(number)), QVariant::fromValue(number));
    for (const double number : {0.1, 1.0 / 3.0, 61.0, -0.5, 1e300, 5e-324, 28.999999999999996})
        EXPECT_EQ(roundTrip(number), QVariant(number));
}

TEST(PropertyListWriter, OtherReadersSeeNegativeIntegers)
{
    EXPECT_TRUE(xmlPropertyList(QVariant::fromValue(qint64{-1600})).contains("<integer>-1600</integer>"));
}

TEST(PropertyListWriter, TypesStayApart)
{
    const QByteArray xml = xmlPropertyList(QVariantList{true, qint64{1}, 1.0, QStringLiteral("1")});
    EXPECT_EQ(propertyListFromBytes(xml).value().toList()[0].typeId(), QMetaType::Bool);
    EXPECT_EQ(propertyListFromBytes(xml).value().toList()[1].typeId(), QMetaType::LongLong);
    EXPECT_EQ(propertyListFromBytes(xml).value().toList()[2].typeId(), QMetaType::Double);
    EXPECT_EQ(propertyListFromBytes(xml).value().toList()[3].typeId(), QMetaType::QString);
}

TEST(PropertyListWriter, WhatXmlCannotHoldIsLeftOut)
{
    EXPECT_EQ(roundTrip(QStringLiteral("a\x01z\ufffe")), QVariant(QStringLiteral("az")));
    const QString unpaired =
        QStringLiteral("a") + QChar(0xdae0) + QStringLiteral("😀") + QChar(0xdc00) + QStringLiteral("z");
    EXPECT_EQ(roundTrip(unpaired), QVariant(QStringLiteral("a😀z")));
    EXPECT_EQ(roundTrip(QVariantList{QVariant(), qint64{2}}), QVariant(QVariantList{qint64{2}}));
    EXPECT_EQ(roundTrip(QVariantMap{{QStringLiteral("a"), QVariant()}}), QVariant(QVariantMap()));
    EXPECT_TRUE(xmlPropertyList(QVariant()).isEmpty());
}

TEST(PropertyListWriter, CarriageReturnsSurvive)
{
    EXPECT_EQ(roundTrip(QStringLiteral("a\r\nb\rc")), QVariant(QStringLiteral("a\r\nb\rc")));
}

} // namespace
