#include "app/HelperAppDelegate.h"

#include <QIcon>

#include <gtest/gtest.h>

#include "battery/QDBattery.h"
#include "platform/Image.h"
#include "tests/app/LaunchedHelper.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

struct HelperAppDelegateTest : testing::Test, Helper
{
    QString versionText()
    {
        return interface.statusMenu().rows().at(size_t(interface.outlets().versionItem) - 1).text;
    }
};

TEST_F(HelperAppDelegateTest, VersionEntryIsTheLiteralAndTheValue)
{
    platform.bundle.info = QVariantMap{{QStringLiteral("CFBundleVersion"), qint64{123}}};
    launch();
    EXPECT_EQ(versionText(), QStringLiteral("Version 123"));
}

TEST_F(HelperAppDelegateTest, VersionTextIsCopiedAsItStands)
{
    platform.bundle.info = QVariantMap{{QStringLiteral("CFBundleVersion"), QStringLiteral(" 1.0b ")}};
    launch();
    EXPECT_EQ(versionText(), QStringLiteral("Version  1.0b "));
}

TEST_F(HelperAppDelegateTest, MissingBundleInformationIsFatal)
{
    make();
    platform.bundle.info = std::nullopt;
    EXPECT_DEATH(delegate->applicationDidFinishLaunching(), "no information dictionary");
    platform.bundle.info = QVariantMap();
    EXPECT_DEATH(delegate->applicationDidFinishLaunching(), "CFBundleVersion");
}

struct IncompleteInterface : MainInterface
{
    MainOutlets connected = MainInterface::outlets();

    MainOutlets outlets() override { return connected; }
};

void launchWith(const std::function<void(MainOutlets&)>& disconnect, bool hasBattery = true)
{
    FakePlatform platform;
    if (hasBattery)
        platform.battery()[QStringLiteral("MaxCapacity")] = qint64{100};
    IncompleteInterface interface;
    disconnect(interface.connected);
    ApplicationPreferences preferences(platform.platform);
    HelperAppDelegate delegate(platform.platform, preferences, interface, &QDMac::init, noControllers);
    delegate.applicationDidFinishLaunching();
}

TEST(MissingOutlet, IsFatalAtLaunch)
{
    launchWith([](MainOutlets&) {});
    EXPECT_DEATH(launchWith([](MainOutlets& outlets) { outlets.menuView = nullptr; }), "outlet");
    const auto withoutNoBatteryView = [](MainOutlets& outlets) { outlets.noBatteryView = nullptr; };
    EXPECT_DEATH(launchWith(withoutNoBatteryView, false), "outlet");
    EXPECT_DEATH(launchWith([](MainOutlets& outlets) { outlets.macObjectController = nullptr; }), "outlet");
    EXPECT_DEATH(launchWith([](MainOutlets& outlets) { outlets.stateOfChargeProgress = nullptr; }), "outlet");
    EXPECT_DEATH(launchWith([](MainOutlets& outlets) { outlets.stateOfHealthProgress = nullptr; }), "outlet");
    EXPECT_DEATH(launchWith([](MainOutlets& outlets) { outlets.statusMenu = nullptr; }), "outlet");
    EXPECT_DEATH(launchWith([](MainOutlets& outlets) { outlets.versionItem = 0; }), "outlet");
}

