#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "common/NumberTexts.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

TEST(ShortestText, KeepsPointAndSign)
{
    EXPECT_EQ(shortestText(30.0), QStringLiteral("30.0"));
    EXPECT_EQ(shortestText(-0.0), QStringLiteral("-0.0"));
    EXPECT_EQ(shortestText(2.5), QStringLiteral("2.5"));
    EXPECT_EQ(shortestText(85.9), QStringLiteral("85.9"));
}

TEST(ShortestText, HasAnExponentOnlyWhereItIsHardToReadWithout)
{
    EXPECT_EQ(shortestText(100000.0), QStringLiteral("100000.0"));
    EXPECT_EQ(shortestText(-3000000.0), QStringLiteral("-3000000.0"));
    EXPECT_EQ(shortestText(0.0001), QStringLiteral("0.0001"));
    EXPECT_EQ(shortestText(0.00001), QStringLiteral("1e-05"));
    EXPECT_EQ(shortestText(9999999999999998.0), QStringLiteral("9999999999999998.0"));
    EXPECT_EQ(shortestText(1e16), QStringLiteral("1e+16"));
    EXPECT_EQ(shortestText(1e300), QStringLiteral("1e+300"));
}

TEST(ShortestText, NotFinite)
{
    const double negativeNan = std::copysign(std::numeric_limits<double>::quiet_NaN(), -1.0);
    EXPECT_EQ(shortestText(negativeNan), QStringLiteral("nan"));
    EXPECT_EQ(shortestText(std::numeric_limits<double>::infinity()), QStringLiteral("inf"));
    EXPECT_EQ(shortestText(-std::numeric_limits<double>::infinity()), QStringLiteral("-inf"));
}

TEST(FixedText, ExactTiesGoToEven)
{
    EXPECT_EQ(fixedText(87.25, 1), QStringLiteral("87.2"));
    EXPECT_EQ(fixedText(86.5, 0), QStringLiteral("86"));
    EXPECT_EQ(fixedText(87.0, 1), QStringLiteral("87.0"));
    EXPECT_EQ(fixedText(-0.04, 1), QStringLiteral("-0.0"));
    EXPECT_EQ(fixedText(0.0 / 0.0 * -1.0, 1), QStringLiteral("nan"));
}

TEST(FormatMinutes, TruncatesTowardZero)
{
    EXPECT_EQ(formatMinutes(125), QStringLiteral("2:05"));
    EXPECT_EQ(formatMinutes(0), QStringLiteral("0:00"));
    EXPECT_EQ(formatMinutes(65535), QStringLiteral("1092:15"));
    EXPECT_EQ(formatMinutes(-65), QStringLiteral("-1:-5"));
}

} // namespace
