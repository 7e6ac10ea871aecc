#include "warnings/WarningWatch.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"
#include "tests/warnings/WarningStream.h"

using namespace quindle;

namespace {

/// On battery power since 08:00, the quiet first minute over.
struct WarningWatchTest : testing::Test, WarningStream
{
    void begin(double percent)
    {
        reading.percent = percent;
        passMinutes(2);
        EXPECT_EQ(lines(), QStringList());
    }

    void expect(const char* text) { EXPECT_EQ(lines(), linesOf(text)); }
    void expectNothing() { EXPECT_EQ(lines(), QStringList()); }
};

TEST_F(WarningWatchTest, EachLevelIsShownOnceAndReplacesTheOneBefore)
{
    begin(23);
    passMinutes(60, 1);
    expect("08:10:30 show Battery low: 20% left\n"
           "08:37:40 replace Battery very low: 10% left\n"
           "08:51:20 replace Battery nearly empty!: 5% left\n");
}

TEST_F(WarningWatchTest, ThePlugTakesItBackAtOnce)
{
    begin(22);
    pass(60, 19);
    lines();
    charge();
    readOnce(19);
    expect("08:03:10 withdraw\n");
    passMinutes(60, 80);
    expectNothing();
}

TEST_F(WarningWatchTest, ALoosePlugDoesNotRepeatIt)
{
    begin(22);
    pass(60, 19);
    lines();
    for (int time = 0; time < 10; ++time) {
        charge();
        pass(120, 20);
        discharge();
        pass(120, 18);
    }
    expect("08:03:10 withdraw\n");
}

TEST_F(WarningWatchTest, ThreePointsMoreAndItMayComeAgain)
{
    begin(22);
    passMinutes(2, 19);
    charge();
    passMinutes(10, 22.9);
    discharge();
    passMinutes(10, 19);
    lines();
    charge();
    passMinutes(10, 23.5);
    discharge();
    passMinutes(10, 19);
    expect("08:42:00 show Battery low: 20% left\n");
}

TEST_F(WarningWatchTest, NoiseAtALevelShowsItOnce)
{
    begin(24);
    noise = 1.4;
    passMinutes(120, 16);
    EXPECT_EQ(lines().size(), 1);
}

TEST_F(WarningWatchTest, OneOddReadingSaysNothing)
{
    begin(50);
    for (const double odd : {1.0, 45.0, 40.0, 100.0}) {
        readOnce(odd);
        pass(10);
    }
    passMinutes(5);
    expectNothing();
    passMinutes(10, 19);
    lines();
    readOnce(60);
    passMinutes(5);
    expectNothing();
}

TEST_F(WarningWatchTest, TwoRefreshesOfTheSameMomentAreOneReading)
{
    begin(22);
    reading.percent = 9;
    reading.moment += 10;
    for (int refresh = 0; refresh < 5; ++refresh)
        EXPECT_EQ(watch.take(reading, settings), std::vector<WarningAction>());
}

TEST_F(WarningWatchTest, AJumpIsNotBelievedForAMinute)
{
    begin(50);
    reading.percent = 8;
    pass(60);
    expectNothing();
    pass(20);
    EXPECT_EQ(lines(), linesOf("08:03:10 show Battery very low: 8% left\n"));
}

TEST_F(WarningWatchTest, FifteenPointsAreNoJump)
{
    begin(24);
    reading.percent = 9;
    pass(20);
    expect("08:02:20 show Battery very low: 9% left\n");
}

TEST_F(WarningWatchTest, NothingIsShownInTheFirstMinute)
{
    reading.percent = 15;
    pass(60);
    expectNothing();
    pass(60);
    expect("08:01:10 show Battery low: 15% left\n");
}

TEST_F(WarningWatchTest, ButThatTheBatteryIsNearlyEmpty)
{
    reading.percent = 4;
    pass(60);
    expect("08:00:20 show Battery nearly empty!: 4% left\n");
}

TEST_F(WarningWatchTest, NothingIsShownInTheMinuteAfterAWake)
{
    begin(50);
    sleep(4 * 3600, 15);
    pass(50);
    expectNothing();
    pass(20);
    expect("12:03:00 show Battery low: 15% left\n");
}

TEST_F(WarningWatchTest, APauseIsASleepThatNobodyAnnounced)
{
    begin(50);
    reading.moment += 600;
    reading.percent = 15;
    pass(60);
    expectNothing();
    pass(20);
    EXPECT_EQ(lines().size(), 1);
}

// Refreshes that would find nothing new are left out.
TEST_F(WarningWatchTest, ReadingsAMinuteApartAreBelieved)
{
    begin(60);
    reading.minutesToEmpty = 15;
    for (int time = 0; time < 4; ++time)
        readAfter(70);
    expect("08:05:30 show Battery low: About 15 minutes left\n");
    reading.percent = 9;
    reading.minutesToEmpty.reset();
    readAfter(70);
    expectNothing();
    readAfter(70);
    readAfter(70);
    expect("08:09:00 replace Battery very low: 9% left\n");
}

TEST_F(WarningWatchTest, AClockThatIsSetBackEndsNothing)
{
    begin(22);
    reading.moment -= 7 * 3600;
    passMinutes(3, 19);
    EXPECT_EQ(lines().size(), 1);
}

TEST_F(WarningWatchTest, NothingIsShownWhileCharging)
{
    charge();
    begin(30);
    passMinutes(60, 2);
    expectNothing();
    reading.state = SampleState::Unknown;
    passMinutes(5);
    expectNothing();
}

TEST_F(WarningWatchTest, ASteadyShorterTimeIsShownInPlaceOfThePercentage)
{
    begin(60);
    reading.minutesToEmpty = 19;
    passMinutes(2);
    expect("08:03:20 show Battery low: About 20 minutes left\n");
    reading.minutesToEmpty = 10;
    passMinutes(2);
    expect("08:05:20 replace Battery very low: About 10 minutes left\n");
}

TEST_F(WarningWatchTest, ALongerTimeIsNot)
{
    begin(22);
    reading.minutesToEmpty = 55;
    passMinutes(2, 19);
    expect("08:03:30 show Battery low: 20% left\n");
}

TEST_F(WarningWatchTest, ATimeThatComesAndGoesIsNoneEither)
{
    begin(60);
    for (int time = 0; time < 30; ++time) {
        reading.minutesToEmpty = time % 2 == 0 ? 8 : 90;
        pass(20);
    }
    for (int time = 0; time < 30; ++time) {
        reading.minutesToEmpty = time % 2 == 0 ? std::optional(8) : std::nullopt;
        pass(30);
    }
    expectNothing();
}

TEST_F(WarningWatchTest, ALevelByTimeIsShownOnceHoweverTheLoadChanges)
{
    begin(60);
    for (int time = 0; time < 5; ++time) {
        reading.minutesToEmpty = 18;
        passMinutes(5);
        reading.minutesToEmpty = 90;
        passMinutes(5);
    }
    EXPECT_EQ(lines().size(), 1);
}

TEST_F(WarningWatchTest, FullIsShownOnceForEachCharge)
{
    charge();
    begin(80);
    passMinutes(60, 100);
    expectNothing();
    pass(10);
    expect("09:02:10 show Battery full: 100%\n");
    reading.state = SampleState::Full;
    passMinutes(600);
    expectNothing();
    discharge();
    passMinutes(1, 99);
    EXPECT_EQ(lines().value(0).section(u' ', 1), QStringLiteral("withdraw"));
    charge();
    passMinutes(10, 100);
    expectNothing();
}

TEST_F(WarningWatchTest, ABatteryThatItsDriverCallsFullBelowHundredIs)
{
    charge();
    begin(80);
    passMinutes(60, 96);
    expectNothing();
    reading.state = SampleState::Full;
    passMinutes(60);
    expect("09:02:20 show Battery full: 96%\n");
    for (int time = 0; time < 5; ++time) {
        discharge();
        pass(20);
        reading.state = SampleState::Full;
        pass(60);
    }
    EXPECT_EQ(lines().size(), 1) << "taken back at the first loose plug, and not shown again";
    discharge();
    passMinutes(10, 92.9);
    reading.state = SampleState::Full;
    passMinutes(2, 96);
    EXPECT_EQ(lines().size(), 1);
}

TEST_F(WarningWatchTest, ABatteryThatIsFullAtTheStartIsNoNews)
{
    reading.state = SampleState::Full;
    reading.percent = 100;
    passMinutes(60);
    expectNothing();
}

TEST_F(WarningWatchTest, TheComputersChargeLimitIsAnnounced)
{
    charge();
    reading.chargeLimit = 80;
    begin(70);
    passMinutes(20, 79.4);
    expectNothing();
    reading.state = SampleState::Full;
    passMinutes(60);
    expect("08:22:20 show Charge limit reached: 79%\n");
}

TEST_F(WarningWatchTest, AnOwnChargeLimitNeedsNoneOfTheComputer)
{
    settings[WarningLevel::LimitReached].percent = 85;
    charge();
    begin(70);
    passMinutes(30, 100);
    pass(10);
    EXPECT_EQ(lines(), linesOf("08:17:10 show Charge limit reached: 85%\n"
                               "08:32:10 replace Battery full: 100%\n"));
}

TEST_F(WarningWatchTest, ALevelThatIsSwitchedOffIsPassedOver)
{
    settings[WarningLevel::VeryLow].isOn = false;
    begin(22);
    passMinutes(40, 2);
    const QStringList shown = lines();
    ASSERT_EQ(shown.size(), 2);
    EXPECT_TRUE(shown[0].contains(QStringLiteral("Battery low")));
    EXPECT_TRUE(shown[1].contains(QStringLiteral("nearly empty")));
}

TEST_F(WarningWatchTest, OtherPercentagesCount)
{
    settings[WarningLevel::Low].percent = 40;
    begin(45);
    passMinutes(10, 38);
    EXPECT_EQ(lines().size(), 1);
}

TEST_F(WarningWatchTest, TheCommandIsRunWithItsLevel)
{
    settings[WarningLevel::Low].command = QStringLiteral("/bin/true");
    begin(22);
    passMinutes(4, 18);
    expect("08:04:10 show Battery low: 20% left\n"
           "08:04:10 run low 20 discharging\n");
}

TEST_F(WarningWatchTest, AnotherBatteryBeginsAnew)
{
    begin(22);
    passMinutes(4, 8);
    lines();
    reading.battery = QStringLiteral("two");
    reading.percent = 15;
    pass(30);
    expect("08:06:10 withdraw\n"
           "08:06:20 show Battery low: 15% left\n");
}

TEST_F(WarningWatchTest, WithoutABatteryItIsTakenBack)
{
    begin(22);
    passMinutes(4, 15);
    lines();
    EXPECT_EQ(watch.loseBattery(), (std::vector<WarningAction>{{.kind = WarningAction::Kind::Withdraw}}));
    EXPECT_EQ(watch.loseBattery(), std::vector<WarningAction>());
}

TEST_F(WarningWatchTest, OfABatteryThatWasAwayForAMomentItIsShownAgainAndItsCommandDoesNotRunAgain)
{
    settings[WarningLevel::Low].command = QStringLiteral("suspend");
    begin(22);
    passMinutes(4, 15);
    EXPECT_EQ(lines().size(), 2) << "shown, and run";
    watch.loseBattery();
    pass(14);
    pass(30);
    const QStringList again = lines();
    ASSERT_EQ(again.size(), 1);
    EXPECT_TRUE(again[0].contains(QStringLiteral("show Battery low: 15% left")));
    passMinutes(60, 11);
    expectNothing();
}

TEST_F(WarningWatchTest, WhatWasPluggedInWhileItWasAwayIsNotShownAgain)
{
    begin(22);
    passMinutes(4, 15);
    lines();
    watch.loseBattery();
    charge();
    pass(60, 16);
    discharge();
    passMinutes(2);
    expectNothing();
}

TEST_F(WarningWatchTest, NeedsAttentionWhileVeryLowAndDischarging)
{
    for (const WarningLevel level : warningLevels)
        settings[level].isOn = false;
    begin(22);
    passMinutes(5, 11);
    EXPECT_FALSE(watch.needsAttention());
    passMinutes(5, 9);
    EXPECT_TRUE(watch.needsAttention());
    readOnce(60);
    EXPECT_TRUE(watch.needsAttention()) << "one odd reading";
    charge();
    readOnce(9);
    EXPECT_FALSE(watch.needsAttention()) << "at the plug";
    discharge();
    passMinutes(5, 8);
    EXPECT_TRUE(watch.needsAttention());
    watch.loseBattery();
    EXPECT_FALSE(watch.needsAttention());
}

} // namespace
