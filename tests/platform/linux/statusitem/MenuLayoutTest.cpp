#include "platform/linux/statusitem/MenuLayout.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"
#include "tests/support/Texts.h"

namespace quindle {
namespace {

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

    /// Rows 5 to 7.
    void addDetails()
    {
        const int details = menu.addRow({StatusMenu::Kind::Submenu, u("Details"), true, true, {}});
        menu.addRow({StatusMenu::Kind::Fact, u("Cycles\t293"), true, false, {}, details});
        menu.addRow({StatusMenu::Kind::Fact, u("Model\tx"), false, false, {}, details});
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

TEST_F(MenuLayout, rowsOfASubmenuStandBelowIt)
{
    addDetails();
    const MenuNode root = menuLayout(&menu, 0, -1, {});
    ASSERT_EQ(root.children.size(), 5);
    const MenuNode details = child(root, 4);
    EXPECT_EQ(details.properties.value(u("children-display")), u("submenu"));
    EXPECT_EQ(details.properties.value(u("label")), u("Details"));
    ASSERT_EQ(details.children.size(), 2);
    EXPECT_EQ(child(details, 0).id, 6);
    EXPECT_EQ(child(details, 1).properties.value(u("visible")), false);
}

TEST_F(MenuLayout, aSubmenuIsAskedForByItself)
{
    addDetails();
    const MenuNode shallow = menuLayout(&menu, 0, 1, {});
    EXPECT_TRUE(child(shallow, 4).children.isEmpty());
    EXPECT_EQ(menuLayout(&menu, 5, 1, {}).children.size(), 2);
    EXPECT_EQ(menuLayout(&menu, 0, 2, {}).children.size(), 5);
    EXPECT_EQ(child(menuLayout(&menu, 0, 2, {}), 4).children.size(), 2);
    EXPECT_TRUE(menuLayout(&menu, 5, 0, {}).children.isEmpty());
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
        {{Kind::Fact, Kind::Fact, Kind::Submenu, Kind::Separator, Kind::OpenView, Kind::Action},
         {1, 5, 6, 4, 2, 3}},
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
    EXPECT_EQ(enabled(1), false) << "choosing a fact would do nothing";
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
