#include "battery/ManufactureDate.h"

#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "common/AgeText.h"
#include "tests/support/DataTable.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/ScopedTimeZone.h"

using namespace quindle;

namespace {

qint64 packed(QDate day)
{
    return ((day.year() - 1980) << 9) | (day.month() << 5) | day.day();
}

TEST(ManufactureDate, RecordedDatesInManyZones)
{
    for (const QStringList& row : dataTable(QStringLiteral("packed-dates.tsv"))) {
        const ScopedTimeZone zone(row[0].toLatin1());
        const QDateTime date = decodeManufactureDate(row[1].toLongLong());
        const QDateTime recorded = QDateTime::fromSecsSinceEpoch(row[2].toLongLong());
        EXPECT_EQ(date.date(), recorded.date()) << row.join(u' ').toStdString();
        EXPECT_EQ(date, recorded) << row.join(u' ').toStdString();
    }
}

TEST(ManufactureDate, EveryDayReadsBack)
{
    for (QDate day(1980, 1, 1); day.year() < 2108; day = day.addDays(1))
        ASSERT_EQ(decodeManufactureDate(packed(day)), day.startOfDay()) << packed(day);
}

TEST(ManufactureDate, AbsurdNumbersAreDatesToo)
{
    std::mt19937_64 random(17506);
    std::vector<qint64> numbers{0,
                                -1,
                                31,
                                15 << 5,
                                std::numeric_limits<qint64>::min(),
                                std::numeric_limits<qint64>::max(),
                                58481155946291};
    for (int round = 0; round < 2'000; ++round)
        numbers.push_back(static_cast<qint64>(random()) >> (random() % 64));
    const QDateTime now(QDate(2016, 1, 1), QTime(12, 0));
    for (const qint64 number : numbers) {
        const QDateTime date = decodeManufactureDate(number);
        ASSERT_TRUE(date.isValid()) << number;
        ASSERT_TRUE(decodeManufactureDateByDigits(number).isValid()) << number;
        EXPECT_EQ(decodeManufactureDateByDigits(number).date(), date.date()) << number;
        for (const int mode : {0, 1, 2})
            EXPECT_FALSE(ageText(mode, date, now).isEmpty()) << number;
    }
}

TEST(ManufactureDate, TheFormerDecodingIsAtNoon)
{
    EXPECT_EQ(decodeManufactureDateByDigits(17506), QDateTime(QDate(2014, 3, 2), QTime(12, 0)));
}

TEST(ManufactureDate, AgesNeverDecreaseAsTimePasses)
{
    const ScopedTimeZone zone("Europe/Berlin");
    const QDateTime made = decodeManufactureDate(17503);
    qint64 days = -100;
    qint64 months = -100;
    for (QDateTime now = made.addDays(-40); now < made.addYears(3); now = now.addSecs(5 * 3600)) {
        ASSERT_GE(wholeDays(made, now), days) << now.toString(Qt::ISODate).toStdString();
        ASSERT_GE(wholeMonths(made, now), months) << now.toString(Qt::ISODate).toStdString();
        days = wholeDays(made, now);
        months = wholeMonths(made, now);
    }
    EXPECT_EQ(months, 35);
}

} // namespace
