#include "samples/Sample.h"

#include <cmath>
#include <limits>
#include <ostream>

#include <QLocale>

#include <gtest/gtest.h>

using namespace quindle;

namespace {

struct Case
{
    Sample sample;
    const char* line;
};

constexpr qint64 endOfYear9999 = 253'402'300'799;

const Case cases[] = {
    {{1'763'806'800, 66.67, -12.4, SampleState::Discharging}, "1763806800 66.67 -12.4 discharging\n"},
    {{1'763'806'860, 66.6, 30, SampleState::Charging}, "1763806860 66.6 30 charging\n"},
    {{0, 100, 0, SampleState::Full}, "0 100 0 full\n"},
    {{1, 0, std::nullopt, SampleState::Unknown}, "1 0 - unknown\n"},
    {{1, 10, 100, SampleState::Unknown}, "1 10 100 unknown\n"},
    {{1, 0.05, -0.01, SampleState::Discharging}, "1 0.05 -0.01 discharging\n"},
    {{endOfYear9999, 50, 1234.5, SampleState::Charging}, "253402300799 50 1234.5 charging\n"},
};

TEST(SampleLine, IsWrittenAndReadBack)
{
    for (const Case& entry : cases) {
        EXPECT_EQ(sampleLine(entry.sample), entry.line);
        EXPECT_EQ(sampleFromLine(entry.line), entry.sample) << entry.line;
        EXPECT_EQ(sampleFromLine(QByteArrayView(entry.line).chopped(1)), entry.sample) << entry.line;
    }
}

TEST(SampleLine, RoundsToTwoDecimals)
{
    EXPECT_EQ(sampleLine({1, 200.0 / 3, -1.0 / 3, SampleState::Discharging}), "1 66.67 -0.33 discharging\n");
    EXPECT_EQ(sampleLine({1, 99.999, -0.001, SampleState::Full}), "1 100 0 full\n");
}

TEST(SampleLine, SaysOfAPowerThatIsNoNumberThatItIsNotKnown)
{
    for (const double power : {std::nan(""), std::numeric_limits<double>::infinity()})
        EXPECT_EQ(sampleLine({1, 50, power, SampleState::Charging}), "1 50 - charging\n");
}

TEST(SampleLine, KnowsNoLocale)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_EQ(sampleLine({1, 50.5, -1234.5, SampleState::Charging}), "1 50.5 -1234.5 charging\n");
    EXPECT_EQ(sampleFromLine("1 50,5 1 charging"), std::nullopt);
    EXPECT_EQ(sampleFromLine("1 50.5 1 charging")->charge, 50.5);
    QLocale::setDefault(before);
}

TEST(SampleLine, OfASampleThatCannotBeIsRefused)
{
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double charge : {-0.1, 100.1, infinity, -infinity, std::nan("")})
        EXPECT_EQ(sampleFromLine(sampleLine({1, charge, 1, SampleState::Charging})), std::nullopt) << charge;
    for (const qint64 moment : {qint64{-1}, endOfYear9999 + 1, std::numeric_limits<qint64>::max()})
        EXPECT_EQ(sampleFromLine(sampleLine({moment, 50, 1, SampleState::Charging})), std::nullopt) << moment;
}

TEST(SampleLine, AnythingElseIsRefused)
{
    for (const char* line : {
             "",
             "\n",
             "1",
             "1 50 1",
             "1 50 1 ",
             "1 50 1 charging ",
             "1 50 1 charging extra",
             " 1 50 1 charging",
             "1  50 1 charging",
             "1\t50 1 charging",
             "1 50 1 charging\r\n",
             "1 50 1 charging\n\n",
             "1 50 1 Charging",
             "1 50 1 charged",
             "1.5 50 1 charging",
             "+1 50 1 charging",
             "-1 50 1 charging",
             "0x1 50 1 charging",
             "9223372036854775808 50 1 charging",
             "1 - 1 charging",
             "1 1e1 1 charging",
             "1 inf 1 charging",
             "1 nan 1 charging",
             "1 50. 1 charging",
             "1 .5 1 charging",
             "1 50.123 1 charging",
             "1 5.0.0 1 charging",
             "1 +50 1 charging",
             "1 50 -- charging",
             "1 50 -. charging",
             "1 50 1e3 charging",
             "1 50 1234567890123 charging",
         })
        EXPECT_EQ(sampleFromLine(line), std::nullopt) << line;
    EXPECT_EQ(sampleFromLine(QByteArrayView("1 50 1 charging\0", 16)), std::nullopt);
    EXPECT_EQ(sampleFromLine(QByteArray("1 5\xd9\xa0 1 charging")), std::nullopt)
        << "digits of another script";
}

TEST(SampleState, HasANameAndANameAState)
{
    for (const auto state :
         {SampleState::Discharging, SampleState::Charging, SampleState::Full, SampleState::Unknown})
        EXPECT_EQ(sampleStateNamed(sampleStateName(state)), state);
    EXPECT_EQ(sampleStateNamed("Full"), std::nullopt);
    EXPECT_EQ(sampleStateNamed(""), std::nullopt);
}

} // namespace
