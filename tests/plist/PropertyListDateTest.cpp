#include "plist/PropertyListDate.h"

#include <limits>

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"
#include "tests/support/ScopedTimeZone.h"

using namespace quindle;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

qint64 milliseconds(double seconds)
{
    return dateFromSeconds(seconds).toDateTime().toMSecsSinceEpoch();
}

TEST(PropertyListDate, IsLocalAndHasMilliseconds)
{
    const ScopedTimeZone zone("Europe/Berlin");
    EXPECT_EQ(dateFromSeconds(0).toDateTime(), QDateTime(QDate(2001, 1, 1), QTime(1, 0)));
    EXPECT_EQ(dateFromSeconds(0).toDateTime().timeSpec(), Qt::LocalTime);
    const qint64 reference = 978307200000;
    EXPECT_EQ(milliseconds(86400.001), reference + 86400001);
    EXPECT_EQ(milliseconds(-0.5), reference - 500);
    EXPECT_EQ(milliseconds(3000000000.25), reference + 3000000000250);
}

TEST(PropertyListDate, BeyondWhatADateHoldsIsTheFarthest)
{
    EXPECT_EQ(milliseconds(infinity), milliseconds(9.0e12));
    EXPECT_EQ(milliseconds(1e300), milliseconds(9.0e12));
    EXPECT_EQ(milliseconds(-infinity), milliseconds(-9.0e12));
    EXPECT_TRUE(dateFromSeconds(infinity).toDateTime().isValid());
    EXPECT_GT(dateFromSeconds(infinity).toDateTime().date().year(), 200'000);
    EXPECT_LT(dateFromSeconds(-infinity).toDateTime().date().year(), -200'000);
    EXPECT_FALSE(dateFromSeconds(std::numeric_limits<double>::quiet_NaN()).isValid());
}

TEST(PropertyListDate, SecondsLeadBackToTheSameMillisecond)
{
    for (const qint64 milliseconds : {qint64{-62'135'596'800'000}, qint64{-1}, qint64{0}, qint64{1},
                                      qint64{1'393'716'600'123}, qint64{253'402'300'799'999}}) {
        const QDateTime date = QDateTime::fromMSecsSinceEpoch(milliseconds);
        EXPECT_EQ(dateFromSeconds(secondsOfDate(date)), QVariant(date)) << milliseconds;
    }
}

} // namespace
