#include "app/SampleKeeper.h"

#include <gtest/gtest.h>

#include "tests/app/LaunchedHelper.h"
#include "tests/support/FakeTextReceiver.h"
#include "tests/support/LogLines.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

/// A launched helper at 03:04:05 on 2015-01-02, UTC, on battery power.
struct SampleKeeperTest : testing::Test, Helper
{
    FakeTextReceiver recorder;
    std::unique_ptr<SampleKeeper> keeper;

    void start()
    {
        if (platform.registry.entries.empty())
            setBattery(50);
        launch();
        keeper = std::make_unique<SampleKeeper>(platform.platform, *delegate, recorder);
    }

    /// Lets that much time pass, then refreshes the item with that charge.
    void pass(double seconds, qint64 charge)
    {
        platform.clock.advance(seconds);
        setRegistry("CurrentCapacity", charge);
        delegate->refreshBatteryAndTitle();
    }

    void passHour(qint64 charge) { pass(3600, charge); }

    void record(const QVariant& value)
    {
        platform.userDefaults.standardDefaults.values[QStringLiteral("recordHistory")] = value;
    }

    void announceSettings()
    {
        platform.distributedNotificationCenter.post(QStringLiteral("SettingsChangedNotification"));
    }
};

using Texts = QByteArrayList;

TEST_F(SampleKeeperTest, TakesASampleAtEachRefreshThatBringsSomethingNew)
{
    start();
    for (const qint64 charge : {50, 50, 49, 49, 48})
        pass(60, charge);
    EXPECT_EQ(keeper->samples().lines(), "1420167905 50 - discharging\n"
                                         "1420168025 49 - discharging\n"
                                         "1420168145 48 - discharging\n");
    EXPECT_EQ(recorder.attempts, 0);
}

TEST_F(SampleKeeperTest, HasNoTimerOfItsOwn)
{
    setBattery(50);
    launch();
    const std::size_t timers = platform.runLoop.timers.size();
    keeper = std::make_unique<SampleKeeper>(platform.platform, *delegate, recorder);
    passHour(49);
    EXPECT_EQ(platform.runLoop.timers.size(), timers);
}

TEST_F(SampleKeeperTest, HandsOverOnceAnHour)
{
    start();
    pass(60, 50);
    pass(3480, 40);
    EXPECT_EQ(recorder.texts, Texts());
    pass(60, 39);
    EXPECT_EQ(recorder.texts, Texts{"1420167905 50 - discharging\n"
                                    "1420171385 40 - discharging\n"
                                    "1420171445 39 - discharging\n"});
    EXPECT_TRUE(keeper->samples().isEmpty());
    passHour(30);
    EXPECT_EQ(recorder.texts.value(1), "1420175045 30 - discharging\n");
}

TEST_F(SampleKeeperTest, StartsTheRecorderOnceADayWhereNothingChanges)
{
    start();
    passHour(50);
    EXPECT_EQ(recorder.texts.size(), 1);
    for (int hour = 0; hour < 19; ++hour)
        passHour(50);
    EXPECT_EQ(recorder.texts.size(), 1) << "it is 23:04";
    passHour(50);
    EXPECT_EQ(recorder.texts.value(1, "nothing"), "") << "it is the next day";
    for (int hour = 0; hour < 23; ++hour)
        passHour(50);
    EXPECT_EQ(recorder.texts.size(), 2);
    passHour(50);
    EXPECT_EQ(recorder.texts.size(), 3);
}

TEST_F(SampleKeeperTest, HandsOverBeforeSleep)
{
    start();
    pass(60, 50);
    platform.workspaceNotifications.sleep();
    EXPECT_EQ(recorder.texts, Texts{"1420167905 50 - discharging\n"});
    platform.workspaceNotifications.sleep();
    platform.workspaceNotifications.wake();
    EXPECT_EQ(recorder.texts.size(), 1);
}

TEST_F(SampleKeeperTest, HandsOverWhenTheHistoryIsLookedAt)
{
    start();
    const auto ask = [this] {
        platform.distributedNotificationCenter.post(QStringLiteral("SamplesWantedNotification"));
    };
    ask();
    EXPECT_EQ(recorder.attempts, 0) << "there is none";
    pass(60, 50);
    ask();
    ask();
    EXPECT_EQ(recorder.texts, Texts{"1420167905 50 - discharging\n"});
    pass(60, 49);
    record(false);
    ask();
    EXPECT_EQ(recorder.attempts, 1) << "nothing is recorded any more";
}

