#include "mac/SerialNumberDecoding.h"

#include <random>

#include <gtest/gtest.h>

#include "tests/support/DataTable.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/ScopedTimeZone.h"

using namespace quindle;

namespace {

std::optional<QDate> dayOf(const QString& serial)
{
    const auto built = buildDate(serial);
    return built ? std::optional(built->date()) : std::nullopt;
}

TEST(SerialNumberDecoding, RecordedDatesInManyZones)
{
    for (const QStringList& row : dataTable(QStringLiteral("serials.tsv"))) {
        const ScopedTimeZone zone(row[0].toLatin1());
        const auto built = buildDate(row[1]);
        ASSERT_TRUE(built.has_value()) << row[1].toStdString();
        EXPECT_EQ(built->toSecsSinceEpoch(), row[2].toLongLong()) << row.join(u' ').toStdString();
    }
}

TEST(SerialNumberDecoding, EveryWeekOfAYear)
{
    // 1 January 2014 is a Wednesday.
    const QString codes = QStringLiteral("123456789CDFGHJKLMNPQRTVWXY");
    for (qsizetype index = 0; index < codes.size(); ++index) {
        const QDate day = QDate(2013, 12, 30).addDays(7 * (index + 1));
        EXPECT_EQ(dayOf(QStringLiteral("C02M") + codes[index] + QStringLiteral("1TXF5YW")), day);
        EXPECT_EQ(dayOf(QStringLiteral("C02N") + codes[index] + QStringLiteral("1TXF5YW")),
                  day.addDays(26 * 7));
    }
    for (const QChar other : QStringLiteral("0SZABEIOUmn-"))
        EXPECT_EQ(dayOf(QStringLiteral("C02M") + other + QStringLiteral("1TXF5YW")), QDate(2014, 1, 6));
}

TEST(SerialNumberDecoding, EveryYearDigit)
{
    const int years[] = {2010, 2011, 2002, 2003, 2004, 2005, 2006, 2007, 2008, 2009};
    for (int digit = 0; digit < 10; ++digit)
        EXPECT_EQ(buildDate(QStringLiteral("XX") + QString::number(digit) + QStringLiteral("00AAAAAA")),
                  weekDate(years[digit], 0))
            << digit;
    EXPECT_EQ(buildDate(QStringLiteral("XXx00AAAAAA")), weekDate(2000, 0));
}

TEST(SerialNumberDecoding, OtherLengthsGiveNothing)
{
    for (const char* serial : {"", "C", "C02MN1TXF5", "C02MN1TXF5YW1"}) {
        const QString text = QString::fromLatin1(serial);
        EXPECT_EQ(buildDate(text), std::nullopt) << serial;
        EXPECT_EQ(dateCharacters(text), QString()) << serial;
        EXPECT_EQ(configurationCode(text), QString()) << serial;
    }
}

TEST(SerialNumberDecoding, WhateverStandsInASerialADateOfItsTimesComesOut)
{
    std::mt19937 random(20140512);
    for (int round = 0; round < 20'000; ++round) {
        QString serial;
        for (int index = 0; index < 12; ++index)
            serial += QChar(static_cast<char16_t>(0x20 + random() % 0x5f));
        const auto day = dayOf(serial);
        ASSERT_TRUE(day.has_value()) << serial.toStdString();
        EXPECT_GE(*day, QDate(1999, 12, 27)) << serial.toStdString();
        EXPECT_LT(*day, QDate(2020, 2, 1)) << serial.toStdString();
        EXPECT_EQ(configurationCode(serial), serial.right(4));
        EXPECT_EQ(dateCharacters(serial), serial.mid(3, 2));
    }
}

} // namespace
