// A date before the first year that months are counted in seemed to be months later than one after it.

#include <gtest/gtest.h>

#include "battery/ManufactureDate.h"
#include "common/AgeText.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

TEST(AgeBeforeFirstYear, MonthsHaveTheSignOfTheDays)
{
    const QDateTime made = decodeManufactureDate(static_cast<qint64>(0xb530348634'86b733));
    const QDateTime now = decodeManufactureDate(static_cast<qint64>(0xff10ffcb'ffff0000));
    ASSERT_LT(now, made);
    EXPECT_LT(wholeDays(made, now), 0);
    EXPECT_LE(wholeMonths(made, now), 0);
}

} // namespace
