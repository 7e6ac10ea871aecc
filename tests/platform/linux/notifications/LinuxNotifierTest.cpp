#include "platform/linux/notifications/LinuxNotifier.h"

#include <memory>

#include <gtest/gtest.h>

#include "tests/platform/linux/notifications/FakeServer.h"
#include "tests/platform/linux/notifications/SessionBusOfTest.h"
#include "tests/support/ComesTrue.h"
#include "tests/support/LogLines.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/Texts.h"

using namespace quindle;

namespace {

const QString service = latin("org.freedesktop.Notifications");
const QString portal = latin("org.freedesktop.portal.Desktop");

struct LinuxNotifierTest : testing::Test
{
    void start(const QString& name = service, const char* program = "server")
    {
        server = std::make_unique<FakeServer>(bus.program(program), name);
    }

    void show(const char* title, Notification::Urgency urgency = Notification::Urgency::Normal)
    {
        notifier.show({latin(title), latin("20% left"), latin("battery-low"), urgency});
    }

    void expectCalls(const QStringList& calls)
    {
        EXPECT_TRUE(comesTrue([&] { return server->calls.size() >= calls.size(); }));
        EXPECT_EQ(std::exchange(server->calls, {}), calls);
    }

    SessionBusOfTest bus;
    std::unique_ptr<FakeServer> server;
    LinuxNotifier notifier;
};

TEST_F(LinuxNotifierTest, ShowsReplacesAndWithdrawsOneNotification)
{
    start();
    show("Low");
    expectCalls({latin("Notify|Quindle|0|battery-low|Low|20% left|-1")});
    EXPECT_EQ(server->values, QVariantMap({{latin("urgency"), QVariant::fromValue<uchar>(1)},
                                           {latin("category"), latin("device")},
                                           {latin("desktop-entry"), latin("quindle")}}));
    show("Lower", Notification::Urgency::Critical);
    expectCalls({latin("Notify|Quindle|7|battery-low|Lower|20% left|0")});
    EXPECT_EQ(server->values.value(latin("urgency")), QVariant::fromValue<uchar>(2));
    notifier.withdraw();
    expectCalls({latin("CloseNotification|7")});
    notifier.withdraw();
    show("Low");
    expectCalls({latin("Notify|Quindle|0|battery-low|Low|20% left|-1")});
}

TEST_F(LinuxNotifierTest, DoesOneThingAfterTheOther)
{
    start();
    show("one");
    show("two");
    notifier.withdraw();
    show("three");
    expectCalls({latin("Notify|Quindle|0|battery-low|one|20% left|-1"),
                 latin("Notify|Quindle|7|battery-low|three|20% left|-1")});
}

TEST_F(LinuxNotifierTest, WithdrawsWhatTheServerHasNotYetShown)
{
    start();
    show("one");
    notifier.withdraw();
    expectCalls({latin("Notify|Quindle|0|battery-low|one|20% left|-1"), latin("CloseNotification|7")});
}

TEST_F(LinuxNotifierTest, TakesNoOtherServersNotificationForItsOwn)
{
    start();
    show("one");
    expectCalls({latin("Notify|Quindle|0|battery-low|one|20% left|-1")});
    server.reset();
    start(service, "another");
    show("two");
    expectCalls({latin("Notify|Quindle|0|battery-low|two|20% left|-1")});
    server.reset();
    start(service, "third");
    notifier.withdraw();
    show("three");
    expectCalls({latin("Notify|Quindle|0|battery-low|three|20% left|-1")});
}

TEST_F(LinuxNotifierTest, UsesThePortalWhereThereIsNoService)
{
    LogLines log;
    start(portal);
    show("one", Notification::Urgency::Critical);
    expectCalls({latin("AddNotification|battery-warning")});
    EXPECT_EQ(server->values, QVariantMap({{latin("title"), latin("one")},
                                           {latin("body"), latin("20% left")},
                                           {latin("priority"), latin("urgent")}}));
    show("two");
    expectCalls({latin("AddNotification|battery-warning")});
    notifier.withdraw();
    expectCalls({latin("RemoveNotification|battery-warning")});
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_F(LinuxNotifierTest, SaysOnceThatThereIsNeither)
{
    LogLines log;
    for (const char* title : {"one", "two", "three"}) {
        show(title);
        notifier.withdraw();
    }
    show("four");
    EXPECT_TRUE(comesTrue([&log] { return !log.lines().isEmpty(); }));
    start();
    comesTrue([this] {
        show("five");
        return !server->calls.isEmpty();
    });
    EXPECT_EQ(log.lines().size(), 1) << log.lines().join(u'\n').toStdString();
}

TEST_F(LinuxNotifierTest, IsQuietWithoutABus)
{
    LogLines log;
    bus.stop();
    show("one");
    EXPECT_TRUE(comesTrue([&log] { return !log.lines().isEmpty(); }));
    show("two");
    notifier.withdraw();
    notifier.finish();
    EXPECT_EQ(log.lines().size(), 1);
}

} // namespace
