#include "app/WarningKeeper.h"

#include <gtest/gtest.h>

#include "tests/app/LaunchedHelper.h"
#include "tests/support/FakeWarningServices.h"
#include "tests/support/LogLines.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/Texts.h"

using namespace quindle;

namespace {

/// A launched helper on battery power, with a battery that holds 50 % at first.
struct WarningKeeperTest : testing::Test, Helper
{
    FakeNotifier notifier;
    FakePowerManagers managers;
    FakeCommandRunner commands;
    std::unique_ptr<WarningKeeper> keeper;

    void start()
    {
        if (platform.registry.entries.empty())
            setBattery(50);
        launch();
        keeper = std::make_unique<WarningKeeper>(platform.platform, *delegate,
                                                 WarningServices{notifier, managers, &commands});
        pass(120);
    }

    /// Lets that much time pass, with a refresh every ten seconds.
    void pass(int seconds)
    {
        for (int passed = 0; passed < seconds; passed += 10) {
            platform.clock.advance(10);
            delegate->refreshBatteryAndTitle();
        }
    }

    /// Slowly enough for a real battery.
    void passTo(qint64 charge)
    {
        setRegistry("CurrentCapacity", charge);
        pass(90);
    }

    void plugIn()
    {
        setRegistry("ExternalConnected", true);
        setRegistry("IsCharging", true);
        pass(10);
    }

    void store(const char* key, const QVariant& value)
    {
        platform.userDefaults.standardDefaults.values[QLatin1String(key)] = value;
    }

    void announceSettings()
    {
        platform.distributedNotificationCenter.post(QStringLiteral("SettingsChangedNotification"));
    }

    QStringList shown() { return std::exchange(notifier.lines, {}); }
};

TEST_F(WarningKeeperTest, WarnsWhereNobodyElseDoes)
{
    start();
    passTo(40);
    passTo(19);
    EXPECT_EQ(shown(), QStringList());
    managers.answer();
    EXPECT_EQ(shown(), QStringList{latin("Battery low: 19% left")});
    plugIn();
    EXPECT_EQ(shown(), QStringList{latin("withdraw")});
}

TEST_F(WarningKeeperTest, LeavesItToThePowerManagerThatWarns)
{
    store("warnLowCommand", latin("tell"));
    start();
    passTo(19);
    managers.answer(latin("Xfce"));
    passTo(9);
    managers.answer(latin("Xfce"));
    EXPECT_EQ(shown(), QStringList());
    EXPECT_EQ(commands.lines, QStringList());
}

TEST_F(WarningKeeperTest, AsksNobodyUntilThereIsSomethingToWarnOf)
{
    start();
    pass(3600);
    EXPECT_TRUE(managers.questions.empty());
}

TEST_F(WarningKeeperTest, AsksNobodyWhenTheUserHasChosen)
{
    store("warnings", latin("on"));
    start();
    passTo(19);
    EXPECT_EQ(shown(), QStringList{latin("Battery low: 19% left")});
    EXPECT_TRUE(managers.questions.empty());
    store("warnings", latin("off"));
    announceSettings();
    EXPECT_EQ(shown(), QStringList{latin("withdraw")});
    passTo(9);
    EXPECT_EQ(shown(), QStringList());
    EXPECT_TRUE(managers.questions.empty());
}

TEST_F(WarningKeeperTest, ShowsWhatIsTheMatterWhenItIsSwitchedOn)
{
    store("warnings", latin("off"));
    start();
    passTo(9);
    store("warnings", latin("on"));
    announceSettings();
    shown();
    pass(120);
    EXPECT_EQ(shown(), QStringList{latin("Battery very low: 9% left")});
}

TEST_F(WarningKeeperTest, AWarningThatThePlugOvertakesIsNotShown)
{
    start();
    passTo(19);
    plugIn();
    managers.answer();
    EXPECT_EQ(shown(), QStringList{latin("withdraw")});
}

TEST_F(WarningKeeperTest, FollowsSettingsThatNobodyAnnounced)
{
    start();
    store("warnLowPercent", qint64{40});
    passTo(38);
    managers.answer();
    EXPECT_EQ(shown(), QStringList{latin("Battery low: 38% left")});
}

TEST_F(WarningKeeperTest, RunsTheCommandOfTheLevel)
{
    store("warnLowCommand", latin("tell me"));
    start();
    passTo(19);
    managers.answer();
    EXPECT_EQ(commands.lines, QStringList{latin("tell me | low 19 discharging")});
}

TEST_F(WarningKeeperTest, SaysOnceThatACommandCannotBeRun)
{
    LogLines log;
    commands.canRun = false;
    for (const char* key : {"warnLowCommand", "warnVeryLowCommand"})
        store(key, latin("nowhere"));
    store("warnings", latin("on"));
    start();
    passTo(19);
    passTo(9);
    EXPECT_EQ(commands.lines.size(), 2);
    EXPECT_EQ(log.lines().size(), 1) << log.lines().join(u'\n').toStdString();
}

TEST_F(WarningKeeperTest, RunsNothingWithoutARunner)
{
    store("warnLowCommand", latin("tell"));
    store("warnings", latin("on"));
    setBattery(50);
    launch();
    keeper =
        std::make_unique<WarningKeeper>(platform.platform, *delegate, WarningServices{notifier, managers});
    pass(120);
    passTo(19);
    EXPECT_EQ(shown().size(), 1);
}

TEST_F(WarningKeeperTest, IsQuietAfterAWake)
{
    store("warnings", latin("on"));
    start();
    platform.workspaceNotifications.wake();
    setRegistry("CurrentCapacity", qint64{40});
    pass(20);
    setRegistry("CurrentCapacity", qint64{26});
    pass(20);
    setRegistry("CurrentCapacity", qint64{12});
    pass(10);
    EXPECT_EQ(shown(), QStringList());
}

TEST_F(WarningKeeperTest, ShowsTheChargeLimitOfTheComputer)
{
    store("warnings", latin("on"));
    platform.powerSources.limit = 60;
    start();
    plugIn();
    pass(20);
    passTo(61);
    EXPECT_EQ(shown(), QStringList{latin("Charge limit reached: 61%")});
}

TEST_F(WarningKeeperTest, SaysThatTheItemNeedsAttentionWhoeverWarns)
{
    store("warnings", latin("off"));
    start();
    passTo(9);
    EXPECT_EQ(record().attentionSet, std::vector<bool>{true});
    plugIn();
    EXPECT_EQ(record().attentionSet, (std::vector<bool>{true, false}));
    pass(600);
    EXPECT_EQ(record().attentionSet.size(), 2U);
}

TEST_F(WarningKeeperTest, HasNoTimerOfItsOwn)
{
    start();
    const std::size_t timers = platform.runLoop.timers.size();
    keeper = std::make_unique<WarningKeeper>(platform.platform, *delegate,
                                             WarningServices{notifier, managers, &commands});
    passTo(19);
    managers.answer();
    EXPECT_EQ(platform.runLoop.timers.size(), timers);
}

TEST_F(WarningKeeperTest, DoesNothingWithoutABattery)
{
    platform.expert();
    start();
    pass(600);
    EXPECT_EQ(shown(), QStringList());
    EXPECT_TRUE(managers.questions.empty());
}

} // namespace
