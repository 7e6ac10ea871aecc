#include <QCoreApplication>
#include <gtest/gtest.h>

#include "platform/Image.h"
#include "platform/macos/MacLoginItems.h"
#include "platform/macos/MacNotifications.h"
#include "platform/macos/MacRunLoop.h"
#include "platform/macos/MacStatusItem.h"
#include "platform/macos/MacTextReceiver.h"
#include "platform/macos/MacUrlSession.h"
#include "platform/macos/MacWorkspace.h"
#include "tests/platform/macos/FakeSystem.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/Texts.h"

using namespace quindle;

namespace {

TEST(MacNotifications, OwnPostsAreHeardOnceAndAtOnce)
{
    FakeNotificationCalls calls;
    MacDistributedNotificationCenter center(calls, u("me"));
    int heard = 0;
    center.addObserver(u("changed"), [&heard] { ++heard; });
    center.post(u("changed"));
    EXPECT_EQ(heard, 1);
    ASSERT_EQ(calls.posted.size(), 1U);
    calls.deliver(calls.posted[0].first, calls.posted[0].second); // the system's echo
    EXPECT_EQ(heard, 1);
}

TEST(MacNotifications, OthersPostsAreHeardOncePerRegistration)
{
    FakeNotificationCalls calls;
    MacDistributedNotificationCenter center(calls, u("me"));
    int heard = 0;
    for (int time = 0; time < 2; ++time)
        center.addObserver(u("changed"), [&heard] { ++heard; });
    EXPECT_EQ(calls.observed, 1);
    calls.deliver(u("changed"), u("other"));
    EXPECT_EQ(heard, 2);
    calls.deliver(u("changed"), QString()); // one that says nothing of itself
    EXPECT_EQ(heard, 4);
}

TEST(MacRunLoop, TimersHaveTheirTolerance)
{
    FakeTimerCalls calls;
    MacRunLoop loop(calls);
    int ticks = 0;
    loop.scheduleRepeatingTimer(5.0, 2.0, [&ticks] { ++ticks; }); // the loop keeps it
    ASSERT_EQ(calls.started.size(), 1U);
    EXPECT_EQ(calls.started[0]->interval, 5.0);
    EXPECT_EQ(calls.started[0]->tolerance, 2.0);
    calls.tick(0);
    EXPECT_EQ(ticks, 1);
}

TEST(MacRunLoop, WhileSomebodyLooksNoTimerIsLate)
{
    FakeTimerCalls calls;
    MacRunLoop loop(calls);
    loop.scheduleRepeatingTimer(5.0, 2.0, [] {});
    Punctuality first = loop.keepPunctual();
    Punctuality second = loop.keepPunctual();
    loop.scheduleRepeatingTimer(10.0, 3.0, [] {});
    first.reset();
    EXPECT_EQ(calls.started[0]->tolerance, 0.0);
    EXPECT_EQ(calls.started[1]->tolerance, 0.0);
    second.reset();
    EXPECT_EQ(calls.started[0]->tolerance, 2.0);
    EXPECT_EQ(calls.started[1]->tolerance, 3.0);
}

TEST(MacRunLoop, AnInvalidatedTimerIsStopped)
{
    FakeTimerCalls calls;
    MacRunLoop loop(calls);
    std::shared_ptr<Timer> timer;
    int ticks = 0;
    timer = loop.scheduleRepeatingTimer(5.0, 0.0, [&] {
        ++ticks;
        timer->invalidate();
    });
    calls.tick(0);
    EXPECT_TRUE(calls.isStopped(0));
    timer->invalidate();
    EXPECT_EQ(ticks, 1);
    loop.keepPunctual().reset();
}

TEST(MacRunLoop, TimersAndWishesOutliveTheLoop)
{
    FakeTimerCalls calls;
    std::shared_ptr<Timer> timer;
    Punctuality wish;
    {
        MacRunLoop loop(calls);
        timer = loop.scheduleRepeatingTimer(5.0, 0.0, [] {});
        wish = loop.keepPunctual();
    }
    EXPECT_TRUE(calls.isStopped(0));
    timer->invalidate();
    wish.reset();
}

TEST(MacLoginItems, TheOneItemIsTheHelper)
{
    FakeLoginCalls calls;
    MacLoginItems items(calls, u("file:///Applications/Quindle.app/Contents/Resources/Quindle-Helper.app"));
    EXPECT_TRUE(items.snapshot()->empty());
    EXPECT_EQ(items.resolve(1), std::nullopt);
    items.insertBeforeFirst(u("file:///bin/sh"));
    EXPECT_FALSE(calls.isRegistered);
    items.insertBeforeFirst(
        u("file://localhost/Applications/Quindle.app/Contents/Resources/Quindle-Helper.app/"));
    EXPECT_TRUE(calls.isRegistered);
    ASSERT_EQ(items.snapshot()->size(), 1U);
    const LoginItems::Item item = items.snapshot()->front();
    EXPECT_EQ(items.resolve(item),
              u("file:///Applications/Quindle.app/Contents/Resources/Quindle-Helper.app/"));
    items.remove(item + 1);
    EXPECT_TRUE(calls.isRegistered);
    items.remove(item);
    EXPECT_FALSE(calls.isRegistered);
    EXPECT_EQ(items.resolve(item), std::nullopt);
}

TEST(MacLoginItems, SwitchedOnlyWhenDifferent)
{
    FakeLoginCalls calls;
    MacLoginItems items(calls, u("file:///a.app"));
    items.setEnabled(u("id"), false);
    EXPECT_EQ(calls.changes, 0);
    items.setEnabled(u("id"), true);
    items.setEnabled(u("id"), true);
    EXPECT_EQ(calls.changes, 1);
    calls.fault = u("not allowed");
    items.setEnabled(u("id"), false);
    EXPECT_EQ(items.snapshot()->size(), 1U);
}

TEST(MacWorkspace, OpensTheApplicationInAFolderOrThePathItself)
{
    FakeOpenCalls calls;
    MacWorkspace workspace(calls);
    calls.paths = QStringList{u("/Applications"), u("/tmp/folder"), u("/Applications/Quindle.app")};
    workspace.launchApplication(u("/Applications"));
    workspace.launchApplication(u("/tmp/folder"));
    workspace.launchApplication(u("/Applications/Quindle.app"));
    EXPECT_EQ(calls.opened, (QStringList{u("/Applications/Quindle.app"), u("/tmp/folder"),
                                         u("/Applications/Quindle.app")}));
    workspace.launchApplication(u("/gone"));
    workspace.launchApplication(QString());
    EXPECT_EQ(calls.opened.size(), 3);
}

TEST(MacWorkspace, AFailureIsLoggedOnceForEachPath)
{
    FakeOpenCalls calls;
    MacWorkspace workspace(calls);
    testing::internal::CaptureStderr();
    workspace.launchApplication(u("/gone"));
    workspace.launchApplication(u("/gone"));
    workspace.launchApplication(u("/lost"));
    calls.paths = QStringList{u("/gone")};
    workspace.launchApplication(u("/gone"));
    calls.succeeds = false;
    workspace.launchApplication(u("/gone"));
    const QString log = QString::fromStdString(testing::internal::GetCapturedStderr());
    EXPECT_EQ(log.count(u("cannot launch /gone")), 2);
    EXPECT_EQ(log.count(u("cannot launch /lost")), 1);
}

TEST(MacUrlSession, PostsOverHttpsAlone)
{
    FakeHttpCalls calls;
    MacUrlSession session(calls);
    for (const char* url : {"", "https://", "https:///path", "http://host/path", "ftp://host", "host"})
        session.post(u(url), "body", {});
    EXPECT_EQ(calls.asked, QStringList());
    int status = 0;
    QByteArray body;
    session.post(u("https://host/path"), "body", [&](int answeredStatus, const QByteArray& answeredBody) {
        status = answeredStatus;
        body = answeredBody;
    });
    calls.answered({500, "sorry"});
    EXPECT_EQ(status, 500);
    EXPECT_EQ(body, "sorry");
}

TEST(MacUrlSession, AnswersAreForWhoIsStillThere)
{
    FakeHttpCalls calls;
    int answers = 0;
    {
        MacUrlSession session(calls);
        session.post(u("https://host"), {}, [&answers](int, const QByteArray&) { ++answers; });
        calls.answered({200, QByteArray(256 * 1024 + 1, 'x')});
        EXPECT_EQ(answers, 0);
    }
    calls.answered({200, {}});
    EXPECT_EQ(answers, 0);
}

TEST(MacUrlSession, ContentsOfASuccessAlone)
{
    FakeHttpCalls calls;
    MacUrlSession session(calls);
    EXPECT_EQ(session.contents(u("http:///x")), std::nullopt);
    EXPECT_EQ(session.contents(u("https://host/x")), std::nullopt);
    EXPECT_EQ(calls.asked, QStringList());
    EXPECT_EQ(session.contents(u("http://host/x")), std::nullopt);
    const struct
    {
        int status;
        bool isSuccess;
    } statuses[] = {{199, false}, {200, true},  {204, true}, {299, true},
                    {300, false}, {404, false}, {500, false}};
    for (const auto& [status, isSuccess] : statuses) {
        calls.answer = HttpAnswer{status, QByteArray()};
        EXPECT_EQ(session.contents(u("http://host/x")).has_value(), isSuccess) << status;
    }
    calls.answer = HttpAnswer{200, QByteArray(256 * 1024, 'x')};
    EXPECT_TRUE(session.contents(u("http://host/x")).has_value());
    calls.answer->body += 'x';
    EXPECT_EQ(session.contents(u("http://host/x")), std::nullopt);
}

class MacItem : public testing::Test
{
protected:
    FakeBarItem shown;
    MacStatusBar bar{[this](double) { return std::make_unique<FakeStatusItemCalls>(shown); }, u("/r")};
    std::unique_ptr<StatusItem> item = bar.statusItemWithLength(variableStatusItemLength);
};

TEST_F(MacItem, TitleImageFontAndToolTip)
{
    item->setTitle(u("80.0%"));
    EXPECT_EQ(item->title(), u("80.0%"));
    item->setMenuBarFontSize(12);
    const auto image = std::make_shared<Image>(u("#bat04"));
    item->setImage(image);
    EXPECT_EQ(item->image(), image);
    image->setSize({16, 16}); // as the delegate does it, afterwards
    item->setToolTipText(u("a\nb"));
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(shown.title, u("80.0%"));
    EXPECT_EQ(shown.fontSize, 12);
    EXPECT_EQ(shown.image, u("/r/icons/#bat04-symbolic.svg"));
    EXPECT_EQ(shown.imageSize, QSizeF(16, 16));
    EXPECT_EQ(shown.toolTip, u("a\nb"));
    EXPECT_EQ(shown.changes, 4);
    item->setImage(nullptr);
    item->setFallbackText(u("80"));
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(shown.image, QString());
    EXPECT_EQ(shown.title, u("80.0%"));
}

TEST_F(MacItem, WhatIsReplacedAtOnceAndWhatStaysIsNotShown)
{
    const auto refresh = [this] {
        item->setTitle(u("100 %"));
        item->setTitle(u("80.0%"));
        item->setToolTipText(u("Full"));
        QCoreApplication::sendPostedEvents();
    };
    refresh();
    EXPECT_EQ(shown.changes, 2);
    refresh();
    EXPECT_EQ(shown.changes, 2);
    item->setTitle(u("79.0%"));
    item.reset();
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(shown.title, u("80.0%")) << "it has gone";
}

StatusMenu::Row row(StatusMenu::Kind kind, const char* text, int parent = 0)
{
    StatusMenu::Row made;
    made.kind = kind;
    made.text = u(text);
    made.parent = parent;
    return made;
}

TEST_F(MacItem, TheMenuIsThatOfTheRows)
{
    using Kind = StatusMenu::Kind;
    StatusMenu menu;
    int chosen = 0;
    int opened = 0;
    menu.setViewOpener([&opened] { ++opened; });
    menu.addRow(row(Kind::Fact, "Charge: 80 %"));
    menu.addRow(row(Kind::Submenu, "Details"));
    menu.addRow(row(Kind::Fact, "Cycles", 2));
    menu.addRow(row(Kind::Separator, ""));
    menu.addRow(row(Kind::OpenView, "Show"));
    StatusMenu::Row quit = row(Kind::Action, "Quit & go");
    quit.chosen = [&chosen] { ++chosen; };
    menu.addRow(quit);
    StatusMenu::Row version = row(Kind::Action, "Version 1");
    version.visible = false;
    version.enabled = false;
    menu.addRow(version);
    item->setMenu(&menu);
    const std::vector<MenuEntry> wanted{
        {.id = 1, .title = u("Charge: 80 %")},
        {.id = 2, .title = u("Details"), .isEnabled = true},
        {.id = 3, .parent = 2, .title = u("Cycles")},
        {.id = 4, .isSeparator = true},
        {.id = 5, .title = u("Show"), .isEnabled = true},
        {.id = 6, .title = u("Quit & go"), .isEnabled = true},
        {.id = 7, .title = u("Version 1"), .isHidden = true},
    };
    EXPECT_TRUE(shown.entries == wanted);
    shown.chosen(5);
    shown.chosen(6);
    shown.chosen(7);
    shown.chosen(99);
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(chosen, 1);
    menu.setText(1, u("Charge: 79 %"));
    menu.setVisible(7, true);
    EXPECT_EQ(shown.entries[0].title, u("Charge: 79 %"));
    EXPECT_FALSE(shown.entries[6].isHidden);
    EXPECT_EQ(shown.updates, 2);
    item.reset();
    menu.setText(1, u("Charge: 78 %"));
    EXPECT_EQ(shown.updates, 2);
}

TEST_F(MacItem, WithoutAMenu)
{
    StatusMenu menu;
    menu.addRow(row(StatusMenu::Kind::Action, "Quit"));
    item->setMenu(&menu);
    item->setMenu(nullptr);
    EXPECT_TRUE(shown.entries.empty());
}

} // namespace
