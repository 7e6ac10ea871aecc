#include "application/pages/SampleChart.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

using namespace quindle;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr qint64 start = 1'795'000'000;

struct Stretch
{
    int minutes;
    SampleState state;
    double change; ///< percent a minute
    int pauseBehind = 1;
};

/// A sample a minute.
std::vector<Sample> samplesOf(const std::vector<Stretch>& stretches)
{
    std::vector<Sample> samples;
    qint64 moment = start;
    double charge = 50;
    for (const Stretch& stretch : stretches) {
        for (int minute = 0; minute < stretch.minutes; ++minute) {
            const double power = stretch.state == SampleState::Discharging ? -12.4 : 30;
            samples.push_back({moment, charge += stretch.change, power, stretch.state});
            moment += 60;
        }
        moment += (stretch.pauseBehind - 1) * 60;
    }
    return samples;
}

constexpr AxisSpan day{double(start), double(start + 86400)};

TEST(SampleChart, ChargeHasAFixedAxis)
{
    const auto samples = samplesOf({{30, SampleState::Discharging, -0.2}});
    const ChartContent chart = sampleChart(samples, SampleQuantity::Charge, day);
    EXPECT_EQ(chart.values, (AxisSpan{0, 100}));
    EXPECT_EQ(chart.moments, day);
    ASSERT_EQ(chart.series.size(), 1U);
    EXPECT_EQ(chart.series[0].points.front(), (ChartPoint{start, 49.8}));
    EXPECT_EQ(chart.readingText({0, 0}), QStringLiteral(u"49.8 % \u00B7 12.4 W \u00B7 discharging"));
}

TEST(SampleChart, WhatUPowerHasRecordedIsMarked)
{
    const auto samples = samplesOf({{10, SampleState::Charging, 0.2}, {20, SampleState::Discharging, -0.2}});
    const ChartContent chart = sampleChart(samples, SampleQuantity::Charge, day, start + 600);
    ASSERT_EQ(chart.series.size(), 2U);
    EXPECT_TRUE(chart.series[0].isQuiet);
    EXPECT_FALSE(chart.series[1].isQuiet);
    EXPECT_EQ(chart.series[0].points.size(), 10U);
    EXPECT_EQ(chart.series[1].points.front().moment, start + 600);
    EXPECT_EQ(chart.readingText({0, 0}),
              QStringLiteral(u"50.2 % \u00B7 30.0 W \u00B7 charging \u00B7 from UPower"));
    EXPECT_EQ(chart.readingText({1, 0}), QStringLiteral(u"51.8 % \u00B7 12.4 W \u00B7 discharging"));
    EXPECT_EQ(chart.shaded.size(), 1U);
    const ChartContent all = sampleChart(samples, SampleQuantity::Charge, day, start + 86400);
    ASSERT_EQ(all.series.size(), 2U) << "all of it";
    EXPECT_TRUE(all.series[1].points.empty());
}

TEST(SampleChart, PowerHasNoSignAndLeavesOutWhatIsNotKnown)
{
    auto samples = samplesOf({{3, SampleState::Discharging, -0.2}, {3, SampleState::Charging, 0.5}});
    samples[1].power.reset();
    const ChartContent chart = sampleChart(samples, SampleQuantity::Power, day);
    EXPECT_FALSE(chart.values.has_value());
    ASSERT_EQ(chart.series[0].points.size(), 5U);
    EXPECT_EQ(chart.series[0].points[0].value, 12.4);
    EXPECT_EQ(chart.series[0].points[1].moment, start + 120);
    EXPECT_EQ(chart.series[0].points[4].value, 30);
    EXPECT_EQ(chart.readingText({0, 1}), QStringLiteral(u"49.4 % \u00B7 12.4 W \u00B7 discharging"));
}

TEST(SampleChart, SleepIsAGapInAnyStateThatChanges)
{
    const auto samples =
        samplesOf({{10, SampleState::Discharging, -0.2, 480}, {10, SampleState::Discharging, -0.2}});
    EXPECT_THAT(gapsOf(samples), ElementsAre(9));
}

TEST(SampleChart, ARestIsNoGap)
{
    auto samples = samplesOf({{10, SampleState::Full, 0, 480}, {10, SampleState::Full, 0}});
    EXPECT_THAT(gapsOf(samples), IsEmpty());
    for (std::size_t index = 10; index < samples.size(); ++index)
        samples[index].charge -= 3;
    EXPECT_THAT(gapsOf(samples), ElementsAre(9)) << "it was used meanwhile";
    samples = samplesOf({{10, SampleState::Full, 0, 480}, {10, SampleState::Discharging, 0}});
    EXPECT_THAT(gapsOf(samples), ElementsAre(9));
}

TEST(SampleChart, ShadesChargingUpToItsEnd)
{
    const auto samples = samplesOf({{5, SampleState::Discharging, -0.2},
                                    {5, SampleState::Charging, 0.5},
                                    {5, SampleState::Discharging, -0.2},
                                    {5, SampleState::Charging, 0.5}});
    EXPECT_THAT(chargingSpans(samples, {}),
                ElementsAre(ShadedSpan{start + 300, start + 600}, ShadedSpan{start + 900, start + 1140}));
}

TEST(SampleChart, ShadesNoSleep)
{
    const auto samples = samplesOf({{5, SampleState::Charging, 0.5, 480}, {5, SampleState::Charging, 0.5}});
    const auto gaps = gapsOf(samples);
    EXPECT_THAT(gaps, ElementsAre(4));
    EXPECT_THAT(
        chargingSpans(samples, gaps),
        ElementsAre(ShadedSpan{start, start + 240}, ShadedSpan{samples[5].moment, samples.back().moment}));
}

TEST(SampleChart, MarksWhatIsNow)
{
    const auto samples = samplesOf({{10, SampleState::Discharging, -0.2}});
    const auto last = static_cast<double>(samples.back().moment);
    EXPECT_TRUE(sampleChart(samples, SampleQuantity::Charge, {0, last + 600}).series[0].endsWithDot);
    EXPECT_FALSE(sampleChart(samples, SampleQuantity::Charge, {0, last + 601}).series[0].endsWithDot);
}

TEST(SampleChart, OfNothingSaysSo)
{
    const ChartContent chart = sampleChart({}, SampleQuantity::Charge, day);
    EXPECT_FALSE(hasPoints(chart));
    EXPECT_FALSE(chart.emptyText.isEmpty());
}

} // namespace
