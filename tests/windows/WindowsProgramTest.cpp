#include "windows/WindowsProgram.h"

#include <gtest/gtest.h>

#include <QApplication>

#include "app/SilentServices.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/QtPrinters.h"
#include "tests/windows/RecordingLink.h"
#include "widgets/PlainLabel.h"
#include "windows/HelperEnd.h"
#include "windows/WindowsServices.h"

using namespace quindle;

namespace {

using Kind = WindowMessage::Kind;

/// The windows' services on an invented computer.
class FakeWindowsServices : public WindowsServices
{
public:
    FakeWindowsServices(FakePlatform& computer, HelperEnd& helper)
        : m_computer(computer)
        , m_notifications(helper)
        , m_runLoop(helper)
        , m_application(helper, computer.application)
    {
    }

    Platform platform() override
    {
        return m_computer.platform.with({.distributedNotificationCenter = &m_notifications,
                                         .runLoop = &m_runLoop,
                                         .statusBar = &m_statusBar,
                                         .application = &m_application,
                                         .urlSession = &m_urlSession});
    }

    HelpersNotifications& notifications() override { return m_notifications; }
    void begin(const WindowMessage& /*request*/) override {}
    void follow(const WindowMessage& message, HelperAppDelegate& /*delegate*/) override
    {
        followed.push_back(message.kind);
    }

    std::vector<Kind> followed;

private:
    FakePlatform& m_computer;
    HelpersNotifications m_notifications;
    HelpersRunLoop m_runLoop;
    HelpersApplication m_application;
    SilentStatusBar m_statusBar;
    SilentUrlSession m_urlSession;
};

struct WindowsProgramTest : testing::Test
{
    WindowsProgramTest()
    {
        computer.battery() = {{QStringLiteral("CurrentCapacity"), qint64{66}},
                              {QStringLiteral("MaxCapacity"), qint64{100}},
                              {QStringLiteral("DesignCapacity"), qint64{100}},
                              {QStringLiteral("ManufactureDate"), qint64{17506}},
                              {QStringLiteral("Temperature"), qint64{3031}},
                              {QStringLiteral("IsCharging"), false},
                              {QStringLiteral("ExternalConnected"), false}};
        computer.userDefaults.suiteDefaults.values = {{QStringLiteral("runInBackground"), true}};
        program = std::make_unique<WindowsProgram>(services, helper);
    }

    /// The one window that is open, by its object's name or else its title; "none", or "several".
    static QString shownWindow()
    {
        QStringList names;
        for (const QWidget* window : QApplication::topLevelWidgets())
            if (window->isVisible())
                names.append(window->objectName().isEmpty() ? window->windowTitle() : window->objectName());
        return names.isEmpty() ? QStringLiteral("none") : names.join(u' ');
    }

    void setCharge(qint64 charge) { computer.battery()[QStringLiteral("CurrentCapacity")] = charge; }

    /// What the battery view says.
    static QString shownCharge()
    {
        for (const QWidget* window : QApplication::topLevelWidgets())
            if (const auto* figure = window->findChild<PlainLabel*>(QStringLiteral("figureLabel"));
                figure && window->isVisible())
                return figure->text();
        return {};
    }

    void ask(Kind kind) { program->handle({.kind = kind}); }

    RecordingLink link;
    HelperEnd helper{link};
    FakePlatform computer;
    FakeWindowsServices services{computer, helper};
    std::unique_ptr<WindowsProgram> program;
};

TEST_F(WindowsProgramTest, ShowsWhatItIsAskedFor)
{
    EXPECT_EQ(shownWindow(), QStringLiteral("none"));
    ask(Kind::OpenView);
    EXPECT_EQ(shownWindow(), QStringLiteral("batteryWindow"));
    ask(Kind::OpenView);
    EXPECT_EQ(shownWindow(), QStringLiteral("batteryWindow"));
    ask(Kind::ToggleView);
    EXPECT_EQ(shownWindow(), QStringLiteral("none"));
    ask(Kind::ShowPreferences);
    EXPECT_EQ(shownWindow(), QStringLiteral("preferencesWindow"));
    ask(Kind::ShowMenuBarText);
    const QStringList both = shownWindow().split(u' '); // the toolkit gives them in no order
    EXPECT_EQ(both.size(), 2);
    EXPECT_TRUE(both.contains(QStringLiteral("preferencesWindow"))) << "beside it";
}

TEST_F(WindowsProgramTest, LeavesTheHelpersCopiesOfSettingsAlone)
{
    EXPECT_TRUE(computer.userDefaults.standardDefaults.values.isEmpty());
}

TEST_F(WindowsProgramTest, SaysWhatItHasDone)
{
    ask(Kind::ShowPreferences);
    ask(Kind::OpenView);
    quint32 heard = 0;
    for (const WindowMessage& message : link.told()) {
        if (message.kind == Kind::Heard) {
            EXPECT_EQ(message.number, ++heard);
        }
    }
    EXPECT_EQ(heard, 2U);
    program->sendIdle();
    EXPECT_EQ(link.told(), (std::vector<WindowMessage>{{.kind = Kind::Idle, .number = 2}}));
}

TEST_F(WindowsProgramTest, RefreshesWithTheHelperAndBeforeItShows)
{
    ask(Kind::OpenView);
    EXPECT_EQ(shownCharge(), QStringLiteral("66.0"));
    setCharge(50);
    ask(Kind::Refreshed);
    EXPECT_EQ(shownCharge(), QStringLiteral("50.0"));
    ask(Kind::ToggleView);
    setCharge(49);
    ask(Kind::ToggleView);
    EXPECT_EQ(shownCharge(), QStringLiteral("49.0"));
    EXPECT_EQ(services.followed, (std::vector{Kind::Refreshed, Kind::ToggleView, Kind::ToggleView}));
}

TEST_F(WindowsProgramTest, NothingIsPostedHoweverLongItRuns)
{
    computer.userDefaults.suiteDefaults.values[QStringLiteral("autoUpload")] = true;
    computer.bundle.info->insert(QStringLiteral("QDStatisticsHost"), QStringLiteral("statistics.test"));
    computer.clock.advance(10.0 * 86400);
    ask(Kind::OpenView);
    ask(Kind::Refreshed);
    EXPECT_EQ(computer.urlSession.posted, QStringList());
}

TEST_F(WindowsProgramTest, AnnouncementsOfTheHelperAreHeard)
{
    ask(Kind::ShowMenuBarText);
    link.told();
    program->handle({.kind = Kind::Announced, .text = "SettingsChangedNotification"});
    for (const WindowMessage& message : link.told())
        EXPECT_NE(message.kind, Kind::Announced);
}

TEST_F(WindowsProgramTest, WhatOnlyItSaysIsIgnored)
{
    for (const Kind kind : {Kind::Heard, Kind::Idle, Kind::Watched, Kind::Quit, Kind::Stored})
        ask(kind);
    EXPECT_EQ(shownWindow(), QStringLiteral("none"));
    EXPECT_EQ(link.told(), std::vector<WindowMessage>{});
}

} // namespace
