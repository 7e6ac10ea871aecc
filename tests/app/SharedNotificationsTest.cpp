#include "app/SharedNotifications.h"

#include <gtest/gtest.h>

#include "tests/support/FakePlatform.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

struct SharedNotificationsTest : testing::Test
{
    SharedNotificationsTest()
    {
        shared.setForward([this](const QString& forwarded) { told.append(forwarded); });
        for (int times = 0; times < 2; ++times)
            shared.addObserver(name, [this] { ++heard; });
    }

    QString name = QStringLiteral("SettingsChangedNotification");
    FakeDistributedNotificationCenter below;
    SharedNotifications shared{below};
    QStringList told;
    int heard = 0;
};

TEST_F(SharedNotificationsTest, WhatIsHeardIsForwardedOnce)
{
    below.post(name);
    EXPECT_EQ(told, QStringList{name});
    EXPECT_EQ(heard, 2);
    below.post(QStringLiteral("Other"));
    EXPECT_EQ(told.size(), 1);
}

TEST_F(SharedNotificationsTest, OwnPostsGoOutAndAreForwarded)
{
    shared.post(name);
    EXPECT_EQ(below.posted, QStringList{name});
    EXPECT_EQ(told, QStringList{name});
    EXPECT_EQ(heard, 2);
}

TEST_F(SharedNotificationsTest, ThoseOfTheWindowsGoOutAndDoNotComeBack)
{
    shared.postForWindows(name);
    EXPECT_EQ(below.posted, QStringList{name});
    EXPECT_EQ(told, QStringList());
    EXPECT_EQ(heard, 2);
    below.post(name);
    EXPECT_EQ(told, QStringList{name});
}

TEST_F(SharedNotificationsTest, NobodyNeedsToListen)
{
    shared.setForward({});
    shared.post(name);
    EXPECT_EQ(heard, 2);
}

} // namespace