TEST_F(SampleKeeperTest, HandsOverAtTheEnd)
{
    start();
    keeper->finish();
    EXPECT_EQ(recorder.attempts, 0);
    pass(60, 50);
    keeper->finish();
    EXPECT_EQ(recorder.texts, Texts{"1420167905 50 - discharging\n"});
}

TEST_F(SampleKeeperTest, DoesNothingWhileItIsSwitchedOff)
{
    record(false);
    start();
    passHour(49);
    platform.workspaceNotifications.sleep();
    keeper->finish();
    EXPECT_EQ(recorder.attempts, 0);
    EXPECT_TRUE(keeper->samples().isEmpty());
}

TEST_F(SampleKeeperTest, FollowsTheSettingWhenItIsAnnounced)
{
    start();
    pass(60, 50);
    record(false);
    announceSettings();
    EXPECT_TRUE(keeper->samples().isEmpty());
    pass(60, 49);
    EXPECT_TRUE(keeper->samples().isEmpty());
    record(true);
    announceSettings();
    pass(60, 48);
    EXPECT_EQ(keeper->samples().lines(), "1420168025 48 - discharging\n");
}

TEST_F(SampleKeeperTest, WritesNothingOnceItIsSwitchedOffWithoutAWord)
{
    start();
    pass(60, 50);
    record(false);
    keeper->finish();
    platform.workspaceNotifications.sleep();
    passHour(49);
    EXPECT_EQ(recorder.attempts, 0);
    EXPECT_TRUE(keeper->samples().isEmpty());
}

TEST_F(SampleKeeperTest, DoesNothingWithoutTheApplicationAndFindsItWithinTheHour)
{
    LogLines log;
    recorder.installed = false;
    start();
    passHour(49);
    keeper->finish();
    EXPECT_EQ(recorder.attempts, 0);
    EXPECT_TRUE(keeper->samples().isEmpty());
    recorder.installed = true;
    passHour(48);
    EXPECT_EQ(recorder.texts, Texts{""}) << "the day's snapshot";
    pass(60, 47);
    EXPECT_EQ(keeper->samples().size(), 1U);
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_F(SampleKeeperTest, KeepsWhatCannotBeHandedOverAndSaysSoOnce)
{
    LogLines log;
    recorder.canStart = false;
    start();
    pass(60, 50);
    passHour(49);
    passHour(48);
    EXPECT_EQ(recorder.attempts, 2);
    EXPECT_EQ(log.lines().size(), 1) << log.lines().join(u'\n').toStdString();
    EXPECT_EQ(keeper->samples().size(), 3U);
    recorder.canStart = true;
    passHour(48);
    EXPECT_EQ(recorder.texts.size(), 1);
    EXPECT_EQ(recorder.texts.value(0).count('\n'), 3);
    recorder.canStart = false;
    passHour(47);
    EXPECT_EQ(log.lines().size(), 2) << "it worked meanwhile, so this is news";
}

TEST_F(SampleKeeperTest, StartsNoRecorderBesideOneThatHangs)
{
    LogLines log;
    start();
    passHour(50);
    recorder.running = true;
    passHour(49);
    platform.workspaceNotifications.sleep();
    EXPECT_EQ(recorder.texts.size(), 1);
    EXPECT_EQ(log.lines().size(), 1);
    keeper->finish();
    EXPECT_EQ(recorder.texts.value(1), "1420175045 49 - discharging\n") << "there is no later hour";
}

TEST_F(SampleKeeperTest, GoesOnWhenTheClockIsSetBack)
{
    start();
    pass(60, 50);
    pass(-86'400, 49);
    EXPECT_EQ(recorder.texts.size(), 1);
    passHour(48);
    EXPECT_EQ(recorder.texts.size(), 2);
}

TEST_F(SampleKeeperTest, StartsNothingWithoutABattery)
{
    platform.expert();
    start();
    passHour(50);
    passHour(50);
    EXPECT_EQ(recorder.attempts, 0);
}

TEST_F(SampleKeeperTest, WhenTheHistoryIsDeletedItForgetsWhatItHas)
{
    start();
    pass(60, 50);
    pass(60, 49);
    platform.distributedNotificationCenter.post(QStringLiteral("HistoryDeletedNotification"));
    EXPECT_TRUE(keeper->samples().isEmpty());
    pass(60, 48);
    keeper->finish();
    EXPECT_EQ(recorder.texts, Texts{"1420168025 48 - discharging\n"});
}

} // namespace
