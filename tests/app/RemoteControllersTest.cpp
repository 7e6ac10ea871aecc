#include "app/RemoteControllers.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

#include "app/SharedNotifications.h"
#include "battery/QDBattery.h"
#include "remote/WindowsProcess.h"
#include "tests/app/LaunchedHelper.h"
#include "tests/support/FakeProgram.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

using Kind = WindowMessage::Kind;

/// A helper whose windows are in another process.
struct RemoteControllersTest : testing::Test
{
    RemoteControllersTest()
    {
        helper.setBattery(66);
        helper.preferences = std::make_unique<ApplicationPreferences>(platform);
        helper.delegate = std::make_unique<HelperAppDelegate>(
            platform, *helper.preferences, helper.interface, &QDMac::init,
            [this](HelperAppDelegate& owner) { return controllers.make(owner); });
        helper.delegate->applicationDidFinishLaunching();
    }

    ProgramRecord& program() { return starter.last(); }

    /// The messages that the program has been sent since the last call.
    std::vector<WindowMessage> told()
    {
        QCoreApplication::processEvents();
        return std::exchange(program().messages, {});
    }

    void watch()
    {
        helper.interface.statusMenu().openView();
        program().say(Kind::Heard, 1);
        program().say(Kind::Watched, 1);
        told();
    }

    Helper helper;
    SharedNotifications notifications{helper.platform.distributedNotificationCenter};
    Platform platform = helper.platform.platform.with({.distributedNotificationCenter = &notifications});
    FakeProgramStarter starter;
    WindowsProcess process{starter, [] { return std::chrono::milliseconds(0); }};
    RequestSurroundings surroundings{.pointer = [] { return QPoint(7, 8); },
                                     .activationToken = [] { return QByteArray("token"); },
                                     .statesEntered = [] { return 3U; },
                                     .memory = [] { return QByteArray("memory"); }};
    RemoteControllers controllers{platform, helper.interface, process, notifications, surroundings};
};

TEST_F(RemoteControllersTest, WindowsAreAskedForWithAllThatTheyNeed)
{
    EXPECT_TRUE(starter.programs.empty());
    helper.interface.statusMenu().openView();
    helper.delegate->openPreferences();
    helper.delegate->openMenuBarText();
    program().say(Kind::Heard, 3);
    helper.interface.statusMenu().toggleView();
    const std::vector<WindowMessage> requests = told();
    ASSERT_EQ(requests.size(), 4U);
    const Kind kinds[]{Kind::OpenView, Kind::ShowPreferences, Kind::ShowMenuBarText, Kind::ToggleView};
    for (std::size_t i = 0; i < requests.size(); ++i)
        EXPECT_EQ(
            requests[i],
            (WindowMessage{
                .kind = kinds[i], .text = "token", .pointer = QPoint(7, 8), .number = 3, .data = "memory"}));
}

TEST_F(RemoteControllersTest, RefreshesAreSentWhileSomebodyLooks)
{
    helper.interface.statusMenu().openView();
    program().say(Kind::Heard, 1);
    told();
    helper.delegate->updateStatusBarTitle();
    EXPECT_TRUE(told().empty());
    program().say(Kind::Watched, 1);
    EXPECT_EQ(told(), (std::vector<WindowMessage>{{.kind = Kind::Refreshed, .number = 3}})) << "at once";
    helper.refresh();
    EXPECT_EQ(told().size(), 1U) << "battery and status item are one refresh";
    helper.delegate->myMac().Battery()->updateData();
    EXPECT_EQ(told().size(), 1U);
    program().say(Kind::Watched, 0);
    helper.refresh();
    EXPECT_TRUE(told().empty());
}

TEST_F(RemoteControllersTest, WhatThePanelShowsIsSentWithEachRefresh)
{
    helper.record().shown = ShownItem{ShownItem::Form::Number, QStringLiteral("87"), "PNG"};
    watch();
    helper.delegate->updateStatusBarTitle();
    EXPECT_EQ(told(), (std::vector<WindowMessage>{
                          {.kind = Kind::PanelShows, .text = "87", .number = 2, .data = "PNG"},
                          {.kind = Kind::Refreshed, .number = 3}}));
}

