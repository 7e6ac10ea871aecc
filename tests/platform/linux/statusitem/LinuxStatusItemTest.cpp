#include "platform/linux/statusitem/LinuxStatusItem.h"

#include <QFile>
#include <gmock/gmock.h>

#include "tests/platform/linux/statusitem/StatusItemFixture.h"
#include "tests/support/QtPrinters.h"

namespace quindle {
namespace {

class LinuxStatusItemTest : public StatusItemFixture
{
};

TEST_F(LinuxStatusItemTest, registersByPathOnItsConnection)
{
    makeRegisteredItem();
    EXPECT_EQ(host.items(), QStringList{host.itemConnection() + u("/StatusNotifierItem")});
}

TEST_F(LinuxStatusItemTest, properties)
{
    makeRegisteredItem();
    EXPECT_EQ(host.itemProperty("Category"), u("Hardware"));
    EXPECT_EQ(host.itemProperty("Id"), u("quindle-helper"));
    EXPECT_EQ(host.itemProperty("Status"), u("Active"));
    EXPECT_EQ(host.itemProperty("Title"), u("87.0%"));
    EXPECT_EQ(host.itemProperty("WindowId"), 0);
    EXPECT_EQ(host.itemProperty("ItemIsMenu"), false);
    EXPECT_EQ(host.itemProperty("Menu").value<QDBusObjectPath>().path(), u("/MenuBar"));
    EXPECT_EQ(host.itemProperty("XAyatanaLabel"), u("87.0%"));
    EXPECT_EQ(host.itemProperty("XAyatanaLabelGuide"), u("100.0%"));
    EXPECT_EQ(host.itemProperty("XAyatanaOrderingIndex"), 0U);
    for (const char* empty : {"IconName", "IconThemePath", "OverlayIconName", "AttentionIconName"}) {
        EXPECT_TRUE(host.itemProperty(empty).isValid()) << empty;
        EXPECT_EQ(host.itemProperty(empty), QString()) << empty;
    }
    EXPECT_EQ(pixmaps("OverlayIconPixmap").size(), 0);
    EXPECT_EQ(pixmaps("AttentionIconPixmap").size(), 0);
    ASSERT_EQ(pixmaps("IconPixmap").size(), 3);
    EXPECT_EQ(pixmaps("IconPixmap").at(2).pixels.size(), 44 * 44 * 4);
    const auto toolTip = demarshalled<NotifierToolTip>(host.itemProperty("ToolTip"));
    EXPECT_EQ(toolTip.title, u("87.0%"));
    EXPECT_EQ(toolTip.body, u("R&amp;D"));
}

TEST_F(LinuxStatusItemTest, interfacesAreIntrospectable)
{
    makeRegisteredItem();
    const auto introspect = [this](const char* path) {
        const auto answer = host.call(path, "org.freedesktop.DBus.Introspectable", "Introspect");
        return answer.arguments().value(0).toString().toStdString();
    };
    using testing::HasSubstr;
    EXPECT_THAT(introspect(itemPath), HasSubstr("<method name=\"Activate\">"));
    EXPECT_THAT(introspect(itemPath), HasSubstr("type=\"(sa(iiay)ss)\""));
    EXPECT_THAT(introspect(menuObject), HasSubstr("<method name=\"GetLayout\">"));
    EXPECT_THAT(introspect(menuObject), HasSubstr("type=\"(ia{sv}av)\""));
    EXPECT_THAT(introspect(menuObject), HasSubstr("type=\"a(isvu)\""));
}

TEST_F(LinuxStatusItemTest, interimTitleNeverLeavesTheProcess)
{
    makeRegisteredItem();
    item->setTitle(u("100 %"));
    item->setTitle(u("86.9%"));
    item->setTitle(u("86.9%"));
    settle();
    const auto messages = host.lastMessages();
    EXPECT_EQ(host.takeSignals(), (QStringList{u("NewTitle"), u("NewToolTip"), u("XAyatanaNewLabel")}));
    EXPECT_EQ(messages.last().arguments(), (QVariantList{u("86.9%"), u("100.0%")}));
    EXPECT_EQ(host.itemProperty("Title"), u("86.9%"));
}

TEST_F(LinuxStatusItemTest, nothingIsSentWhenNothingHasChanged)
{
    makeRegisteredItem();
    item->setMenuBarFontSize(12.0);
    item->setTitle(u("100 %"));
    item->setTitle(u("87.0%"));
    item->setTitle(u("87.0%"));
    item->setImage(std::make_shared<Image>(u("#bat34")));
    menu.setText(1, u("100 %"));
    menu.setText(1, u("87.0%"));
    settle();
    EXPECT_EQ(host.takeSignals(), QStringList());
}

TEST_F(LinuxStatusItemTest, imageChange)
{
    makeRegisteredItem();
    item->setImage(std::make_shared<Image>(u("#bat24")));
    settle();
    EXPECT_EQ(host.takeSignals(), QStringList{u("NewIcon")});
    item->setImage(nullptr);
    settle();
    EXPECT_EQ(host.takeSignals(), QStringList{u("NewIcon")});
    EXPECT_EQ(pixmaps("IconPixmap").size(), 3) << "a square host gets the number";
}

TEST_F(LinuxStatusItemTest, attentionIsAskedForWithAPictureOfItsOwn)
{
    makeRegisteredItem();
    EXPECT_EQ(host.itemProperty("Status"), u("Active"));
    EXPECT_EQ(pixmaps("AttentionIconPixmap").size(), 0);
    item->setNeedsAttention(true);
    settle();
    EXPECT_EQ(host.takeSignals(), (QStringList{u("NewAttentionIcon"), u("NewStatus")}));
    EXPECT_EQ(host.itemProperty("Status"), u("NeedsAttention"));
    EXPECT_EQ(host.itemProperty("AttentionIconName"), QString());
    ASSERT_EQ(pixmaps("AttentionIconPixmap").size(), 3);
    EXPECT_NE(pixmaps("AttentionIconPixmap").at(0).pixels, pixmaps("IconPixmap").at(0).pixels);
    item->setImage(std::make_shared<Image>(u("#bat24")));
    settle();
    EXPECT_EQ(host.takeSignals(), (QStringList{u("NewIcon"), u("NewAttentionIcon")}));
    item->setNeedsAttention(false);
    settle();
    EXPECT_EQ(host.takeSignals(), (QStringList{u("NewAttentionIcon"), u("NewStatus")}));
    EXPECT_EQ(host.itemProperty("Status"), u("Active"));
    EXPECT_EQ(pixmaps("AttentionIconPixmap").size(), 0);
}

TEST_F(LinuxStatusItemTest, hostOfDrawingsGetsTheAttentionIconInItsColours)
{
    currentDesktop = u("KDE");
    makeRegisteredItem();
    item->setNeedsAttention(true);
    settle();
    const QString file = host.itemProperty("AttentionIconName").toString();
    EXPECT_TRUE(file.endsWith(u("-alarming.png"))) << file.toStdString();
    EXPECT_TRUE(QFile::remove(file));
    EXPECT_EQ(pixmaps("AttentionIconPixmap").size(), 0);
    EXPECT_EQ(host.itemProperty("IconName"), u(QUINDLE_RESOURCES "/icons/#bat34-symbolic.svg"));
}

TEST_F(LinuxStatusItemTest, labelHostWithoutImageGetsATransparentFile)
{
    currentDesktop = u("ubuntu:GNOME");
    makeRegisteredItem();
    item->setImage(nullptr);
    settle();
    EXPECT_EQ(host.itemProperty("IconName"), u(QUINDLE_RESOURCES "/icons/transparent.png"));
    EXPECT_EQ(pixmaps("IconPixmap").size(), 0);
}

TEST_F(LinuxStatusItemTest, hostThatColoursDrawingsGetsNothingElse)
{
    currentDesktop = u("KDE");
    makeRegisteredItem();
    EXPECT_EQ(host.itemProperty("IconName"), u(QUINDLE_RESOURCES "/icons/#bat34-symbolic.svg"));
    EXPECT_EQ(pixmaps("IconPixmap").size(), 0);
    item->setImage(std::make_shared<Image>(u("none")));
    settle();
    EXPECT_EQ(host.takeSignals(), QStringList{u("NewIcon")});
    EXPECT_EQ(host.itemProperty("IconName"), QString()) << "no file, no name";
}

TEST_F(LinuxStatusItemTest, hostWhoseLabelHidesTheIconSeesNoLabelAtAll)
{
    currentDesktop = u("MATE");
    makeRegisteredItem();
    EXPECT_FALSE(host.itemProperty("XAyatanaLabel").isValid());
    EXPECT_EQ(host.itemProperty("Title"), u("87.0%"));
    ASSERT_GT(pixmaps("IconPixmap").size(), 1);
    EXPECT_GT(pixmaps("IconPixmap").at(0).width, 32);
    item->setTitle(u("86.9%"));
    settle();
    EXPECT_EQ(host.takeSignals(), (QStringList{u("NewTitle"), u("NewIcon"), u("NewToolTip")}));
}

TEST_F(LinuxStatusItemTest, choiceIsHeardAtTheNextRefresh)
{
    makeRegisteredItem();
    choice = u("wide");
    item->setTitle(u("87.0%"));
    settle();
    EXPECT_EQ(host.takeSignals(), (QStringList{u("NewIcon"), u("XAyatanaNewLabel")}));
    ASSERT_EQ(pixmaps("IconPixmap").size(), 1);
    EXPECT_GT(pixmaps("IconPixmap").at(0).width, 60);
    EXPECT_EQ(host.itemProperty("XAyatanaLabel"), QString());
}

TEST_F(LinuxStatusItemTest, hugeTitleStaysExact)
{
    makeRegisteredItem();
    const QString title = QString(9000, QLatin1Char('x')) + u("\n😀 שלום <b>&") + QString(1000, QChar(0x4e00));
    item->setTitle(title);
    settle();
    EXPECT_EQ(host.itemProperty("Title"), title);
    EXPECT_EQ(host.itemProperty("XAyatanaLabel").toString().size(), 60);
}

TEST_F(LinuxStatusItemTest, registersAgainWhenTheWatcherComesBack)
{
    makeRegisteredItem();
    host.disappear();
    settle();
    ASSERT_TRUE(host.appear());
    EXPECT_TRUE(comesTrue([this] { return host.registrations() == 2; }));
    EXPECT_EQ(host.items().size(), 1);
}

TEST_F(LinuxStatusItemTest, registersAgainWhenTheWatcherIsReplaced)
{
    makeRegisteredItem();
    FakeTrayHost other(bus.connect());
    // The name passes on at once: the bus announces one change, from owner to owner.
    other.queueUp();
    host.disappear();
    EXPECT_TRUE(comesTrue([&other] { return other.registrations() == 1; }));
    EXPECT_EQ(host.registrations(), 1);
}

TEST_F(LinuxStatusItemTest, waitsForAWatcher)
{
    makeItem();
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
    EXPECT_EQ(host.registrations(), 0);
    ASSERT_TRUE(host.appear());
    EXPECT_TRUE(comesTrue([this] { return host.registrations() == 1; }));
}

TEST_F(LinuxStatusItemTest, registersThreeTimesAtMostWithAWatcherThatForgets)
{
    host.setForgetful(true);
    ASSERT_TRUE(host.appear());
    makeItem(std::chrono::milliseconds(20));
    EXPECT_TRUE(comesTrue([this] { return host.registrations() == 3; }));
    const QDeadlineTimer later(200);
    comesTrue([&later] { return later.hasExpired(); });
    EXPECT_EQ(host.registrations(), 3);
}

TEST_F(LinuxStatusItemTest, registersOnceWithAWatcherThatListsIt)
{
    ASSERT_TRUE(host.appear());
    makeItem(std::chrono::milliseconds(20));
    EXPECT_TRUE(comesTrue([this] { return host.registrations() == 1; }));
    const QDeadlineTimer later(200);
    comesTrue([&later] { return later.hasExpired(); });
    EXPECT_EQ(host.registrations(), 1);
}

TEST_F(LinuxStatusItemTest, everyClickTogglesTheView)
{
    makeRegisteredItem();
    host.call(itemPath, itemInterface, "Activate", {10, 20});
    EXPECT_TRUE(comesTrue([this] { return toggled == 1; }));
    host.call(itemPath, itemInterface, "SecondaryActivate", {10, 20});
    EXPECT_TRUE(comesTrue([this] { return toggled == 2; }));
    host.call(itemPath, itemInterface, "XAyatanaSecondaryActivate", {1U});
    EXPECT_TRUE(comesTrue([this] { return toggled == 3; }));
    host.call(itemPath, itemInterface, "ContextMenu", {10, 20});
    EXPECT_TRUE(comesTrue([this] { return toggled == 4; }));
    EXPECT_EQ(host.call(itemPath, itemInterface, "Scroll", {120, u("vertical")}).type(),
              QDBusMessage::ReplyMessage);
    EXPECT_EQ(toggled, 4);
    EXPECT_EQ(opened, 0);
}

TEST_F(LinuxStatusItemTest, activationTokenIsThereWhenTheViewIsToggled)
{
    makeRegisteredItem();
    qunsetenv("XDG_ACTIVATION_TOKEN");
    QString token;
    menu.setViewToggler([&token] { token = qEnvironmentVariable("XDG_ACTIVATION_TOKEN"); });
    host.call(itemPath, itemInterface, "ProvideXdgActivationToken", {u("token-1")});
    EXPECT_EQ(qEnvironmentVariable("XDG_ACTIVATION_TOKEN"), QString());
    host.call(itemPath, itemInterface, "Activate", {0, 0});
    EXPECT_TRUE(comesTrue([&token] { return token == u("token-1"); }));
    qunsetenv("XDG_ACTIVATION_TOKEN");
}

TEST(LinuxStatusItemWithoutBus, keepsItsValues)
{
    LinuxRunLoop runLoop;
    LinuxStatusItem item(QDBusConnection(u("no such connection")), runLoop,
                         StatusItemSurroundings{QStringLiteral(QUINDLE_RESOURCES), {}, {}});
    item.setTitle(u("87.0%"));
    QCoreApplication::processEvents();
    EXPECT_EQ(item.title(), u("87.0%"));
}

} // namespace
} // namespace quindle
