// A watcher that came and went endlessly was answered each time, and each answer left memory behind for good.

#include <QCoreApplication>
#include <QDBusMessage>
#include <gtest/gtest.h>

#include "platform/linux/statusitem/WatcherLink.h"
#include "tests/platform/linux/statusitem/FakeTrayHost.h"
#include "tests/platform/linux/statusitem/PrivateBus.h"
#include "tests/support/ComesTrue.h"
#include "tests/support/FakePlatform.h"

namespace quindle {
namespace {

class FlappingWatcherTest : public testing::Test
{
protected:
    FlappingWatcherTest()
    {
        QObject::connect(&link, &WatcherLink::watcherFound, &link, [this] { ++found; });
        QObject::connect(&link, &WatcherLink::watcherLost, &link, [this] { ++lost; });
        link.start();
        EXPECT_TRUE(comesTrue([this] { return lost == 1; }));
        runLoop.advance(10);
    }

    ~FlappingWatcherTest() override { QDBusConnection::disconnectFromBus(connection.name()); }

    /// Everything that the bus has sent the link by now is handled, and what the link asked in turn is
    /// answered.
    void settle()
    {
        const QString name = QStringLiteral("org.freedesktop.DBus");
        for (int turn = 0; turn < 3; ++turn) {
            connection.call(
                QDBusMessage::createMethodCall(name, QStringLiteral("/"), name, QStringLiteral("GetId")));
            QCoreApplication::processEvents();
        }
    }

    FakeClock clock;
    FakeRunLoop runLoop{clock};
    PrivateBus bus;
    FakeTrayHost host{bus.connect()};
    QDBusConnection connection = bus.connect();
    WatcherLink link{connection, QStringLiteral("/StatusNotifierItem"), std::chrono::hours(1), runLoop};
    int found = 0;
    int lost = 0;
};

TEST_F(FlappingWatcherTest, IsAnsweredTwiceASecondAtMost)
{
    for (int time = 0; time < 100; ++time) {
        ASSERT_TRUE(host.appear());
        host.disappear();
    }
    ASSERT_TRUE(host.appear());
    settle();
    EXPECT_EQ(found, 1);
    EXPECT_EQ(lost, 1);
    runLoop.advance(0.5);
    EXPECT_TRUE(comesTrue([this] { return found == 2; })); // it has forgotten its items meanwhile
    runLoop.advance(10);
    settle();
    EXPECT_EQ(found, 2);
    EXPECT_EQ(lost, 1);
}

TEST_F(FlappingWatcherTest, WhatItIsInTheEndIsAnswered)
{
    ASSERT_TRUE(host.appear());
    host.disappear();
    ASSERT_TRUE(host.appear());
    host.disappear();
    settle();
    runLoop.advance(0.5);
    EXPECT_TRUE(comesTrue([this] { return lost == 2; }));
}

TEST_F(FlappingWatcherTest, OneThatComesOnceIsAnsweredAtOnce)
{
    ASSERT_TRUE(host.appear());
    EXPECT_TRUE(comesTrue([this] { return found == 1; }));
    runLoop.advance(1);
    host.disappear();
    EXPECT_TRUE(comesTrue([this] { return lost == 2; }));
}

} // namespace
} // namespace quindle
