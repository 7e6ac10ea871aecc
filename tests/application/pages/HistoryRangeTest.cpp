#include "application/pages/HistoryRange.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

TEST(HistoryRange, ReachesBackFromNow)
{
    constexpr qint64 now = 1'795'000'000;
    constexpr qint64 day = 86400;
    EXPECT_EQ(historyRangeStart(HistoryRange::Day, now), now - day);
    EXPECT_EQ(historyRangeStart(HistoryRange::Week, now), now - 7 * day);
    EXPECT_EQ(historyRangeStart(HistoryRange::Month, now), now - 30 * day);
    EXPECT_EQ(historyRangeStart(HistoryRange::Year, now), now - 365 * day);
    EXPECT_EQ(historyRangeStart(HistoryRange::All, now), 0);
}

TEST(HistoryRange, EachHasATitleAndSaysWhatItIs)
{
    EXPECT_EQ(historyRangeTitles().size(), static_cast<int>(HistoryRange::All) + 1);
    EXPECT_EQ(historyRangeText(HistoryRange::Day), QStringLiteral("last 24 hours"));
    EXPECT_EQ(historyRangeText(HistoryRange::All), QStringLiteral("whole history"));
}

} // namespace
