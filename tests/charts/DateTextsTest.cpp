#include "charts/DateTexts.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"
#include "tests/support/ScopedTimeZone.h"

using namespace quindle;

namespace {

const QLocale plain = QLocale::c();
const QLocale american(QLocale::English, QLocale::UnitedStates);
const QLocale british(QLocale::English, QLocale::UnitedKingdom);
const QLocale german(QLocale::German, QLocale::Germany);
const QLocale japanese(QLocale::Japanese, QLocale::Japan);

TEST(DateTexts, ClocksHaveNoSeconds)
{
    EXPECT_EQ(clockText({18, 5, 59}, plain), QStringLiteral("18:05"));
    EXPECT_EQ(clockText({18, 5, 59}, german), QStringLiteral("18:05"));
    EXPECT_EQ(clockText({18, 5, 59}, american), QStringLiteral("6:05 PM"));
}

TEST(DateTexts, DaysAreInTheLocalesOrder)
{
    const QDate day(2026, 11, 6);
    EXPECT_EQ(dayText(day, plain), QStringLiteral("6 Nov"));
    EXPECT_EQ(dayText(day, british), QStringLiteral("6 Nov"));
    EXPECT_EQ(dayText(day, american), QStringLiteral("Nov 6"));
}

TEST(DateTexts, DatesLeaveTheWeekdayOut)
{
    const QDate day(2025, 9, 14);
    EXPECT_EQ(dateText(day, plain), QStringLiteral("14 September 2025"));
    EXPECT_EQ(dateText(day, british), QStringLiteral("14 September 2025"));
    EXPECT_EQ(dateText(day, american), QStringLiteral("September 14, 2025"));
    EXPECT_EQ(dateText(day, german), QStringLiteral("14. September 2025"));
    EXPECT_EQ(dateText(day, japanese), QStringLiteral(u"2025\u5E749\u670814\u65E5"));
}

TEST(DateTexts, DigitsAreThoseOfTheFiguresBesideThem)
{
    const QLocale egyptian(QLocale::Arabic, QLocale::Egypt);
    const QDate day(2025, 9, 14);
    EXPECT_TRUE(clockText({18, 5, 59}, egyptian).startsWith(QStringLiteral("6:05")));
    EXPECT_TRUE(dayText(day, egyptian).startsWith(QStringLiteral("14 ")));
    EXPECT_TRUE(dateText(day, egyptian).startsWith(QStringLiteral("14 ")));
    EXPECT_TRUE(dateText(day, egyptian).endsWith(QStringLiteral(" 2025")));
}

TEST(DateTexts, MomentsAreLocal)
{
    const ScopedTimeZone zone("Asia/Tokyo");
    EXPECT_EQ(momentText(0, true, plain), QStringLiteral("1 January 1970, 09:00"));
    EXPECT_EQ(momentText(-10 * 3600, false, plain), QStringLiteral("31 December 1969"));
}

} // namespace
