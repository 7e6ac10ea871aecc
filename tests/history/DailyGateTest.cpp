#include "history/DailyGate.h"

#include <gtest/gtest.h>

#include <QTimeZone>

using namespace quindle;

namespace {

TEST(DailyGate, StrictlyMoreThanADayOfSeconds)
{
    const QDateTime mark(QDate(2014, 3, 30), QTime(0, 0), QTimeZone("Europe/Berlin")); // a day of 23 hours
    const std::pair<qint64, bool> cases[]{
        {0, false},         {86'399'999, false},  {86'400'000, false},       {86'400'001, true},
        {86'401'000, true}, {-86'401'000, false}, {10 * 86'400'000LL, true},
    };
    for (const auto& [milliseconds, isDue] : cases)
        EXPECT_EQ(isDailyUploadDue(mark, mark.addMSecs(milliseconds)), isDue) << milliseconds;
}

} // namespace
