#include "records/Thinning.h"

#include <gtest/gtest.h>

#include "tests/support/Durations.h"

using namespace quindle;

namespace {

constexpr qint64 now = 20000 * day + 12 * hour + 34 * 60; // some day at 12:34
constexpr qint64 oldHour = now - 40 * day - 34 * 60;      // the beginning of an hour that is a value
constexpr qint64 oldDay = 20000 * day - 400 * day;        // the beginning of such a day

constexpr SampleState charging = SampleState::Charging;
constexpr SampleState discharging = SampleState::Discharging;
constexpr SampleState full = SampleState::Full;

StoredSample taken(qint64 moment, double charge, std::optional<double> power = std::nullopt,
                   SampleState state = discharging)
{
    return {{moment, charge, power, state}, SampleSource::Helper, 0};
}

StoredSample value(qint64 moment, double charge, qint64 span, std::optional<double> power = std::nullopt,
                   SampleState state = discharging)
{
    return {{moment, charge, power, state}, SampleSource::Helper, span};
}

using StoredSamples = std::vector<StoredSample>;

TEST(Thinning, WhatIsYoungStaysAsItWasTaken)
{
    const StoredSamples samples{taken(hourlyBefore(now), 50), taken(hourlyBefore(now) + 60, 49),
                                taken(now, 20)};
    EXPECT_EQ(thinned(samples, now), samples);
}

TEST(Thinning, TheBoundariesAreWholeHoursAndDays)
{
    EXPECT_EQ(hourlyBefore(now), now - 30 * day - 34 * 60);
    EXPECT_EQ(dailyBefore(now), 20000 * day - 365 * day);
    EXPECT_EQ(hourlyBefore(now) % hour, 0);
    EXPECT_EQ(thinned({taken(hourlyBefore(now) - 1, 50)}, now),
              StoredSamples{value(hourlyBefore(now) - hour, 50, hour)});
    EXPECT_EQ(thinned({taken(dailyBefore(now) - 1, 50)}, now),
              StoredSamples{value(dailyBefore(now) - day, 50, day)});
}

struct Row
{
    const char* what;
    StoredSamples samples;
    StoredSample kept;
};

TEST(Thinning, OneValueStandsForAnHour)
{
    const Row rows[] = {
        {"one sample", {taken(oldHour + 1800, 50, -8)}, value(oldHour, 50, hour, -8)},
        {"each counts as long as it held",
         {taken(oldHour, 60, -6), taken(oldHour + 600, 40, -12), taken(oldHour + 900, 40, -12)},
         value(oldHour, 140.0 / 3, hour, -10)}, // 600 s, and 300 + 900 s
        {"silence counts a quarter of an hour at most",
         {taken(oldHour, 80, -10), taken(oldHour + 2700, 40, 20, charging)},
         value(oldHour, 60, hour, 5)}, // 900 s each
        {"the longest state",
         {taken(oldHour, 50, std::nullopt, full), taken(oldHour + 60, 50, std::nullopt, charging),
          taken(oldHour + 400, 50, std::nullopt, full), taken(oldHour + 600, 50, std::nullopt, discharging),
          taken(oldHour + 800, 50, std::nullopt, full), taken(oldHour + 810, 50, std::nullopt, charging),
          taken(oldHour + 820, 50, std::nullopt, SampleState::Unknown),
          taken(oldHour + 1100, 50, std::nullopt, full)},
         value(oldHour, 50, hour, std::nullopt, full)},
        {"power is the mean of where it is known",
         {taken(oldHour, 50, -10), taken(oldHour + 300, 50), taken(oldHour + 600, 50, -20),
          taken(oldHour + 900, 50)},
         value(oldHour, 50, hour, -15)},
        {"a sample late for its value",
         {value(oldHour, 50, hour, -10), taken(oldHour + 2700, 30, -30)},
         value(oldHour, 46, hour, -14)}, // an hour, and 900 s
    };
    for (const Row& row : rows) {
        const StoredSamples kept = thinned(row.samples, now);
        ASSERT_EQ(kept.size(), 1U) << row.what;
        EXPECT_NEAR(kept[0].sample.charge, row.kept.sample.charge, 1e-9) << row.what;
        EXPECT_EQ(kept[0].sample.power.has_value(), row.kept.sample.power.has_value()) << row.what;
        EXPECT_NEAR(kept[0].sample.power.value_or(0), row.kept.sample.power.value_or(0), 1e-9) << row.what;
        EXPECT_EQ(kept[0].sample.state, row.kept.sample.state) << row.what;
        EXPECT_EQ(kept[0].sample.moment, row.kept.sample.moment) << row.what;
        EXPECT_EQ(kept[0].span, row.kept.span) << row.what;
    }
}

TEST(Thinning, HoursBecomeDays)
{
    const StoredSamples hours{value(oldDay, 100, hour, -5, full), value(oldDay + hour, 80, hour, -10),
                              value(oldDay + 5 * hour, 60, hour, -15), value(oldDay + day, 40, hour)};
    const StoredSamples days{value(oldDay, 80, day, -10), value(oldDay + day, 40, day)};
    EXPECT_EQ(thinned(hours, now), days);
}

TEST(Thinning, TheOtherServicesMarkIsKept)
{
    StoredSamples samples{taken(oldHour, 50), taken(oldHour + 60, 49)};
    EXPECT_EQ(thinned(samples, now)[0].source, SampleSource::Helper);
    samples[1].source = SampleSource::UPower;
    EXPECT_EQ(thinned(samples, now)[0].source, SampleSource::UPower);
}

TEST(Thinning, TwiceChangesNothing)
{
    StoredSamples samples;
    for (qint64 moment = oldDay; moment < now; moment += 7 * 60)
        samples.push_back(taken(moment, static_cast<double>(moment % 101), -static_cast<double>(moment % 13),
                                static_cast<SampleState>(moment % 3)));
    const StoredSamples once = thinned(samples, now);
    EXPECT_LT(once.size(), 35U + 336U * 24U + 31U * 24U * 9U);
    EXPECT_EQ(thinned(once, now), once);
}

TEST(Thinning, ADayAtATimeIsAsGoodAsAtOnce)
{
    StoredSamples samples;
    for (qint64 moment = oldDay; moment < oldDay + 50 * day; moment += 900)
        samples.push_back(taken(moment, static_cast<double>(moment / 900 % 101)));
    StoredSamples daily = samples;
    for (qint64 moment = oldDay; moment <= now; moment += day)
        daily = thinned(daily, moment);
    const StoredSamples once = thinned(samples, now);
    ASSERT_EQ(daily.size(), once.size());
    for (std::size_t index = 0; index < once.size(); ++index)
        EXPECT_NEAR(daily[index].sample.charge, once[index].sample.charge, 1e-9) << index;
}

TEST(Thinning, TheDaysWorkIsDoneOnceADay)
{
    EXPECT_EQ(dailyTurn(std::nullopt, now), DailyTurn::Note);
    EXPECT_EQ(dailyTurn(now, now), DailyTurn::Wait);
    EXPECT_EQ(dailyTurn(now - day + 1, now), DailyTurn::Wait);
    EXPECT_EQ(dailyTurn(now - day, now), DailyTurn::Go);
    EXPECT_EQ(dailyTurn(now - 60 * day, now), DailyTurn::Go);
}

// A clock that is years ahead for an hour must not make everything old.
TEST(Thinning, AJumpOfTheClockIsOnlyRemembered)
{
    EXPECT_EQ(dailyTurn(now - 60 * day - 1, now), DailyTurn::Note);
    EXPECT_EQ(dailyTurn(now + 1, now), DailyTurn::Note);
}

} // namespace
