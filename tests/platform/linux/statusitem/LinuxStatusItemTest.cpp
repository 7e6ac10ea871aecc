#include "platform/linux/statusitem/LinuxStatusItem.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDeadlineTimer>
#include <QFile>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/Image.h"
#include "platform/StatusMenu.h"
#include "platform/linux/session/LinuxRunLoop.h"
#include "platform/linux/statusitem/MenuTypes.h"
#include "platform/linux/statusitem/NotifierTypes.h"
#include "tests/platform/linux/statusitem/FakeTrayHost.h"
#include "tests/platform/linux/statusitem/PrivateBus.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/Texts.h"

namespace quindle {
namespace {

constexpr auto itemPath = "/StatusNotifierItem";
constexpr auto itemInterface = "org.kde.StatusNotifierItem";
constexpr auto menuObject = "/MenuBar";
constexpr auto menuInterface = "com.canonical.dbusmenu";

template <typename Type>
Type demarshalled(const QVariant& value)
{
    Type result;
    value.value<QDBusArgument>() >> result;
    return result;
}

/// Lets the main loop run until it is so; false after ten seconds.
template <typename Condition>
bool comesTrue(Condition condition)
{
    const QDeadlineTimer deadline(10000);
    while (!condition() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 50);
    return condition();
}

class LinuxStatusItemTest : public testing::Test
{
protected:
    LinuxStatusItemTest()
    {
        menu.addRow({StatusMenu::Kind::Fact, u("87.0%"), true, true, {}});
        menu.addRow({StatusMenu::Kind::OpenView, u("Show Battery..."), true, true, {}});
        menu.addRow({StatusMenu::Kind::Separator, {}, true, true, {}});
        menu.addRow({StatusMenu::Kind::Action, u("Quit_all"), true, true, [this] { ++chosen; }});
        menu.setViewOpener([this] { ++opened; });
        menu.setViewToggler([this] { ++toggled; });
    }

    void makeItem(std::chrono::milliseconds registrationCheck = std::chrono::milliseconds(3000))
    {
        item = std::make_unique<LinuxStatusItem>(
            bus.connect(), runLoop,
            StatusItemSurroundings{QStringLiteral(QUINDLE_RESOURCES), currentDesktop,
                                   [this] { return choice; }, registrationCheck});
        item->setTitle(u("87.0%"));
        item->setFallbackText(u("87"));
        item->setToolTipText(u("R&D"));
        item->setImage(std::make_shared<Image>(u("#bat34")));
        item->setMenu(&menu);
    }

    void makeRegisteredItem()
    {
        ASSERT_TRUE(host.appear());
        makeItem();
        ASSERT_TRUE(comesTrue([this] { return host.registrations() == 1; }));
        settle();
        host.takeSignals();
    }

    /// When the answer is there, everything that was sent before it is there as well.
    void settle()
    {
        QCoreApplication::processEvents();
        host.itemProperty("Status");
    }

    QList<NotifierPixmap> pixmaps(const char* name)
    {
        return demarshalled<QList<NotifierPixmap>>(host.itemProperty(name));
    }

