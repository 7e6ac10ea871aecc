#include <algorithm>
#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "platform/linux/session/TimerSchedule.h"

using namespace quindle;

namespace {

struct TimerRow
{
    double start;
    double interval;
    double tolerance;
};

struct WakeUp
{
    double time;
    std::vector<int> fired;
};

struct Case
{
    std::string name;
    std::vector<TimerRow> timers;
    std::vector<WakeUp> wakeUps;
};

class TimerScheduleTable : public testing::TestWithParam<Case>
{
};

TEST_P(TimerScheduleTable, WakesAsSeldomAsItMay)
{
    TimerSchedule schedule;
    for (const TimerRow& timer : GetParam().timers)
        schedule.add(timer.start, timer.interval, timer.tolerance);
    for (const WakeUp& expected : GetParam().wakeUps) {
        const auto time = schedule.nextWakeUp();
        ASSERT_TRUE(time);
        EXPECT_DOUBLE_EQ(*time, expected.time);
        EXPECT_EQ(schedule.takeDue(*time), expected.fired);
    }
}

const Case cases[] = {
    {"alone", {{0, 5, 5}}, {{5, {1}}, {10, {1}}, {15, {1}}}},
    {"tolerantBesideStrict",
     {{0, 5, 5}, {0.01, 10, 0}},
     {{5, {1}}, {10.01, {1, 2}}, {20.01, {1, 2}}, {30.01, {1, 2}}}},
    {"strictBesideTolerant", {{0, 10, 0}, {0.01, 5, 5}}, {{10, {2, 1}}, {20, {2, 1}}, {30, {2, 1}}}},
    {"strictOnesShareNothing", {{0, 10, 0}, {0.1, 10, 0}}, {{10, {1}}, {10.1, {2}}, {20, {1}}}},
    {"equalTimesWhereSumsRound",
     {{0.1, 5, 5}, {0.1, 10, 0}},
     {{10.1, {1, 2}}, {20.1, {1, 2}}, {30.1, {1, 2}}, {40.1, {1, 2}}}},
    {"createdFarApart", {{0, 5, 5}, {2, 10, 0}}, {{5, {1}}, {12, {1, 2}}, {22, {1, 2}}, {32, {1, 2}}}},
    {"lessTolerantKeepsItsPhase", {{0, 5, 4}, {2, 10, 0}}, {{5, {1}}, {12, {1, 2}}, {15, {1}}, {22, {1, 2}}}},
    {"samePlanInOrderOfCreation", {{0, 10, 0}, {0, 5, 5}, {5, 5, 0}}, {{10, {2, 1, 3}}}},
    {"negativeToleranceIsNone", {{0, 10, -8}, {0.2, 10, 0}}, {{10, {1}}, {10.2, {2}}}},
    {"boundlessTolerance", {{0, 5, 1e300}, {1e6, 10, 0}}, {{1000010, {1, 2}}}},
};

INSTANTIATE_TEST_SUITE_P(Table, TimerScheduleTable, testing::ValuesIn(cases),
                         [](const auto& row) { return row.param.name; });

// The battery's timer beside the item's, from any distance of their starts, woken up to a millisecond late.
TEST(TimerSchedule, ATolerantTimerIsNeverMoreThanItsToleranceLate)
{
    for (double distance = 0; distance < 10; distance += 0.013) {
        TimerSchedule schedule;
        schedule.add(0, 5, 5);
        schedule.add(distance, 10, 0);
        double last = 0;
        int wakeUps = 0;
        while (*schedule.nextWakeUp() < 1000) {
            const double now = *schedule.nextWakeUp() + (wakeUps++ % 10) * 1e-4;
            const auto due = schedule.takeDue(now);
            if (std::count(due.begin(), due.end(), 1) == 0)
                continue;
            ASSERT_LE(now - last, 10.001) << distance;
            last = now;
        }
        EXPECT_LE(wakeUps, 102) << distance;
    }
}

TEST(TimerSchedule, PunctualTimersUseNoTolerance)
{
    TimerSchedule schedule;
    schedule.add(0, 5, 5);
    schedule.add(0, 10, 0);
    EXPECT_DOUBLE_EQ(*schedule.nextWakeUp(), 10);
    schedule.setPunctual(true);
    for (double time = 5; time < 100; time += 5) {
        EXPECT_DOUBLE_EQ(*schedule.nextWakeUp(), time);
        // Before the other, which shows what it has read.
        EXPECT_EQ(schedule.takeDue(time + 0.0005),
                  std::fmod(time, 10) == 0 ? std::vector({1, 2}) : std::vector{1});
    }
    schedule.setPunctual(false);
    EXPECT_DOUBLE_EQ(*schedule.nextWakeUp(), 100);
    EXPECT_EQ(schedule.takeDue(100), std::vector({1, 2}));
    EXPECT_DOUBLE_EQ(*schedule.nextWakeUp(), 110);
}

TEST(TimerSchedule, KnowsTheWakeUpsAheadWhereTicksMayBeLeftOut)
{
    TimerSchedule schedule;
    schedule.add(0, 5, 5);
    schedule.add(2, 10, 0);
    EXPECT_EQ(schedule.restfulWakeUps(30), std::vector<double>({5, 12, 22, 32}));
    schedule.takeDue(5);
    EXPECT_EQ(schedule.restfulWakeUps(30), std::vector<double>({12, 22, 32, 42}));
    EXPECT_DOUBLE_EQ(*schedule.nextWakeUp(), 12); // the next one stays, although it was given ahead
    schedule.setPunctual(true);
    EXPECT_TRUE(schedule.restfulWakeUps(30).empty());
    schedule.setPunctual(false);
    const int quick = schedule.add(0, 0.5, 0);
    EXPECT_TRUE(schedule.restfulWakeUps(30).empty());
    schedule.remove(quick);
    EXPECT_EQ(schedule.restfulWakeUps(10).size(), 2U);
    EXPECT_TRUE(TimerSchedule().restfulWakeUps(30).empty());
}

TEST(TimerSchedule, ATickThatWasPutOffComesAtOnceWhenPunctual)
{
    TimerSchedule schedule;
    schedule.add(0, 5, 5);
    schedule.add(0, 10, 0);
    schedule.setPunctual(true);
    EXPECT_DOUBLE_EQ(*schedule.nextWakeUp(), 5);
    EXPECT_EQ(schedule.takeDue(8), std::vector{1});
    EXPECT_DOUBLE_EQ(*schedule.nextWakeUp(), 10);
}

TEST(TimerSchedule, NothingWithoutTimers)
{
    TimerSchedule schedule;
    EXPECT_FALSE(schedule.nextWakeUp());
    EXPECT_TRUE(schedule.takeDue(100).empty());
    schedule.remove(schedule.add(0, 5, 0));
    schedule.remove(99);
    EXPECT_FALSE(schedule.nextWakeUp());
}

TEST(TimerSchedule, NotDueBeforeItsTime)
{
    TimerSchedule schedule;
    schedule.add(100, 5, 0);
    EXPECT_TRUE(schedule.takeDue(104.999).empty());
    EXPECT_EQ(schedule.takeDue(105), std::vector<int>{1});
    EXPECT_TRUE(schedule.takeDue(105).empty());
}

TEST(TimerSchedule, LatenessDoesNotAddUp)
{
    TimerSchedule schedule;
    schedule.add(0, 5, 0);
    EXPECT_EQ(schedule.takeDue(5.2), std::vector<int>{1});
    EXPECT_DOUBLE_EQ(*schedule.nextWakeUp(), 10);
}

TEST(TimerSchedule, MissedTicksArePassedOver)
{
    TimerSchedule schedule;
    schedule.add(0, 5, 0);
    EXPECT_EQ(schedule.takeDue(3601), std::vector<int>{1});
    EXPECT_DOUBLE_EQ(*schedule.nextWakeUp(), 3605);
}

TEST(TimerSchedule, TickAfterNowEvenWhereQuotientsRound)
{
    TimerSchedule schedule;
    schedule.add(0, 0.1, 0);
    for (int tick = 0; tick < 1000; ++tick) {
        const double now = *schedule.nextWakeUp();
        EXPECT_EQ(schedule.takeDue(now).size(), 1u);
        EXPECT_GT(*schedule.nextWakeUp(), now);
    }
    EXPECT_NEAR(*schedule.nextWakeUp(), 100.1, 1e-9);
}

TEST(TimerSchedule, SenselessIntervalsDoNotSpinForEver)
{
    for (const double interval : {0.0, -1.0, 0.0 / 0.0}) {
        TimerSchedule schedule;
        schedule.add(0, interval, 0);
        EXPECT_DOUBLE_EQ(*schedule.nextWakeUp(), 0.0001);
        EXPECT_EQ(schedule.takeDue(10).size(), 1u);
        EXPECT_GT(*schedule.nextWakeUp(), 10);
    }
}

} // namespace