TEST_F(HelperAppDelegateTest, LaunchOrder)
{
    setBattery(50);
    setShared("runInBackground", true);
    launch();
    EXPECT_EQ(platform.userDefaults.standardDefaults.values[QStringLiteral("runInBackground")], true);
    EXPECT_EQ(record().length, -1.0);
    EXPECT_EQ(record().menu, &interface.statusMenu());
    EXPECT_EQ(interface.macObjectController().content(), &delegate->myMac());
    EXPECT_EQ(delegate->shownView()->name, QStringLiteral("menuView"));
    EXPECT_EQ(record().titlesSet,
              QStringList({QStringLiteral("100 %"), QStringLiteral("50.0%"), QStringLiteral("50.0%"),
                           QStringLiteral("100 %"), QStringLiteral("50.0%"), QStringLiteral("50.0%")}));
    ASSERT_EQ(platform.runLoop.timers.size(), 2U);
    EXPECT_EQ(platform.runLoop.timers[0]->interval, 5.0);
    EXPECT_EQ(platform.runLoop.timers[1]->interval, 10.0);
    EXPECT_EQ(delegate->hueColorGreen()->inputAngle(), 4.0);
    EXPECT_EQ(delegate->hueColorYellow()->inputAngle(), -16.0);
    EXPECT_EQ(delegate->hueColorRed()->inputAngle(), 241.0);
}

TEST_F(HelperAppDelegateTest, OwnRunInBackgroundFollowsTheSharedOneAtLaunchOnly)
{
    platform.userDefaults.standardDefaults.values[QStringLiteral("runInBackground")] = true;
    launch();
    EXPECT_EQ(preferences->runInBackgroundOwn(), false);
    setShared("runInBackground", true);
    delegate->updateStatusBarTitle();
    EXPECT_EQ(preferences->runInBackgroundOwn(), false);
}

TEST_F(HelperAppDelegateTest, OwnRunInBackgroundIsFalseWithoutTheSuite)
{
    platform.userDefaults.suiteAvailable = false;
    platform.userDefaults.standardDefaults.values[QStringLiteral("runInBackground")] = true;
    launch();
    EXPECT_EQ(preferences->runInBackgroundOwn(), false);
}

TEST_F(HelperAppDelegateTest, RefreshesEveryTenSeconds)
{
    setBattery(50);
    launch();
    record().titlesSet.clear();
    platform.runLoop.advance(9.9);
    EXPECT_EQ(record().titlesSet.size(), 0);
    platform.runLoop.advance(0.2);
    EXPECT_EQ(record().titlesSet.size(), 3);
    platform.runLoop.advance(10.0);
    EXPECT_EQ(record().titlesSet.size(), 6);
}

TEST_F(HelperAppDelegateTest, WakingRefreshesAndSleepingDoesNot)
{
    setBattery(50);
    launch();
    record().titlesSet.clear();
    platform.workspaceNotifications.sleep();
    EXPECT_EQ(record().titlesSet.size(), 0);
    platform.workspaceNotifications.wake();
    EXPECT_EQ(record().titlesSet.size(), 3);
}

TEST_F(HelperAppDelegateTest, WakingReadsFlagsNowAndFiguresFromTheLastRefresh)
{
    setBattery(50);
    setShared("customStatusBar", QStringLiteral("%s %p"));
    launch();
    setRegistry("IsCharging", true);
    setRegistry("CurrentCapacity", qint64{60});
    platform.workspaceNotifications.wake();
    EXPECT_EQ(title(), QStringLiteral("\u2B06\uFE0E 50.0"));
}

TEST_F(HelperAppDelegateTest, PowerEventShowsNewFigures)
{
    setBattery(50);
    launch();
    setRegistry("CurrentCapacity", qint64{60});
    platform.powerEvents.observer();
    EXPECT_EQ(title(), QStringLiteral("60.0%"));
}

TEST_F(HelperAppDelegateTest, WhatAPowerEventDidNotShowYetIsShownWithTheSecondRefresh)
{
    setBattery(50);
    launch();
    platform.powerEvents.observer();
    setRegistry("CurrentCapacity", qint64{60});
    platform.runLoop.advance(0.02);
    EXPECT_EQ(title(), QStringLiteral("60.0%"));
}

