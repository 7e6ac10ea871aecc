#include "platform/linux/notifications/LinuxPowerManagers.h"

#include <utility>

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

// Programs that only keep the computer awake take this name too.
TEST(LinuxPowerManagersTest, IsNotAnyProgramThatKeepsTheComputerAwake)
{
    EXPECT_EQ(desktopThatWarns({latin(":1.0"), latin("org.freedesktop.PowerManagement")}), QString());
    EXPECT_EQ(desktopThatWarns({latin(":1.0"), latin("org.xfce.PowerManager")}), latin("Xfce"));
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

TEST(LinuxPowerManagersTest, FindsEachByTheNameThatItTakes)
{
    const SessionBusOfTest bus;
    LinuxPowerManagers managers;
    for (const auto& [name, desktop] : {
             std::pair{"org.gnome.SettingsDaemon.Power", "GNOME"},
             std::pair{"org.cinnamon.SettingsDaemon.Power", "Cinnamon"},
             std::pair{"org.kde.Solid.PowerManagement", "Plasma"},
             std::pair{"org.xfce.PowerManager", "Xfce"},
             std::pair{"org.mate.PowerManager", "MATE"},
             std::pair{"org.lxqt.lxqt-powermanagement", "LXQt"},
         }) {
        QDBusConnection manager = bus.program(desktop);
        ASSERT_TRUE(manager.registerService(latin(name)));
        EXPECT_EQ(answerOf(managers), latin(desktop));
        ASSERT_TRUE(manager.unregisterService(latin(name)));
    }
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
