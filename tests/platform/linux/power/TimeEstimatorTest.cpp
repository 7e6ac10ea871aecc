#include <gtest/gtest.h>

#include "platform/linux/power/TimeEstimator.h"

using namespace quindle;
using namespace std::chrono_literals;

namespace {

using Direction = TimeEstimator::Direction;

TEST(TimeEstimator, KnowsNothingWithoutSamples)
{
    TimeEstimator estimator;
    estimator.setState(false, Direction::Discharging);
    EXPECT_EQ(estimator.minutesUntilEmpty(), std::nullopt);
    EXPECT_EQ(estimator.minutesUntilFull(), std::nullopt);
    EXPECT_TRUE(estimator.wantsSample(0s));
}

TEST(TimeEstimator, WantsOneSampleASecond)
{
    TimeEstimator estimator;
    estimator.addSample({5s, 1000, 2000, 100});
    EXPECT_FALSE(estimator.wantsSample(5999ms));
    EXPECT_TRUE(estimator.wantsSample(6s));
}

TEST(TimeEstimator, AveragesTheLastMinute)
{
    TimeEstimator estimator;
    estimator.setState(false, Direction::Discharging);
    estimator.addSample({0s, 1000, 2000, -9000}); // older than a minute at the end
    estimator.addSample({40s, 1000, 2000, -400});
    estimator.addSample({100s, 900, 2000, -500});
    EXPECT_EQ(estimator.minutesUntilEmpty(), 120);
    EXPECT_EQ(estimator.minutesUntilFull(), std::nullopt);
}

TEST(TimeEstimator, OneSampleAfterAGapIsNotEnough)
{
    TimeEstimator estimator;
    estimator.setState(false, Direction::Discharging);
    estimator.addSample({0s, 1000, 2000, -400});
    estimator.addSample({61s, 1000, 2000, -400});
    EXPECT_EQ(estimator.minutesUntilEmpty(), std::nullopt);
}

TEST(TimeEstimator, FiveSecondsAfterAChangeThereIsATime)
{
    TimeEstimator estimator;
    estimator.setState(false, Direction::Discharging);
    EXPECT_EQ(estimator.firstEstimateAt(), std::nullopt);
    estimator.addSample({100s, 1000, 2000, -4000}); // what a charger has left behind
    EXPECT_EQ(estimator.minutesUntilEmpty(), std::nullopt);
    EXPECT_EQ(estimator.firstEstimateAt(), 105s);
    estimator.addSample({104s, 1000, 2000, -600});
    EXPECT_EQ(estimator.minutesUntilEmpty(), std::nullopt);
    EXPECT_EQ(estimator.firstEstimateAt(), 105s);
    estimator.addSample({105s, 1000, 2000, -400});
    EXPECT_EQ(estimator.minutesUntilEmpty(), 120) << "of the two that have settled";
    EXPECT_EQ(estimator.firstEstimateAt(), std::nullopt);
}

TEST(TimeEstimator, ExpectsNoTimeWithoutACurrent)
{
    TimeEstimator estimator;
    estimator.addSample({0s, 1000, 2000, -400});
    EXPECT_EQ(estimator.firstEstimateAt(), std::nullopt) << "nothing flows in or out";
    estimator.setState(true, Direction::Charging);
    estimator.addSample({1s, 1000, 2000, 0});
    EXPECT_EQ(estimator.firstEstimateAt(), std::nullopt);
    estimator.setState(false, Direction::Discharging);
    estimator.addSample({2s, 1000, 2000, {}});
    EXPECT_EQ(estimator.firstEstimateAt(), std::nullopt);
}

TEST(TimeEstimator, UntilFull)
{
    TimeEstimator estimator;
    estimator.setState(true, Direction::Charging);
    estimator.addSample({0s, 1000, 2000, 500});
    estimator.addSample({20s, 1000, 2000, 500});
    EXPECT_EQ(estimator.minutesUntilFull(), 120);
    EXPECT_EQ(estimator.minutesUntilEmpty(), std::nullopt);
}

TEST(TimeEstimator, NoCurrentFlows)
{
    TimeEstimator estimator;
    estimator.setState(true, Direction::Charging);
    estimator.addSample({0s, 1000, 2000, 0});
    estimator.addSample({30s, 1000, 2000, 0});
    EXPECT_EQ(estimator.minutesUntilFull(), std::nullopt);
}

TEST(TimeEstimator, TenDaysAreNoEstimate)
{
    for (const auto& [charge, expected] :
         {std::pair(240.0, std::optional<int>()), std::pair(239.0, std::optional<int>(14340))}) {
        TimeEstimator estimator;
        estimator.setState(false, Direction::Discharging);
        estimator.addSample({0s, charge, 1000, -1});
        estimator.addSample({20s, charge, 1000, -1});
        EXPECT_EQ(estimator.minutesUntilEmpty(), expected);
    }
}

TEST(TimeEstimator, AChangedStateForgets)
{
    TimeEstimator estimator;
    estimator.setState(false, Direction::Discharging);
    estimator.addSample({0s, 1000, 2000, -400});
    estimator.addSample({20s, 1000, 2000, -400});
    ASSERT_TRUE(estimator.minutesUntilEmpty());
    estimator.setState(false, Direction::Discharging);
    ASSERT_TRUE(estimator.minutesUntilEmpty());
    estimator.setState(true, Direction::Discharging);
    EXPECT_EQ(estimator.minutesUntilEmpty(), std::nullopt);
}

TEST(TimeEstimator, TheChargesChangeStandsInForTheCurrent)
{
    TimeEstimator estimator;
    estimator.setState(false, Direction::Discharging);
    estimator.addSample({0s, 1010, 2000, {}});
    estimator.addSample({10s, 1010, 2000, {}});
    EXPECT_EQ(estimator.minutesUntilEmpty(), std::nullopt);
    estimator.addSample({36s, 1000, 2000, {}}); // 10 mAh in a hundredth of an hour
    EXPECT_EQ(estimator.minutesUntilEmpty(), 60);
    estimator.addSample({72s, 1020, 2000, {}}); // rose although it discharges
    EXPECT_EQ(estimator.minutesUntilEmpty(), std::nullopt);
}

TEST(TimeEstimator, ASleepDoesNotCountAsWatched)
{
    TimeEstimator estimator;
    estimator.setState(false, Direction::Discharging);
    estimator.addSample({0s, 1020, 2000, {}});
    estimator.addSample({36s, 1010, 2000, {}});
    estimator.addSample({300s, 1010, 2000, {}}); // longer than any rest
    EXPECT_EQ(estimator.minutesUntilEmpty(), std::nullopt);
    estimator.addSample({336s, 1000, 2000, {}});
    EXPECT_EQ(estimator.minutesUntilEmpty(), 60);
}

} // namespace
