#include "charts/TimeTicks.h"

#include <random>

#include <QDateTime>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"
#include "tests/support/ScopedTimeZone.h"

using namespace quindle;

namespace {

double utc(const char* text)
{
    const auto moment = QDateTime::fromString(QString::fromLatin1(text), QStringLiteral("yyyy-MM-dd HH:mm"));
    return static_cast<double>(QDateTime(moment.date(), moment.time(), Qt::UTC).toSecsSinceEpoch());
}

QString labels(const std::vector<TimeTick>& ticks)
{
    QStringList texts;
    for (const TimeTick& tick : ticks)
        texts << tick.label;
    return texts.join(u'|');
}

QString labels(const char* from, const char* to, int most)
{
    return labels(timeTicks({utc(from), utc(to)}, most, QLocale::c()));
}

struct TimeCase
{
    const char* from;
    const char* to;
    int most;
    const char* labels;
};

TEST(TimeTicks, AreByTheFinestStepThatFits)
{
    const ScopedTimeZone zone("UTC");
    const TimeCase cases[]{
        {"2026-11-22 10:00", "2026-11-22 10:04", 6, "10:00|10:01|10:02|10:03|10:04"},
        {"2026-11-22 10:01", "2026-11-22 10:14", 4, "10:05|10:10"},
        {"2026-11-22 10:00", "2026-11-22 12:00", 5, "10:00|10:30|11:00|11:30|12:00"},
        {"2026-11-22 18:00", "2026-11-23 18:00", 7, "20:00|23 Nov|04:00|08:00|12:00|16:00"},
        {"2026-11-22 18:00", "2026-11-23 18:00", 4, "23 Nov|12:00"},
        {"2026-11-16 12:00", "2026-11-23 12:00", 7, "17 Nov|18 Nov|19 Nov|20 Nov|21 Nov|22 Nov|23 Nov"},
        {"2026-10-23 12:00", "2026-11-22 12:00", 6, "26 Oct|2 Nov|9 Nov|16 Nov"},
        {"2025-11-22 12:00", "2026-11-22 12:00", 7, "2026|Mar|May|Jul|Sep|Nov"},
        {"2025-11-22 12:00", "2026-11-22 12:00", 5, "2026|Apr|Jul|Oct"},
        {"2024-01-10 12:00", "2026-11-22 12:00", 7, "Jul|2025|Jul|2026|Jul"},
        {"2023-12-31 12:00", "2028-02-22 12:00", 7, "2024|2025|2026|2027|2028"},
        {"2013-12-31 12:00", "2026-02-22 12:00", 7, "2014|2016|2018|2020|2022|2024|2026"},
        {"2013-12-31 12:00", "2026-02-22 12:00", 3, "2015|2020|2025"},
        {"1000-12-31 12:00", "9000-02-22 12:00", 5, "2000|4000|6000|8000"},
    };
    for (const TimeCase& each : cases)
        EXPECT_EQ(labels(each.from, each.to, each.most), QString::fromLatin1(each.labels)) << each.from;
}

TEST(TimeTicks, FollowTheWallClockAcrossItsChanges)
{
    const ScopedTimeZone zone("Europe/Berlin");
    // At 1:00 UTC two o'clock became three.
    EXPECT_EQ(labels("2026-03-29 00:00", "2026-03-29 04:00", 6),
              QStringLiteral("01:00|03:00|04:00|05:00|06:00"));
    // At 1:00 UTC three o'clock became two, so the hour from two came twice.
    EXPECT_EQ(labels("2026-10-24 23:00", "2026-10-25 03:00", 6),
              QStringLiteral("01:00|02:00|02:00|03:00|04:00"));
    EXPECT_EQ(labels("2026-10-25 01:00", "2026-10-25 01:30", 4), QStringLiteral("02:00|02:10|02:20|02:30"))
        << "inside of the hour that came twice";
    EXPECT_EQ(labels("2026-10-24 10:00", "2026-10-25 22:00", 8),
              QStringLiteral("12:00|18:00|25 Oct|06:00|12:00|18:00"));
    EXPECT_EQ(labels("2026-03-28 10:00", "2026-03-29 22:00", 8),
              QStringLiteral("12:00|18:00|29 Mar|06:00|12:00|18:00|30 Mar"));
}

TEST(TimeTicks, DaysBeginAtTheirFirstMoment)
{
    const ScopedTimeZone zone("America/Sao_Paulo"); // where the clock went forward at midnight
    const auto ticks = timeTicks({utc("2018-11-02 12:00"), utc("2018-11-06 12:00")}, 6, QLocale::c());
    EXPECT_EQ(labels(ticks), QStringLiteral("3 Nov|4 Nov|5 Nov|6 Nov"));
    EXPECT_EQ(ticks[1].moment, static_cast<qint64>(utc("2018-11-04 03:00"))) << "1:00 there";
}

TEST(TimeTicks, KnowZonesOfHalvesAndQuarters)
{
    const ScopedTimeZone zone("Asia/Kathmandu"); // 5:45 ahead
    EXPECT_EQ(labels("2026-11-22 00:00", "2026-11-22 04:00", 5), QStringLiteral("06:00|07:00|08:00|09:00"));
}

TEST(TimeTicks, WeeksBeginOnTheLocalesDay)
{
    const ScopedTimeZone zone("UTC");
    const AxisSpan month{utc("2026-10-23 12:00"), utc("2026-11-22 12:00")};
    const QLocale american(QLocale::English, QLocale::UnitedStates);
    EXPECT_EQ(labels(timeTicks(month, 6, american)), QStringLiteral("Oct 25|Nov 1|Nov 8|Nov 15|Nov 22"));
}

TEST(TimeTicks, AreAtLeastTwoAndNoMoreThanFit)
{
    const ScopedTimeZone zone("Europe/Berlin");
    std::mt19937 random(11); // the same numbers every time
    std::uniform_real_distribution<double> exponent(2.4, 9.4);
    std::uniform_real_distribution<double> start(utc("1975-01-01 00:00"), utc("2060-01-01 00:00"));
    for (int round = 0; round < 2'000; ++round) {
        const double from = start(random);
        const double length = std::pow(10, exponent(random));
        const int most = 2 + round % 10;
        const auto ticks = timeTicks({from, from + length}, most, QLocale::c());
        ASSERT_GE(ticks.size(), 2U) << std::fixed << from << ' ' << length << ' ' << most;
        ASSERT_LE(ticks.size(), static_cast<std::size_t>(most)) << std::fixed << from << ' ' << length;
        ASSERT_GE(static_cast<double>(ticks.front().moment), from);
        ASSERT_LE(static_cast<double>(ticks.back().moment), from + length);
    }
}

TEST(TimeTicks, StayInsideTheYearsThatDatesHave)
{
    const ScopedTimeZone zone("Pacific/Auckland");
    EXPECT_LE(timeTicks({-1e300, 1e300}, 12, QLocale::c()).size(), 12U);
    EXPECT_TRUE(timeTicks({1e300, 1e300}, 12, QLocale::c()).empty());
    EXPECT_TRUE(timeTicks({100, 50}, 12, QLocale::c()).empty());
}

} // namespace
