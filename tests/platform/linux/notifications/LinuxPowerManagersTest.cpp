#include "platform/linux/notifications/LinuxPowerManagers.h"

#include <gtest/gtest.h>

#include "tests/platform/linux/notifications/SessionBusOfTest.h"
#include "tests/support/ComesTrue.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/Texts.h"

using namespace quindle;

namespace {

/// The answer to a question; "none" while there is none.
QString answerOf(LinuxPowerManagers& managers)
{
    QString answer = latin("none");
    managers.ask([&answer](const QString& desktop) { answer = desktop; });
    EXPECT_EQ(answer, latin("none")) << "it comes later";
    EXPECT_TRUE(comesTrue([&answer] { return answer != latin("none"); }));
    return answer;
}

TEST(LinuxPowerManagersTest, KnowsTheOnesThatWarn)
{
    const auto desktop = [](const char* name) { return desktopThatWarns({latin(":1.0"), latin(name)}); };
    EXPECT_EQ(desktop("org.gnome.SettingsDaemon.Power"), latin("GNOME"));
    EXPECT_EQ(desktop("org.cinnamon.SettingsDaemon.Power"), latin("Cinnamon"));
    EXPECT_EQ(desktop("org.kde.Solid.PowerManagement"), latin("Plasma"));
    EXPECT_EQ(desktop("org.xfce.PowerManager"), latin("Xfce"));
    EXPECT_EQ(desktop("org.mate.PowerManager"), latin("MATE"));
    EXPECT_EQ(desktop("org.lxqt.lxqt-powermanagement"), latin("LXQt"));
    EXPECT_EQ(desktop("org.freedesktop.PowerManagement"), QString());
}

TEST(LinuxPowerManagersTest, FindsThemOnTheSessionBusAsTheyComeAndGo)
{
    const SessionBusOfTest bus;
    LinuxPowerManagers managers;
    EXPECT_EQ(answerOf(managers), QString());
    QDBusConnection xfce = bus.program("xfce");
    ASSERT_TRUE(xfce.registerService(latin("org.xfce.PowerManager")));
    EXPECT_EQ(answerOf(managers), latin("Xfce"));
    ASSERT_TRUE(xfce.unregisterService(latin("org.xfce.PowerManager")));
    EXPECT_EQ(answerOf(managers), QString());
}

TEST(LinuxPowerManagersTest, FindsThemAfterTheBusHasComeBack)
{
    SessionBusOfTest bus;
    LinuxPowerManagers managers;
    EXPECT_EQ(answerOf(managers), QString());
    bus.stop();
    EXPECT_TRUE(comesTrue([] { return !QDBusConnection::sessionBus().isConnected(); }));
    EXPECT_EQ(answerOf(managers), QString());
    bus.start();
    QDBusConnection xfce = bus.program("xfce-again");
    ASSERT_TRUE(xfce.registerService(latin("org.xfce.PowerManager")));
    EXPECT_EQ(answerOf(managers), latin("Xfce"));
}

} // namespace
