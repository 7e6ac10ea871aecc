#include <string>

#include <gtest/gtest.h>

#include "platform/linux/TimerSchedule.h"

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
    {"tolerantBesideStrict", {{0, 5, 5}, {0.01, 10, 0}}, {{10.01, {1, 2}}, {20.01, {1, 2}}, {30.01, {1, 2}}}},
    {"strictBesideTolerant", {{0, 10, 0}, {0.01, 5, 5}}, {{10, {2, 1}}, {20, {2, 1}}, {30, {2, 1}}}},
    {"slackJoinsStrictOnes", {{0, 10, 0}, {0.2, 10, 0}}, {{10.2, {1, 2}}, {20.2, {1, 2}}}},
    {"noSlackBeyondAQuarter", {{0, 10, 0}, {0.3, 10, 0}}, {{10, {1}}, {10.3, {2}}, {20, {1}}}},
    {"createdFarApart", {{0, 5, 5}, {2, 10, 0}}, {{5, {1}}, {12, {1, 2}}, {22, {1, 2}}, {32, {1, 2}}}},
    {"lessTolerantKeepsItsPhase", {{0, 5, 4}, {2, 10, 0}}, {{5, {1}}, {12, {1, 2}}, {15, {1}}, {22, {1, 2}}}},
    {"slackIsATenthOfShortOnes", {{0, 0.5, 0}, {0.2, 0.5, 0}}, {{0.5, {1}}, {0.7, {2}}, {1.0, {1}}}},
    {"samePlanInOrderOfCreation", {{0, 10, 0}, {0, 5, 5}, {5, 5, 0}}, {{10, {2, 1, 3}}}},
    {"negativeToleranceIsNone", {{0, 10, -8}, {0.2, 10, 0}}, {{10.2, {1, 2}}}},
};

INSTANTIATE_TEST_SUITE_P(Table, TimerScheduleTable, testing::ValuesIn(cases),
                         [](const auto& row) { return row.param.name; });

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
