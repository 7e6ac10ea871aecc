#include "platform/linux/windows/SettingsPortal.h"

#include <QCoreApplication>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCall>
#include <QDBusVariant>
#include <gtest/gtest.h>

#include "platform/linux/session/LinuxRunLoop.h"
#include "tests/support/ComesTrue.h"
#include "tests/support/MessageBus.h"
#include "tests/support/QtPrinters.h"

namespace quindle {
namespace {

/// The settings portal of a desktop, which answers in its protocol's types.
class FakeSettings final : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    explicit FakeSettings(const QDBusConnection& bus)
        : m_bus(bus)
    {
        qDBusRegisterMetaType<PortalSettings>();
        qRegisterMetaType<QDBusVariant>();
        m_bus.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), this,
                             QDBusConnection::ExportScriptableContents);
        m_bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }

    ~FakeSettings() override { QDBusConnection::disconnectFromBus(m_bus.name()); }

    void set(const char* key, uint value)
    {
        settings[QStringLiteral("org.freedesktop.appearance")].insert(QLatin1String(key), value);
        // What the signal says is not used.
        Q_EMIT SettingChanged(QStringLiteral("org.example"), QStringLiteral("key"), QDBusVariant(3));
    }

    PortalSettings settings;
    QStringList asked;
    int questions = 0;

public Q_SLOTS:
    Q_SCRIPTABLE quindle::PortalSettings ReadAll(const QStringList& namespaces)
    {
        ++questions;
        asked = namespaces;
        return settings;
    }

Q_SIGNALS:
    Q_SCRIPTABLE void SettingChanged(const QString& space, const QString& key, const QDBusVariant& value);

private:
    QDBusConnection m_bus;
};

struct SettingsPortalTest : testing::Test
{
    ~SettingsPortalTest() override { QDBusConnection::disconnectFromBus(own); }

    const QString own = QStringLiteral("settings-portal-test");
    SettingsPortalTest() { bus.start(); }

    QDBusConnection connect(const char* name)
    {
        return QDBusConnection::connectToBus(bus.address(), QLatin1String(name));
    }

    MessageBus bus;
    LinuxRunLoop runLoop;
    std::vector<DesktopWishes> heard;
    SettingsPortal portal{runLoop, [this](const DesktopWishes& wishes) { heard.push_back(wishes); }};
};

TEST_F(SettingsPortalTest, IsFollowedLive)
{
    FakeSettings desktop(connect("fake-settings"));
    portal.setBus(connect("settings-portal-test"));
    ASSERT_TRUE(comesTrue([&] { return desktop.questions == 1; }));
    EXPECT_EQ(desktop.asked, namespacesOfWishes());
    desktop.set("color-scheme", 1);
    EXPECT_TRUE(comesTrue([&] { return heard.size() == 1; }));
    EXPECT_TRUE(heard.back().isDark);
    desktop.set("contrast", 1);
    EXPECT_TRUE(comesTrue([&] { return heard.size() == 2; }));
    EXPECT_TRUE(heard.back().hasStrongContrast);
    desktop.set("color-scheme", 0);
    EXPECT_TRUE(comesTrue([&] { return heard.size() == 3; }));
    EXPECT_FALSE(heard.back().isDark);
    const int before = desktop.questions;
    desktop.set("something-else", 1);
    EXPECT_TRUE(comesTrue([&] { return desktop.questions > before; }));
    EXPECT_EQ(heard.size(), 3U) << "the wishes are the same";
}

TEST_F(SettingsPortalTest, AStormOfSignalsCausesTwoQuestionsASecond)
{
    FakeSettings desktop(connect("fake-settings"));
    portal.setBus(connect("settings-portal-test"));
    for (int times = 0; times < 200; ++times)
        desktop.set("color-scheme", 1);
    EXPECT_TRUE(comesTrue([&] { return heard.size() == 1; }));
    EXPECT_LE(desktop.questions, 3);
}

TEST_F(SettingsPortalTest, OneThatComesLaterIsAsked)
{
    QDBusConnection connection = connect("settings-portal-test");
    portal.setBus(connection);
    const QString name = QStringLiteral("org.freedesktop.DBus");
    const QDBusPendingCall last = connection.asyncCall(
        QDBusMessage::createMethodCall(name, QStringLiteral("/"), name, QStringLiteral("GetId")));
    ASSERT_TRUE(comesTrue([&] { return last.isFinished(); }));
    FakeSettings desktop(connect("fake-settings"));
    desktop.settings[QStringLiteral("org.freedesktop.appearance")].insert(QStringLiteral("color-scheme"), 1U);
    EXPECT_TRUE(comesTrue([&] { return heard.size() == 1; }));
    EXPECT_TRUE(!heard.empty() && heard.back().isDark);
}

TEST_F(SettingsPortalTest, WithoutAPortalOrABusNothingIsWished)
{
    portal.setBus(QDBusConnection(QString()));
    QDBusConnection connection = connect("settings-portal-test");
    portal.setBus(connection);
    // The bus answers in order, so the portal's question is answered before this one.
    const QString name = QStringLiteral("org.freedesktop.DBus");
    const QDBusPendingCall last = connection.asyncCall(
        QDBusMessage::createMethodCall(name, QStringLiteral("/"), name, QStringLiteral("GetId")));
    EXPECT_TRUE(comesTrue([&] { return last.isFinished(); }));
    QCoreApplication::processEvents();
    EXPECT_TRUE(heard.empty());
}

} // namespace
} // namespace quindle

#include "SettingsPortalTest.moc"
