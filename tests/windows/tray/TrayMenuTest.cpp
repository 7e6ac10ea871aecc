#include "windows/tray/TrayMenu.h"

#include <QAction>
#include <QApplication>
#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"
#include "tests/support/Texts.h"

namespace quindle {
namespace {

QDBusVariant child(int id, const QVariantMap& properties, const QList<QDBusVariant>& children = {})
{
    return QDBusVariant(QVariant::fromValue(MenuNode{id, properties, children}));
}

QVariantMap label(const char* text)
{
    return {{u("label"), u(text)}};
}

struct TrayMenuTest : testing::Test
{
    MenuNode root{0,
                  {},
                  {child(1, {{u("label"), u("R&D__\t<b>")}, {u("enabled"), false}}),
                   child(2, {{u("type"), u("separator")}}),
                   child(3, {{u("label"), u("Details")}, {u("children-display"), u("submenu")}},
                         {child(4, label("Below"))}),
                   child(5, {{u("label"), u("Hidden")}, {u("visible"), false}}), child(6, label("Quit"))}};
    QList<int> chosen;
    TrayMenu menu{root, [this](int id) { chosen += id; }};

    QAction* action(int index) { return menu.menu().actions().at(index); }
};

TEST_F(TrayMenuTest, ShowsTheRowsLiterally)
{
    ASSERT_EQ(menu.menu().actions().size(), 5);
    EXPECT_EQ(action(0)->text(), u("R&&D_\t<b>"));
    EXPECT_FALSE(action(0)->isEnabled());
    EXPECT_TRUE(action(1)->isSeparator());
    EXPECT_EQ(action(2)->menu()->actions().at(0)->text(), u("Below"));
    EXPECT_FALSE(action(3)->isVisible());
    EXPECT_TRUE(action(4)->isVisible());
    EXPECT_TRUE(action(4)->isEnabled());
}

TEST_F(TrayMenuTest, AnnouncesWhichRowIsChosen)
{
    action(2)->menu()->actions().at(0)->trigger();
    action(4)->trigger();
    action(0)->trigger();
    EXPECT_EQ(chosen, (QList<int>{4, 6}));
}

TEST_F(TrayMenuTest, RowsChangeWhileItIsOpen)
{
    menu.update(
        {{4, label("Above")}, {5, {{u("label"), u("Seen")}, {u("visible"), true}}}, {77, label("None")}});
    EXPECT_EQ(action(2)->menu()->actions().at(0)->text(), u("Above"));
    EXPECT_TRUE(action(3)->isVisible());
    EXPECT_EQ(action(3)->text(), u("Seen"));
}

TEST_F(TrayMenuTest, RowsThatCannotBeChosenAreLegible)
{
    for (const QMenu* one : {&menu.menu(), action(2)->menu()}) {
        const QPalette palette = one->palette();
        EXPECT_EQ(palette.color(QPalette::Disabled, QPalette::Text).rgb(),
                  palette.color(QPalette::Active, QPalette::Text).rgb());
        EXPECT_NEAR(palette.color(QPalette::Disabled, QPalette::Text).alphaF(), 0.62, 0.01);
    }
}

TEST_F(TrayMenuTest, TheyStayLegibleWhenTheColoursChange)
{
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(Qt::black, Qt::black));
    QApplication::processEvents();
    for (const QMenu* one : {&menu.menu(), action(2)->menu()}) {
        EXPECT_EQ(one->palette().color(QPalette::Active, QPalette::Window), QColor(Qt::black));
        EXPECT_EQ(one->palette().color(QPalette::Disabled, QPalette::Text).rgb(), QColor(Qt::white).rgb());
    }
    QApplication::setPalette(before);
    QApplication::processEvents();
}

} // namespace
} // namespace quindle
