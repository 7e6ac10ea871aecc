#include "warnings/RecentReadings.h"

#include <gtest/gtest.h>

using namespace quindle;

namespace {

struct RecentReadingsTest : testing::Test
{
    void add(double percent, std::optional<int> minutes = std::nullopt,
             SampleState state = SampleState::Discharging)
    {
        recent.add({.moment = moment,
                    .percent = percent,
                    .state = state,
                    .minutesToEmpty = minutes,
                    .chargeLimit = {},
                    .battery = {}});
        moment += 10;
    }

    RecentReadings recent;
    qint64 moment = 1000;
};

TEST_F(RecentReadingsTest, AJumpIsMoreThanFifteenPointsInAMinute)
{
    EXPECT_FALSE(recent.hasJumped());
    add(50);
    add(35);
    EXPECT_FALSE(recent.hasJumped());
    add(34.9);
    EXPECT_TRUE(recent.hasJumped());
}

TEST_F(RecentReadingsTest, AReadingHoldsUntilTheNext)
{
    add(50);
    moment += 90;
    add(30);
    EXPECT_TRUE(recent.hasJumped());
    for (int reading = 0; reading < 5; ++reading) {
        add(30);
        EXPECT_TRUE(recent.hasJumped());
    }
    add(30);
    EXPECT_FALSE(recent.hasJumped()) << "it is a minute ago";
}

TEST_F(RecentReadingsTest, ATimeIsSteadyWhereReadingsAreSeldom)
{
    add(50, 20);
    moment += 60;
    add(50, 20);
    EXPECT_EQ(recent.steadyMinutes(), 20);
    moment += 60;
    add(50, 10);
    EXPECT_EQ(recent.steadyMinutes(), std::nullopt);
}

TEST_F(RecentReadingsTest, AJumpUpwardsIsOneToo)
{
    add(10);
    add(90);
    EXPECT_TRUE(recent.hasJumped());
    recent.forget();
    EXPECT_FALSE(recent.hasJumped());
}

TEST_F(RecentReadingsTest, ATimeIsSteadyOnceItWasNearlyTheSameForMostOfAMinute)
{
    for (const int minutes : {20, 19, 22, 18, 20}) {
        add(50, minutes);
        EXPECT_EQ(recent.steadyMinutes(), std::nullopt);
    }
    add(50, 19);
    EXPECT_EQ(recent.steadyMinutes(), 19);
    add(50, 12);
    EXPECT_EQ(recent.steadyMinutes(), std::nullopt);
}

TEST_F(RecentReadingsTest, ATimeThatIsNotKnownOnceIsNotSteady)
{
    for (int reading = 0; reading < 6; ++reading)
        add(50, 20);
    add(50);
    EXPECT_EQ(recent.steadyMinutes(), std::nullopt);
    for (int reading = 0; reading < 6; ++reading)
        add(50, 20);
    EXPECT_EQ(recent.steadyMinutes(), std::nullopt) << "it was within the minute";
    add(50, 20);
    EXPECT_EQ(recent.steadyMinutes(), 20);
}

TEST_F(RecentReadingsTest, WhilePluggedInThereIsNone)
{
    for (int reading = 0; reading < 9; ++reading)
        add(50, 20, SampleState::Charging);
    EXPECT_EQ(recent.steadyMinutes(), std::nullopt);
}

TEST_F(RecentReadingsTest, ShortTimesMayDifferByTwoMinutes)
{
    for (const int minutes : {5, 4, 3, 5, 4, 5})
        add(50, minutes);
    EXPECT_EQ(recent.steadyMinutes(), 5);
}

} // namespace