TEST_F(HelperAppDelegateTest, PowerEventsCauseTwoRefreshesASecondAndOneMoreInTheBeginning)
{
    setBattery(50);
    launch();
    constexpr int titlesOfARefresh = 3;
    for (const int refreshes : {3, 2}) {
        record().titlesSet.clear();
        for (int event = 0; event < 1000; ++event) {
            platform.powerEvents.observer();
            platform.runLoop.advance(0.001);
        }
        EXPECT_EQ(record().titlesSet.size(), refreshes * titlesOfARefresh);
    }
}

TEST_F(HelperAppDelegateTest, ABatteryThatComesLaterIsNotPickedUp)
{
    launch();
    setBattery(50);
    platform.powerEvents.observer();
    platform.runLoop.advance(20.0);
    EXPECT_EQ(title(), QString());
    EXPECT_EQ(imageName(), QStringLiteral("AppIconBW"));
}

TEST_F(HelperAppDelegateTest, ABatterySwappedForAnotherIsShownAtOnce)
{
    setBattery(50);
    launch();
    platform.registry.entries.clear();
    platform.powerEvents.observer();
    platform.runLoop.advance(0.02);
    EXPECT_NE(title(), QStringLiteral("50.0%"));
    setBattery(90);
    platform.powerEvents.observer();
    platform.runLoop.advance(0.5);
    EXPECT_EQ(title(), QStringLiteral("90.0%"));
}

TEST_F(HelperAppDelegateTest, DemonstrationBatteryKeepsItsValuesThroughPowerEvents)
{
    preferences = std::make_unique<ApplicationPreferences>(platform.platform);
    delegate = std::make_unique<HelperAppDelegate>(
        platform.platform, *preferences, interface,
        [](const Platform& services) { return QDMac::initWithDemoMode(services, true); }, noControllers);
    delegate->applicationDidFinishLaunching();
    platform.powerEvents.observer();
    platform.runLoop.advance(1.0);
    EXPECT_EQ(title(), QStringLiteral("61.0%"));
}

TEST_F(HelperAppDelegateTest, PowerEventsAfterTheEndAreHarmless)
{
    setBattery(50);
    launch();
    platform.powerEvents.observer();
    delegate.reset();
    platform.powerEvents.observer();
    platform.runLoop.advance(1.0);
    EXPECT_FALSE(record().titlesSet.contains(QStringLiteral("60.0%")));
}

TEST_F(HelperAppDelegateTest, AnnouncedSettingsChangeRefreshesAndUpdateDoesNothing)
{
    setBattery(50);
    launch();
    record().titlesSet.clear();
    platform.distributedNotificationCenter.post(QStringLiteral("WillUpdateImmediately"));
    EXPECT_EQ(record().titlesSet.size(), 0);
    EXPECT_EQ(platform.application.terminated, 0);
    platform.distributedNotificationCenter.post(QStringLiteral("SettingsChangedNotification"));
    EXPECT_EQ(record().titlesSet.size(), 3);
}

TEST_F(HelperAppDelegateTest, OpensTheFolderThatHoldsTheMainApplication)
{
    make();
    platform.bundle.bundlePath = QStringLiteral("/a/Quindle.app/Contents/Resources/Quindle-Helper.app");
    delegate->openApplication();
    platform.bundle.bundlePath = QStringLiteral("/Quindle-Helper.app");
    delegate->openApplication();
    platform.bundle.bundlePath = QStringLiteral("Quindle-Helper.app");
    delegate->openApplication();
    EXPECT_EQ(platform.workspace.launched,
              QStringList({QStringLiteral("/a"), QStringLiteral("/"), QString()}));
}

TEST_F(HelperAppDelegateTest, MenuEntriesAct)
{
    launch();
    for (const auto& row : interface.statusMenu().rows())
        if (row.kind == StatusMenu::Kind::Action && row.enabled && row.chosen)
            row.chosen();
    EXPECT_EQ(platform.workspace.launched.size(), 1);
    EXPECT_EQ(windowsShown.preferences, 1);
    EXPECT_EQ(windowsShown.menuBarText, 1);
    EXPECT_EQ(platform.application.activated, 2);
    EXPECT_EQ(platform.application.terminated, 1);
}