    LinuxRunLoop runLoop;
    PrivateBus bus;
    FakeTrayHost host{bus.connect()};
    StatusMenu menu;
    QString choice;
    QString currentDesktop;
    int opened = 0;
    int toggled = 0;
    int chosen = 0;
    std::unique_ptr<LinuxStatusItem> item;
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

TEST_F(LinuxStatusItemTest, attentionIsToldWithAPictureOfItsOwn)
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

TEST_F(LinuxStatusItemTest, menuLayoutOverTheBus)
{
    makeRegisteredItem();
    EXPECT_EQ(host.property(menuObject, menuInterface, "Version"), 3U);
    const auto answer = host.call(menuObject, menuInterface, "GetLayout", {0, 1, QStringList()});
    const auto root = demarshalled<MenuNode>(answer.arguments().value(1));
    ASSERT_EQ(root.children.size(), 4);
    const auto last = demarshalled<MenuNode>(root.children.at(3).variant());
    EXPECT_EQ(last.id, 4);
    EXPECT_EQ(last.properties.value(u("label")), u("Quit__all"));

    const auto group = host.call(menuObject, menuInterface, "GetGroupProperties",
                                 {QVariant::fromValue(QList<int>{1, 9}), QStringList{u("label")}});
    const auto rows = demarshalled<QList<MenuRowProperties>>(group.arguments().value(0));
    ASSERT_EQ(rows.size(), 1);
    EXPECT_EQ(rows.at(0).properties.value(u("label")), u("87.0%"));
}

TEST_F(LinuxStatusItemTest, commandsAreAboveTheFactsWhereTallMenusAreCut)
{
    menu.addRow({StatusMenu::Kind::Fact, u("last"), true, true, {}});
    currentDesktop = u("GNOME");
    makeRegisteredItem();
    const auto answer = host.call(menuObject, menuInterface, "GetLayout", {0, 1, QStringList()});
    const auto root = demarshalled<MenuNode>(answer.arguments().value(1));
    ASSERT_EQ(root.children.size(), 5);
    EXPECT_EQ(demarshalled<MenuNode>(root.children.at(1).variant()).id, 2);
}

TEST_F(LinuxStatusItemTest, menuClicks)
{
    makeRegisteredItem();
    const QVariant none = QVariant::fromValue(QDBusVariant(0));
    host.call(menuObject, menuInterface, "Event", {4, u("hovered"), none, 0U});
    host.call(menuObject, menuInterface, "Event", {4, u("clicked"), none, 0U});
    EXPECT_TRUE(comesTrue([this] { return chosen == 1; }));

    const QList<MenuEvent> events{{0, u("closed"), QDBusVariant(0), 0},
                                  {2, u("clicked"), QDBusVariant(0), 0},
                                  {9, u("clicked"), QDBusVariant(0), 0}};
    const auto answer = host.call(menuObject, menuInterface, "EventGroup", {QVariant::fromValue(events)});
    EXPECT_TRUE(comesTrue([this] { return opened == 1; }));
    EXPECT_EQ(qdbus_cast<QList<int>>(answer.arguments().value(0)), QList<int>{9});
    EXPECT_EQ(chosen, 1);
    EXPECT_EQ(toggled, 0);
}

TEST_F(LinuxStatusItemTest, menuNeedsNoUpdateBeforeItIsShown)
{
    makeRegisteredItem();
    EXPECT_EQ(host.call(menuObject, menuInterface, "AboutToShow", {0}).arguments(), QVariantList{false});
    const auto answer =
        host.call(menuObject, menuInterface, "AboutToShowGroup", {QVariant::fromValue(QList<int>{0, 9})});
    EXPECT_EQ(qdbus_cast<QList<int>>(answer.arguments().value(0)), QList<int>());
    EXPECT_EQ(qdbus_cast<QList<int>>(answer.arguments().value(1)), QList<int>{9});
}

TEST_F(LinuxStatusItemTest, changedRowsAreToldOnceAndWithoutANewLayout)
{
    makeRegisteredItem();
    menu.setText(1, u("100 %"));
    menu.setText(1, u("86.9%"));
    menu.setVisible(2, false);
    settle();
    const auto messages = host.lastMessages();
    ASSERT_EQ(host.takeSignals(), QStringList{u("ItemsPropertiesUpdated")});
    const auto rows = demarshalled<QList<MenuRowProperties>>(messages.at(0).arguments().value(0));
    ASSERT_EQ(rows.size(), 2);
    EXPECT_EQ(rows.at(0).id, 1);
    EXPECT_EQ(rows.at(0).properties.value(u("label")), u("86.9%"));
    EXPECT_EQ(rows.at(1).id, 2);
    EXPECT_EQ(rows.at(1).properties.value(u("visible")), false);
}

TEST_F(LinuxStatusItemTest, menuMayOutliveTheItem)
{
    makeRegisteredItem();
    item.reset();
    menu.setText(1, u("86.9%"));
    QCoreApplication::processEvents();
    EXPECT_EQ(menu.rows().at(0).text, u("86.9%"));
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
