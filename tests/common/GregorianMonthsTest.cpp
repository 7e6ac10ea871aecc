#include <limits>

#include <gtest/gtest.h>

#include "common/GregorianMonths.h"

using namespace quindle;

namespace {

TEST(GregorianMonths, CountThroughEveryYear)
{
    EXPECT_EQ(monthNumber(QDate(1, 1, 1)), 12);
    EXPECT_EQ(monthNumber(QDate(-1, 12, 31)), 11); // the year before year 1
    EXPECT_EQ(monthNumber(2014, 0), monthNumber(2013, 12));
    EXPECT_EQ(monthNumber(2014, 15), monthNumber(2015, 3));
    for (qint64 number = -3000; number < 30000; ++number)
        ASSERT_EQ(monthNumber(firstOfMonth(number)), number);
}

TEST(GregorianMonths, NeighbouringMonthsTouch)
{
    for (qint64 number = -30; number < 30000; ++number)
        ASSERT_EQ(firstOfMonth(number).addDays(firstOfMonth(number).daysInMonth()), firstOfMonth(number + 1));
}

TEST(GregorianMonths, FarAwayIsTheFirstOrLastYear)
{
    for (const qint64 year : {std::numeric_limits<qint64>::max(), qint64{1} << 54, qint64{300000000}}) {
        EXPECT_EQ(monthNumber(year, 1), monthNumber(292278993, 1));
        EXPECT_EQ(monthNumber(-year, 1), monthNumber(-292275054, 1));
    }
    EXPECT_TRUE(startOfLocalDay(firstOfMonth(std::numeric_limits<qint64>::max())).isValid());
    EXPECT_TRUE(startOfLocalDay(firstOfMonth(std::numeric_limits<qint64>::min())).isValid());
}

} // namespace
