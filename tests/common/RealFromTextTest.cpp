#include "common/RealFromText.h"

#include <bit>
#include <cmath>

#include <QByteArray>
#include <QtGlobal>

#include <gtest/gtest.h>

#include "tests/support/NotFinite.h"

using namespace quindle;

namespace {

struct RealRow
{
    const char* text;
    double number;
};

constexpr RealRow realRows[] = {
    {"0", 0.0},
    {"-0", -0.0},
    {"00001", 1.0},
    {"1.", 1.0},
    {".5", 0.5},
    {"-.5", -0.5},
    {"1e5", 100000.0},
    {"1E+5", 100000.0},
    {"1e-05", 0.00001},
    {"9007199254740993", 9007199254740992.0}, // a tie goes to the even digit
    {"1.7976931348623157e308", 1.7976931348623157e308},
    {"1.7976931348623158e308", 1.7976931348623157e308},
    // Beyond the range
    {"1.7976931348623159e308", infinity},
    {"1e309", infinity},
    {"-1e400", -infinity},
    {"1e999999999999999999999", infinity},
    {"1e-400", 0.0},
    {"-1e-400", 0.0},
    {"-1e-999999999999999999999", 0.0},
    {"0e999999999999999999999", 0.0},
    // The smallest
    {"2.2250738585072011e-308", 2.2250738585072011e-308},
    {"4.9e-324", 4.9406564584124654e-324},
    {"2.5e-324", 4.9406564584124654e-324},
    {"2.4e-324", 0.0},
    // Words
    {"inf", infinity},
    {"-inf", -infinity},
    {"INF", infinity},
    {"-Infinity", -infinity},
};

quint64 bitsOf(double number)
{
    return std::bit_cast<quint64>(number);
}

TEST(RealFromText, Numbers)
{
    for (const auto& [text, number] : realRows) {
        const auto read = realFromText(text);
        ASSERT_TRUE(read.has_value()) << text;
        EXPECT_EQ(bitsOf(*read), bitsOf(number)) << text << " is " << *read;
    }
}

TEST(RealFromText, ManyDigits)
{
    const QByteArray zeros(400, '0');
    EXPECT_EQ(realFromText(QByteArray(1000, '9')), infinity);
    EXPECT_EQ(realFromText(zeros + "1"), 1.0);
    EXPECT_EQ(realFromText("1" + zeros + "e-400"), 1.0);
    EXPECT_EQ(realFromText("0." + zeros + "1e401"), 1.0);
    EXPECT_EQ(realFromText("0." + zeros + "1"), 0.0);
}

TEST(RealFromText, WhatIsNotANumberHasItsSign)
{
    for (const char* text : {"nan", "NaN", "nan()", "nan(ab_1)"}) {
        EXPECT_TRUE(std::isnan(realFromText(text).value_or(0))) << text;
        EXPECT_FALSE(std::signbit(realFromText(text).value_or(-1))) << text;
    }
    EXPECT_TRUE(std::isnan(realFromText("-nan").value_or(0)));
    EXPECT_TRUE(std::signbit(realFromText("-nan").value_or(0)));
}

TEST(RealFromText, OtherTexts)
{
    for (const char* text :
         {"",       "-",    "--1",    "+1",     "-+1",      ".",        "-.",    "e5",      "1e",
          "1e+",    " 1",   "1 ",     "1\n",    "\t1",      "1,5",      "1.5.5", "1e1e1",   "0x10",
          "-0x1p3", "1p3",  "0X1F",   "1f",     "1_000",    "1 000",    "infi",  "infinit", "in",
          "nan(",   "nan)", "nan(-)", "nan()x", "\xc3\xa9", "\xd9\xa1", "one"})
        EXPECT_FALSE(realFromText(text).has_value()) << text;
    EXPECT_FALSE(realFromText(QByteArray("1\0002", 3)).has_value());
}

} // namespace
