#include <gmock/gmock.h>

#include "platform/linux/statusitem/MenuTypes.h"
#include "tests/platform/linux/statusitem/StatusItemFixture.h"
#include "tests/support/QtPrinters.h"

namespace quindle {
namespace {

class StatusItemMenuTest : public StatusItemFixture
{
};

TEST_F(StatusItemMenuTest, menuLayoutOverTheBus)
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

TEST_F(StatusItemMenuTest, commandsAreAboveTheFactsWhereTallMenusAreCut)
{
    menu.addRow({StatusMenu::Kind::Fact, u("last"), true, true, {}});
    currentDesktop = u("GNOME");
    makeRegisteredItem();
    const auto answer = host.call(menuObject, menuInterface, "GetLayout", {0, 1, QStringList()});
    const auto root = demarshalled<MenuNode>(answer.arguments().value(1));
    ASSERT_EQ(root.children.size(), 5);
    EXPECT_EQ(demarshalled<MenuNode>(root.children.at(1).variant()).id, 2);
}

TEST_F(StatusItemMenuTest, menuClicks)
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

TEST_F(StatusItemMenuTest, menuNeedsNoUpdateBeforeItIsShown)
{
    makeRegisteredItem();
    EXPECT_EQ(host.call(menuObject, menuInterface, "AboutToShow", {0}).arguments(), QVariantList{false});
    const auto answer =
        host.call(menuObject, menuInterface, "AboutToShowGroup", {QVariant::fromValue(QList<int>{0, 9})});
    EXPECT_EQ(qdbus_cast<QList<int>>(answer.arguments().value(0)), QList<int>());
    EXPECT_EQ(qdbus_cast<QList<int>>(answer.arguments().value(1)), QList<int>{9});
}

TEST_F(StatusItemMenuTest, changedRowsAreAnnouncedOnceAndWithoutANewLayout)
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

TEST_F(StatusItemMenuTest, menuMayOutliveTheItem)
{
    makeRegisteredItem();
    item.reset();
    menu.setText(1, u("86.9%"));
    QCoreApplication::processEvents();
    EXPECT_EQ(menu.rows().at(0).text, u("86.9%"));
}

} // namespace
} // namespace quindle
