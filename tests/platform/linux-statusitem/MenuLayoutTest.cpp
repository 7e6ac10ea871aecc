#include "platform/linux/statusitem/MenuLayout.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

namespace quindle {
namespace {

QString u(const char* text)
{
    return QString::fromUtf8(text);
}

class MenuLayout : public testing::Test
{
protected:
    MenuLayout()
    {
        menu.addRow({StatusMenu::Kind::Fact, u("Health\t93%"), true, false, {}});
        menu.addRow({StatusMenu::Kind::OpenView, u("Show Battery..."), true, true, {}});
        menu.addRow({StatusMenu::Kind::Separator, {}, true, true, {}});
        menu.addRow({StatusMenu::Kind::Action, u("a_b"), false, false, {}});
    }

    static MenuNode child(const MenuNode& node, int index)
    {
        return node.children.at(index).variant().value<MenuNode>();
    }

    StatusMenu menu;
};

TEST_F(MenuLayout, rootHasAllRowsInvisibleOnesToo)
{
    for (const int depth : {-1, 1, 2}) {
        const MenuNode root = menuLayout(&menu, 0, depth, {});
        EXPECT_EQ(root.id, 0);
        EXPECT_EQ(root.properties.value(u("children-display")), u("submenu"));
        ASSERT_EQ(root.children.size(), 4);
        EXPECT_EQ(child(root, 0).id, 1);
        EXPECT_EQ(child(root, 3).id, 4);
        EXPECT_EQ(child(root, 3).properties.value(u("visible")), false);
    }
}

TEST_F(MenuLayout, depthZeroHasNoRows)
{
    EXPECT_TRUE(menuLayout(&menu, 0, 0, {}).children.isEmpty());
}

using Kind = StatusMenu::Kind;

struct OrderCase
{
    std::vector<Kind> rows;
    std::vector<int> commandsFirst;
};

TEST(MenuOrder, commandsAreReachedFirstWhereTallMenusAreCut)
{
    const OrderCase cases[] = {
        {{Kind::Fact, Kind::Fact, Kind::Fact, Kind::Separator, Kind::OpenView, Kind::Action},
         {1, 5, 6, 4, 2, 3}},
        {{Kind::Fact, Kind::Separator, Kind::OpenView, Kind::Separator, Kind::Action}, {1, 3, 4, 5, 2}},
        {{Kind::Fact, Kind::Fact, Kind::Action}, {1, 3, 2}},
        {{Kind::Fact, Kind::Action}, {1, 2}},
        {{Kind::Action, Kind::Fact}, {1, 2}},
        {{Kind::Fact, Kind::Fact}, {1, 2}},
        {{}, {}},
    };
    for (const OrderCase& c : cases) {
        StatusMenu menu;
        std::vector<int> asAdded;
        for (const Kind kind : c.rows)
            asAdded.push_back(menu.addRow({kind, {}, true, true, {}}));
        EXPECT_EQ(menuOrder(&menu, true), c.commandsFirst);
        EXPECT_EQ(menuOrder(&menu, false), asAdded);
    }
    EXPECT_TRUE(menuOrder(nullptr, true).empty());
}

TEST_F(MenuLayout, rowHasNothingBelowIt)
{
    const MenuNode row = menuLayout(&menu, 2, -1, {});
    EXPECT_EQ(row.id, 2);
    EXPECT_EQ(row.properties.value(u("label")), u("Show Battery..."));
    EXPECT_TRUE(row.children.isEmpty());
}

TEST_F(MenuLayout, onlyNamedProperties)
{
    const MenuNode root = menuLayout(&menu, 0, -1, {u("label"), u("icon-data")});
    EXPECT_TRUE(root.properties.isEmpty());
    EXPECT_EQ(child(root, 0).properties, (QVariantMap{{u("label"), u("Health: 93%")}}));
}

TEST_F(MenuLayout, kinds)
{
    const auto enabled = [this](int id) { return menuProperties(&menu, id, {}).value(u("enabled")); };
    EXPECT_EQ(enabled(1), true) << "a fact must be legible";
    EXPECT_EQ(enabled(2), true);
    EXPECT_EQ(enabled(4), false);
    EXPECT_EQ(menuProperties(&menu, 3, {}).value(u("type")), u("separator"));
    EXPECT_EQ(menuProperties(&menu, 4, {}).value(u("label")), u("a__b"));
}

TEST_F(MenuLayout, unknownIdsAndNoMenu)
{
    EXPECT_FALSE(isMenuId(&menu, -1));
    EXPECT_TRUE(isMenuId(&menu, 0));
    EXPECT_TRUE(isMenuId(&menu, 4));
    EXPECT_FALSE(isMenuId(&menu, 5));
    EXPECT_TRUE(menuProperties(&menu, 5, {}).isEmpty());
    EXPECT_TRUE(menuLayout(nullptr, 0, -1, {}).children.isEmpty());
    EXPECT_TRUE(menuProperties(nullptr, 1, {}).isEmpty());
}

} // namespace
} // namespace quindle
