#include "application/pages/SampleTable.h"

#include <QLocale>
#include <gtest/gtest.h>

using namespace quindle;

namespace {

const std::vector<Sample> samples{{1'795'000'000, 66.666, -12.4, SampleState::Discharging},
                                  {1'795'000'060, 66, std::nullopt, SampleState::Unknown},
                                  {1'795'000'120, 100, 0, SampleState::Full}};

TEST(SampleTable, HasALineForEachSample)
{
    EXPECT_EQ(sampleTable(samples, {0, 2e9}), "Moment,Charge,Power,State\r\n"
                                              "2026-11-18T11:06:40Z,66.67,-12.40,discharging\r\n"
                                              "2026-11-18T11:07:40Z,66.00,,unknown\r\n"
                                              "2026-11-18T11:08:40Z,100.00,0.00,full\r\n");
}

TEST(SampleTable, LeavesOutWhatIsNotShown)
{
    EXPECT_EQ(sampleTable(samples, {1'795'000'060, 1'795'000'119}).count('\n'), 2);
    EXPECT_EQ(sampleTable({}, {0, 2e9}), "Moment,Charge,Power,State\r\n");
}

TEST(SampleTable, IsTheSameInEveryLocale)
{
    const QByteArray before = sampleTable(samples, {0, 2e9});
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    const QByteArray german = sampleTable(samples, {0, 2e9});
    QLocale::setDefault(QLocale::c());
    EXPECT_EQ(german, before);
}

} // namespace