/// Records its own destruction.
template <typename Base>
struct Leaving : Base
{
    Leaving(QStringList& log, const char* name)
        : m_log(log)
        , m_name(QLatin1String(name))
    {
    }
    ~Leaving() override { m_log.append(m_name); }

    QStringList& m_log;
    QString m_name;
};

struct Popover : QObject
{
};

struct Pane : QDPreferencesWindowControllerProtocol
{
    QString preferencesIdentifier() const override { return {}; }
    QString preferencesTitle() const override { return {}; }
    QIcon preferencesIcon() const override { return {}; }
    QWidget& view() override { std::abort(); }
};

struct TextWindow : WindowController
{
    void showWindow() override {}
};

struct Preferences : PreferencesWindowController
{
    void showPreferencesWindow() override {}
};

TEST_F(HelperAppDelegateTest, OwnsItsControllersByTheirNames)
{
    QStringList gone;
    const HelperAppDelegate* maker = nullptr;
    preferences = std::make_unique<ApplicationPreferences>(platform.platform);
    delegate = std::make_unique<HelperAppDelegate>(
        platform.platform, *preferences, interface, &QDMac::init, [&](HelperAppDelegate& owner) {
            maker = &owner;
            EXPECT_EQ(platform.statusBar.items.size(), 1U) << "the status item comes first";
            DelegateControllers made;
            made.batteryPopover = std::make_unique<Leaving<Popover>>(gone, "batteryPopover");
            made.preferencesWindow = std::make_unique<Leaving<TextWindow>>(gone, "preferencesWindow");
            made.generalController = std::make_unique<Leaving<Pane>>(gone, "generalController");
            made.menuBarController = std::make_unique<Leaving<Pane>>(gone, "menuBarController");
            made.preferencesController =
                std::make_unique<Leaving<Preferences>>(gone, "preferencesController");
            return made;
        });
    EXPECT_EQ(maker, delegate.get());
    EXPECT_NE(dynamic_cast<Popover*>(delegate->batteryPopover()), nullptr);
    EXPECT_NE(delegate->preferencesWindow(), nullptr);
    EXPECT_NE(delegate->generalController(), nullptr);
    EXPECT_NE(delegate->menuBarController(), delegate->generalController());
    EXPECT_NE(delegate->preferencesController(), nullptr);
    delegate.reset();
    EXPECT_EQ(gone.join(u' '), QStringLiteral("preferencesController menuBarController generalController "
                                              "preferencesWindow batteryPopover"))
        << "a window goes before the panes that it shows";
}

TEST_F(HelperAppDelegateTest, RunsWithoutWindows)
{
    preferences = std::make_unique<ApplicationPreferences>(platform.platform);
    delegate = std::make_unique<HelperAppDelegate>(platform.platform, *preferences, interface, &QDMac::init,
                                                   noControllers);
    delegate->applicationDidFinishLaunching();
    delegate->openPreferences();
    delegate->openMenuBarText();
    EXPECT_EQ(delegate->batteryPopover(), nullptr);
    EXPECT_EQ(platform.application.activated, 2);
}

TEST_F(HelperAppDelegateTest, EmptyBodiesDoNothing)
{
    setBattery(50);
    launch();
    record().titlesSet.clear();
    HelperAppDelegate::quiteDueToUpdate();
    HelperAppDelegate::receiveSleepNote();
    HelperAppDelegate::applicationWillTerminate();
    EXPECT_TRUE(record().titlesSet.isEmpty());
    EXPECT_EQ(platform.application.terminated, 0);
}

TEST_F(HelperAppDelegateTest, StoredModeOutOfRangeIsFatalWithoutABatteryToo)
{
    platform.userDefaults.standardDefaults.values[QStringLiteral("QDBatteryTemperatureMode")] = qint64{3};
    EXPECT_DEATH(make(), "");
}

} // namespace
