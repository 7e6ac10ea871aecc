#include "windows/SharedServices.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

#include "tests/support/FakePlatform.h"
#include "tests/support/QtPrinters.h"
#include "tests/windows/RecordingLink.h"
#include "windows/HelperEnd.h"

using namespace quindle;

namespace {

using Kind = WindowMessage::Kind;
using Messages = std::vector<WindowMessage>;

class CountingTitle : public StatusBarTitle
{
public:
    void updateStatusBarTitle() override { ++updates; }
    void reloadBattery() override { ++reloads; }
    std::optional<TitleValues> titleValues() const override { return TitleValues{}; }
    Punctuality watchValues() const override { return watched; }

    int updates = 0;
    int reloads = 0;
    Punctuality watched = std::make_shared<int>();
};

struct SharedServicesTest : testing::Test
{
    RecordingLink link;
    HelperEnd helper{link};
};

TEST_F(SharedServicesTest, TheHelperLearnsWhenSomebodyLooks)
{
    HelpersRunLoop loop(helper);
    Punctuality view = loop.keepPunctual();
    Punctuality preview = loop.keepPunctual();
    EXPECT_EQ(link.told(), (Messages{{.kind = Kind::Watched, .number = 1}}));
    view.reset();
    EXPECT_EQ(link.told(), Messages{});
    preview.reset();
    EXPECT_EQ(link.told(), Messages{{.kind = Kind::Watched}});
    view = loop.keepPunctual();
    EXPECT_EQ(link.told(), (Messages{{.kind = Kind::Watched, .number = 1}}));
}

TEST_F(SharedServicesTest, WhatThePanelShowsIsKnownOnceTheHelperHasSentIt)
{
    CountingTitle own;
    SharedTitle title(helper, own);
    EXPECT_EQ(title.shownItem(), std::nullopt);
    const ShownItem shown{ShownItem::Form::Number, QStringLiteral("87"), "PNG"};
    title.setShownItem(shown);
    EXPECT_EQ(title.shownItem(), shown);
}

TEST_F(SharedServicesTest, TimersNeverFire)
{
    HelpersRunLoop loop(helper);
    const auto timer = loop.scheduleRepeatingTimer(0.001, 0, [] { FAIL() << "the helper refreshes"; });
    ASSERT_TRUE(timer);
    for (int turn = 0; turn < 20; ++turn)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
    timer->invalidate();
    EXPECT_EQ(link.told(), Messages{});
}

TEST_F(SharedServicesTest, NotificationsGoThroughTheHelper)
{
    HelpersNotifications notifications(helper);
    const QString name = QStringLiteral("SettingsChangedNotification");
    int heard = 0;
    notifications.addObserver(name, [&heard] { ++heard; });
    notifications.post(name);
    EXPECT_EQ(heard, 1) << "its own, before post returns";
    EXPECT_EQ(link.told(), (Messages{{.kind = Kind::Announced, .text = name.toUtf8()}}));
    notifications.hear(name);
    EXPECT_EQ(heard, 2);
    EXPECT_EQ(link.told(), Messages{}) << "it is not sent back";
}

TEST_F(SharedServicesTest, QuittingIsForBoth)
{
    FakeApplication windows;
    HelpersApplication application(helper, windows);
    application.activateIgnoringOtherApplications();
    EXPECT_EQ(windows.activated, 1);
    application.terminate();
    EXPECT_EQ(link.told(), Messages{{.kind = Kind::Quit}});
    EXPECT_EQ(windows.terminated, 1);
}

TEST_F(SharedServicesTest, TheTitleIsRefreshedInBoth)
{
    CountingTitle own;
    SharedTitle title(helper, own);
    title.updateStatusBarTitle();
    EXPECT_EQ(link.told(), Messages{{.kind = Kind::RefreshTitle}});
    title.reloadBattery();
    EXPECT_EQ(link.told(), Messages{{.kind = Kind::ReloadBattery}});
    EXPECT_EQ(own.updates, 1);
    EXPECT_EQ(own.reloads, 1);
    EXPECT_TRUE(title.titleValues());
    EXPECT_EQ(title.watchValues(), own.watched);
}

} // namespace