TEST_F(RemoteControllersTest, TimersArePunctualWhileSomebodyLooks)
{
    helper.interface.statusMenu().openView();
    EXPECT_FALSE(helper.platform.runLoop.isPunctual());
    program().say(Kind::Watched, 1);
    EXPECT_TRUE(helper.platform.runLoop.isPunctual());
    program().say(Kind::Watched, 0);
    EXPECT_FALSE(helper.platform.runLoop.isPunctual());
    program().say(Kind::Watched, 1);
    program().end();
    EXPECT_FALSE(helper.platform.runLoop.isPunctual()) << "who looked has gone";
}

TEST_F(RemoteControllersTest, WhatIsChangedThereIsShownHere)
{
    helper.interface.statusMenu().openView();
    helper.setShared("customStatusBar", QStringLiteral("now %p"));
    program().say(Kind::RefreshTitle);
    EXPECT_EQ(helper.title(), QStringLiteral("now 66.0"));
    helper.platform.userDefaults.standardDefaults.values[QStringLiteral("QDBatteryTemperatureMode")] =
        qint64{1};
    program().say(Kind::ReloadBattery);
    EXPECT_EQ(helper.delegate->myMac().Battery()->temperatureMode(), TemperatureUnit::Fahrenheit);
}

TEST_F(RemoteControllersTest, ClicksThereSwitchHere)
{
    helper.interface.statusMenu().openView();
    const QDBattery& battery = *helper.delegate->myMac().Battery();
    program().say(Kind::Clicked, static_cast<quint32>(FactClick::BatteryAge));
    EXPECT_EQ(battery.ageMode(), AgeFieldMode::Months);
    program().say(Kind::Clicked, static_cast<quint32>(FactClick::Temperature));
    EXPECT_EQ(battery.temperatureMode(), TemperatureUnit::Fahrenheit);
    program().say(Kind::Clicked, static_cast<quint32>(FactClick::ComputerAge));
    EXPECT_EQ(helper.delegate->myMac().ageMode(), 1);
    program().say(Kind::Clicked, 99);
    EXPECT_EQ(battery.ageMode(), AgeFieldMode::Months);
}

TEST_F(RemoteControllersTest, AnnouncementsReachEverybodyOnce)
{
    const QString name = QStringLiteral("SettingsChangedNotification");
    helper.interface.statusMenu().openView();
    told();
    helper.setShared("customStatusBar", QStringLiteral("one"));
    program().say({.kind = Kind::Announced, .text = name.toUtf8()});
    EXPECT_EQ(helper.title(), QStringLiteral("one"));
    EXPECT_EQ(helper.platform.distributedNotificationCenter.posted, QStringList{name});
    EXPECT_TRUE(told().empty());
    helper.platform.distributedNotificationCenter.post(name); // by another process
    EXPECT_EQ(told(), (std::vector<WindowMessage>{{.kind = Kind::Announced, .text = name.toUtf8()}}));
}

TEST_F(RemoteControllersTest, QuittingThereQuitsHere)
{
    helper.interface.statusMenu().openView();
    program().say(Kind::Quit);
    EXPECT_EQ(helper.platform.application.terminated, 1);
}

TEST_F(RemoteControllersTest, ARecordedComputersSettingsAreStoredHere)
{
    QStringList stored;
    controllers.setStore([&](const QString& database, const QByteArray& values) {
        stored.append(database + u':' + QString::fromUtf8(values));
    });
    helper.interface.statusMenu().openView();
    program().say({.kind = Kind::Stored, .text = "standard", .data = "values"});
    EXPECT_EQ(stored, QStringList{QStringLiteral("standard:values")});
}

TEST_F(RemoteControllersTest, WhatOnlyTheHelperSaysIsIgnored)
{
    watch();
    const QString before = helper.title();
    for (const Kind kind : {Kind::OpenView, Kind::ToggleView, Kind::ShowPreferences, Kind::Refreshed})
        program().say(kind);
    EXPECT_EQ(starter.programs.size(), 1U);
    EXPECT_TRUE(told().empty());
    EXPECT_EQ(helper.title(), before);
}

} // namespace
