#include "platform/linux/statusitem/InterfaceFont.h"

#include <QCoreApplication>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusVariant>
#include <gtest/gtest.h>

#include "platform/linux/display/X11Display.h"
#include "platform/linux/session/LinuxRunLoop.h"
#include "tests/platform/linux/statusitem/PrivateBus.h"
#include "tests/support/ComesTrue.h"
#include "tests/support/QtPrinters.h"

namespace quindle {
namespace {

/// The settings portal of a desktop.
class FakePortal final : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    explicit FakePortal(const QDBusConnection& bus)
        : m_bus(bus)
    {
        m_bus.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), this,
                             QDBusConnection::ExportScriptableContents);
        m_bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }

    ~FakePortal() override { QDBusConnection::disconnectFromBus(m_bus.name()); }

    void announce(const QString& space, const QString& key)
    {
        Q_EMIT SettingChanged(space, key, QDBusVariant(QStringLiteral("Ignored 9")));
    }

    QVariant answer = QStringLiteral("Cantarell 11");
    QStringList asked;

public Q_SLOTS:
    Q_SCRIPTABLE QDBusVariant Read(const QString& space, const QString& key)
    {
        asked.append(space + u' ' + key);
        if (!answer.isValid())
            sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("no such setting"));
        return QDBusVariant(QVariant::fromValue(QDBusVariant(answer.isValid() ? answer : QVariant(0))));
    }

Q_SIGNALS:
    Q_SCRIPTABLE void SettingChanged(const QString& space, const QString& key, const QDBusVariant& value);

private:
    QDBusConnection m_bus;
};

class InterfaceFontTest : public testing::Test
{
protected:
    InterfaceFontTest()
    {
        font.setBus(connection);
        QObject::connect(&font, &InterfaceFont::changed, [this] { ++changes; });
    }

    ~InterfaceFontTest() override { QDBusConnection::disconnectFromBus(connection.name()); }

    /// The bus has carried everything that was sent before, and all of it was answered.
    void settle()
    {
        for (int times = 0; times < 3; ++times) {
            const QString name = QStringLiteral("org.freedesktop.DBus");
            const QDBusPendingCall last = connection.asyncCall(
                QDBusMessage::createMethodCall(name, QStringLiteral("/"), name, QStringLiteral("GetId")));
            EXPECT_TRUE(comesTrue([&] { return last.isFinished(); }));
            QCoreApplication::processEvents();
        }
    }

    PrivateBus bus;
    QDBusConnection connection = bus.connect();
    X11Display display{QByteArray(), std::chrono::milliseconds(100)};
    LinuxRunLoop runLoop;
    InterfaceFont font{display, runLoop};
    int changes = 0;
};

TEST_F(InterfaceFontTest, ThePortalIsAskedOnceAndOnlyWhenTextIsDrawn)
{
    FakePortal portal(bus.connect());
    settle();
    EXPECT_EQ(portal.asked, QStringList());
    for (int times = 0; times < 5; ++times)
        font.need();
    EXPECT_TRUE(comesTrue([this] { return font.family() == u"Cantarell"; }));
    font.need();
    settle();
    EXPECT_EQ(portal.asked, QStringList{QStringLiteral("org.gnome.desktop.interface font-name")});
    EXPECT_EQ(changes, 1);
}

TEST_F(InterfaceFontTest, AChangedSettingIsAskedFor)
{
    FakePortal portal(bus.connect());
    font.need();
    EXPECT_TRUE(comesTrue([this] { return changes == 1; }));
    portal.answer = QStringLiteral("Noto Sans Bold 12");
    portal.announce(QStringLiteral("org.gnome.desktop.interface"), QStringLiteral("color-scheme"));
    portal.announce(QStringLiteral("org.other"), QStringLiteral("font-name"));
    settle();
    EXPECT_EQ(portal.asked.size(), 1) << "other settings are nothing to the font";
    portal.announce(QStringLiteral("org.gnome.desktop.interface"), QStringLiteral("font-name"));
    EXPECT_TRUE(comesTrue([this] { return changes == 2; }));
    EXPECT_EQ(font.family(), u"Noto Sans");
}

TEST_F(InterfaceFontTest, AnnouncementsWithoutEndAreAnsweredTwiceASecondAtMost)
{
    FakePortal portal(bus.connect());
    font.need();
    EXPECT_TRUE(comesTrue([this] { return changes == 1; }));
    for (int times = 0; times < 500; ++times)
        portal.announce(QStringLiteral("org.gnome.desktop.interface"), QStringLiteral("font-name"));
    settle();
    EXPECT_LE(portal.asked.size(), 3);
    EXPECT_EQ(changes, 1) << "the same family is no change";
}

TEST_F(InterfaceFontTest, AnotherHostAsksAnew)
{
    FakePortal portal(bus.connect());
    font.need();
    EXPECT_TRUE(comesTrue([this] { return changes == 1; }));
    portal.answer = QStringLiteral("Sans 10");
    font.forgetAnswer();
    EXPECT_EQ(font.family(), u"Cantarell") << "until the answer is there";
    font.need();
    EXPECT_TRUE(comesTrue([this] { return font.family() == u"Sans"; }));
}

TEST_F(InterfaceFontTest, WithoutAPortalAnAnswerOrABusThereIsNone)
{
    font.need();
    settle();
    FakePortal portal(bus.connect());
    portal.answer = QVariant();
    font.forgetAnswer();
    font.need();
    settle();
    EXPECT_TRUE(comesTrue([&portal] { return portal.asked.size() == 1; }));
    portal.answer = 12;
    font.forgetAnswer();
    font.need();
    EXPECT_TRUE(comesTrue([&portal] { return portal.asked.size() == 2; }));
    settle();
    EXPECT_EQ(font.family(), QString());
    font.setBus(QDBusConnection(QString()));
    font.need();
    EXPECT_EQ(font.family(), QString());
    EXPECT_EQ(changes, 0);
}

TEST_F(InterfaceFontTest, MayEndBeforeTheAnswer)
{
    FakePortal portal(bus.connect());
    auto shortLived = std::make_unique<InterfaceFont>(display, runLoop);
    shortLived->setBus(connection);
    shortLived->need();
    shortLived.reset();
    settle();
    EXPECT_EQ(portal.asked.size(), 1);
}

} // namespace
} // namespace quindle

#include "InterfaceFontTest.moc"
