#include "platform/linux/session/InstanceBusName.h"

#include <optional>

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <gtest/gtest.h>

#include "platform/linux/session/ActivationToken.h"
#include "tests/support/MessageBus.h"

using namespace quindle;

namespace {

// Each test runs in a process of its own (CTest): the process's shared connection lasts as long.
class InstanceBusNameTest : public testing::Test
{
protected:
    InstanceBusNameTest()
    {
        bus.start();
        qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address().toUtf8());
        first.emplace(helperInstance());
        first->setShowRequested([this] { shownWith = activationTokenOfProcess(); });
    }

    /// As another start does.
    void activate(const QVariantMap& platformData)
    {
        QDBusConnection other = QDBusConnection::connectToBus(bus.address(), QStringLiteral("other"));
        QDBusMessage call = QDBusMessage::createMethodCall(
            QStringLiteral("com.fernhollow.Quindle-Helper"), QStringLiteral("/com/fernhollow/Quindle_Helper"),
            QStringLiteral("org.freedesktop.Application"), QStringLiteral("Activate"));
        call << platformData;
        shownWith.reset();
        other.asyncCall(call);
        EXPECT_TRUE(comesTrue([this] { return shownWith.has_value(); }));
        QDBusConnection::disconnectFromBus(QStringLiteral("other"));
    }

    MessageBus bus;
    std::optional<InstanceBusName> first;
    std::optional<QByteArray> shownWith;
};

TEST_F(InstanceBusNameTest, AnotherStartsTokenIsForItsWindowOnly)
{
    ASSERT_TRUE(first->start());
    const QString key = QStringLiteral("activation-token");
    activate({{key, QStringLiteral("token-of-the-start")}});
    EXPECT_EQ(shownWith, QByteArray("token-of-the-start"));
    EXPECT_EQ(activationTokenOfProcess(), QByteArray());
    activate({});
    EXPECT_EQ(shownWith, QByteArray());
    activate({{key, QString(600, u'x')}});
    EXPECT_EQ(shownWith, QByteArray());
    activate({{key, 7}});
    EXPECT_EQ(shownWith, QByteArray("7"));
}

TEST_F(InstanceBusNameTest, EachProgramRunsOnce)
{
    InstanceBusName application(applicationInstance());
    ASSERT_TRUE(first->start());
    const auto answer = application.start();
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->outcome, StartAnswer::Outcome::First);
    EXPECT_FALSE(shownWith) << "the helper was asked for the application";
}

} // namespace
