#include <gtest/gtest.h>

#include "common/DateFromText.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/ScopedTimeZone.h"

using namespace quindle;

namespace {

TEST(DateFromText, IsMidnightInTheProcessZone)
{
    const struct
    {
        const char* zone;
        QString text;
        qint64 seconds; // since 1970, UTC
    } rows[] = {
        {"UTC", QStringLiteral("2014-05-12"), 1399852800},
        {"Europe/Berlin", QStringLiteral("2014-05-12"), 1399845600},
        {"Australia/Sydney", QStringLiteral("2014-05-12"), 1399816800},
        {"America/Sao_Paulo", QStringLiteral("2014-10-19"), 1413687600}, // midnight is skipped: 01:00
        {"America/Havana", QStringLiteral("2014-11-02"), 1414900800},    // midnight comes twice: the first
        {"Pacific/Apia", QStringLiteral("2011-12-30"), 1325239200},      // the day is skipped: the next one
    };
    for (const auto& row : rows) {
        const ScopedTimeZone zone(row.zone);
        const auto date = dateFromText(row.text);
        ASSERT_TRUE(date.has_value()) << row.zone;
        EXPECT_EQ(date->toSecsSinceEpoch(), row.seconds) << row.zone;
    }
}

TEST(DateFromText, OtherTextsGiveNothing)
{
    for (const char* text : {"", "2014", "2014-5-12", "14-05-12", "2014-02-31", "2014-13-01", "2014-05-12 ",
                             " 2014-05-12", "2014/05/12", "2014-05-12T00:00", "٢٠١٤-٠٥-١٢"})
        EXPECT_FALSE(dateFromText(QString::fromUtf8(text)).has_value()) << text;
}

TEST(DayText, IsTheDayInTheProcessZone)
{
    const QDateTime lateEvening(QDate(2014, 3, 1), QTime(23, 30), Qt::UTC);
    EXPECT_EQ(dayText(lateEvening), QStringLiteral("2014-03-01"));
    const ScopedTimeZone zone("Europe/Berlin");
    EXPECT_EQ(dayText(lateEvening), QStringLiteral("2014-03-02"));
}

TEST(DayText, ReadsBack)
{
    const ScopedTimeZone zone("America/Sao_Paulo");
    for (QDate day(2014, 1, 1); day.year() == 2014; day = day.addDays(1)) {
        const QString text = dayText(day.startOfDay());
        EXPECT_EQ(dateFromText(text)->date(), day);
    }
}

} // namespace
