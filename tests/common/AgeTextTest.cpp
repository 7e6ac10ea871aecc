#include <gtest/gtest.h>

#include "common/AgeText.h"
#include "common/DateFromText.h"
#include "tests/support/DataTable.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/ScopedTimeZone.h"

using namespace quindle;

namespace {

QDateTime day(const QString& text)
{
    return dateFromText(text).value();
}

TEST(AgeText, RecordedAgesInManyZones)
{
    for (const QStringList& row : dataTable(QStringLiteral("ages.tsv"))) {
        const ScopedTimeZone zone(row[0].toLatin1());
        const QDateTime from = QDateTime::fromSecsSinceEpoch(row[1].toLongLong());
        const QDateTime to = QDateTime::fromSecsSinceEpoch(row[2].toLongLong());
        EXPECT_EQ(wholeDays(from, to), row[3].toLongLong()) << row.join(u' ').toStdString();
        EXPECT_EQ(wholeMonths(from, to), row[4].toLongLong()) << row.join(u' ').toStdString();
    }
}

/// The definition itself: the whole days after which the moved start is not yet past the end.
qint64 daysByMoving(const QDateTime& from, const QDateTime& to)
{
    const qint64 days = from.date().daysTo(to.date());
    return days > 0 && from.addDays(days) > to ? days - 1 : days;
}

TEST(AgeText, EveryHourAroundChangesOfTheClock)
{
    const std::pair<const char*, QDate> changes[] = {
        {"Europe/Berlin", QDate(2014, 3, 30)},
        {"America/Sao_Paulo", QDate(2018, 11, 4)},  // midnight is skipped
        {"Australia/Lord_Howe", QDate(2014, 4, 6)}, // by half an hour
        {"Pacific/Apia", QDate(2011, 12, 30)},      // the day is skipped
    };
    for (const auto& [name, date] : changes) {
        const ScopedTimeZone zone(name);
        const QDateTime first = QDateTime(date.addDays(-2), QTime(0, 0)).addMSecs(1);
        for (int start = 0; start < 4 * 24; start += 5) {
            for (int end = start + 1; end < 5 * 24; ++end) {
                const QDateTime from = first.addSecs(start * 3600);
                const QDateTime to = first.addSecs(end * 3600 - 1);
                EXPECT_EQ(wholeDays(from, to), daysByMoving(from, to)) << name << ' ' << start << ' ' << end;
            }
        }
    }
}

TEST(AgeText, ADayOf23HoursIsADay)
{
    const ScopedTimeZone zone("Europe/Berlin");
    const QDateTime made = day(QStringLiteral("2014-03-30"));
    EXPECT_EQ(ageText(0, made, day(QStringLiteral("2014-03-31"))), QStringLiteral("1 days"));
    EXPECT_EQ(ageText(0, made, day(QStringLiteral("2014-03-31")).addMSecs(-1)), QStringLiteral("0 days"));
}

TEST(AgeText, AMonthEndsOnTheLastDayOfAShorterOne)
{
    const QDateTime made = day(QStringLiteral("2014-01-31"));
    const QDateTime end = day(QStringLiteral("2014-02-28"));
    EXPECT_EQ(ageText(1, made, end), QStringLiteral("1 months"));
    EXPECT_EQ(ageText(1, made, end.addSecs(-1)), QStringLiteral("0 months"));
}

TEST(AgeText, MonthsNeverFallAsTimePasses)
{
    const ScopedTimeZone zone("America/Sao_Paulo");
    const QDateTime made = day(QStringLiteral("2012-02-29"));
    qint64 former = wholeMonths(made, made.addDays(-800));
    EXPECT_EQ(former, -26);
    for (QDateTime now = made.addDays(-800); now < made.addDays(1600); now = now.addSecs(7 * 3600)) {
        const qint64 months = wholeMonths(made, now);
        EXPECT_LE(former, months);
        EXPECT_LE(months - former, 1);
        former = months;
    }
}

TEST(AgeText, YearsAreRoundedFromWholeMonths)
{
    const struct
    {
        qint64 months;
        QString text;
    } rows[] = {
        {0, QStringLiteral("0.0 years")},    {3, QStringLiteral("0.3 years")},
        {-3, QStringLiteral("-0.3 years")},  {12, QStringLiteral("1.0 years")},
        {13, QStringLiteral("1.1 years")},   {24, QStringLiteral("2.0 years")},
        {30, QStringLiteral("2.5 years")},   {34, QStringLiteral("2.8 years")},
        {120, QStringLiteral("10.0 years")},
    };
    for (const auto& row : rows)
        EXPECT_EQ(yearsText(row.months), row.text);
}

TEST(AgeText, NegativeAges)
{
    const QDateTime made = day(QStringLiteral("2014-05-12"));
    EXPECT_EQ(ageText(2, made, day(QStringLiteral("2014-02-12"))), QStringLiteral("-0.3 years"));
    EXPECT_EQ(ageText(1, made, day(QStringLiteral("2014-04-13"))), QStringLiteral("0 months"));
    EXPECT_EQ(ageText(0, made, day(QStringLiteral("2014-05-11"))), QStringLiteral("-1 days"));
    EXPECT_EQ(ageText(0, made, made.addSecs(-1)), QStringLiteral("0 days"));
}

TEST(AgeText, OtherModesCountDays)
{
    const QDateTime made = day(QStringLiteral("2014-05-12"));
    const QDateTime now = day(QStringLiteral("2014-06-12"));
    EXPECT_EQ(ageText(5, made, now), QStringLiteral("31 days"));
    EXPECT_EQ(ageText(-1, made, now), QStringLiteral("31 days"));
}

TEST(AgeText, ReachesAcrossTheWholeRangeOfDates)
{
    const QDateTime first = QDate(-292275000, 1, 1).startOfDay();
    const QDateTime last = QDate(292278000, 1, 1).startOfDay();
    EXPECT_EQ(wholeMonths(first, last), (292278000LL + 292275000LL - 1) * 12);
    EXPECT_EQ(wholeMonths(last, first), -(292278000LL + 292275000LL - 1) * 12);
}

} // namespace
