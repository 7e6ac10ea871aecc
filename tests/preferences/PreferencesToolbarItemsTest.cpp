#include "preferences/window/PreferencesToolbarItems.h"

#include <gtest/gtest.h>

#include "tests/preferences/TestPane.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

class PreferencesToolbarItemsTest : public testing::Test
{
protected:
    test::TestPane general{QStringLiteral("General")};
    test::TestPane menuBar{QStringLiteral("Menu Bar")};
    test::TestPane update{QStringLiteral("Update")};
    PreferencesPanes panes{&general, &menuBar, &update};
};

QString text(const QStringList& identifiers)
{
    return identifiers.join(QLatin1Char(','));
}

TEST(PreferencesToolbarIdentifiers, AreFixed)
{
    EXPECT_EQ(preferencesToolbarIdentifier(), QStringLiteral("PreferencesMainToolbar"));
    EXPECT_EQ(segmentedControlIdentifier(), QStringLiteral("PreferencesToolbarSegmentedControl"));
}

TEST_F(PreferencesToolbarItemsTest, ASinglePaneHasAToolbarOnlyWhenWanted)
{
    struct Case
    {
        PreferencesPanes panes;
        bool single;
        bool hasToolbar;
    };
    const Case cases[]{
        {{}, false, false},       {{}, true, false},    {{&general}, false, false},
        {{&general}, true, true}, {panes, false, true}, {panes, true, true},
    };
    for (const Case& row : cases)
        for (const bool segmented : {false, true}) {
            PreferencesToolbarFlags flags;
            flags.showToolbarWithSingleViewController = row.single;
            flags.showToolbarItemsAsSegmentedControl = segmented;
            EXPECT_EQ(toolbarConfiguration(row.panes, flags).has_value(), row.hasToolbar)
                << row.panes.size() << ' ' << row.single << ' ' << segmented;
        }
}

TEST_F(PreferencesToolbarItemsTest, OrdinaryItemsMayBeCustomised)
{
    const auto configuration = toolbarConfiguration(panes, {});
    ASSERT_TRUE(configuration);
    EXPECT_EQ(configuration->identifier, QStringLiteral("PreferencesMainToolbar"));
    EXPECT_TRUE(configuration->allowsUserCustomization);
    EXPECT_TRUE(configuration->autosavesConfiguration);
    EXPECT_FALSE(configuration->showsBaselineSeparator);
    EXPECT_EQ(configuration->displayMode, ToolbarDisplayMode::Default);
}

TEST_F(PreferencesToolbarItemsTest, TheSegmentedControlMayNot)
{
    PreferencesToolbarFlags flags;
    flags.showToolbarItemsAsSegmentedControl = true;
    flags.showToolbarSeparator = true;
    const auto configuration = toolbarConfiguration(panes, flags);
    ASSERT_TRUE(configuration);
    EXPECT_FALSE(configuration->allowsUserCustomization);
    EXPECT_FALSE(configuration->autosavesConfiguration);
    EXPECT_TRUE(configuration->showsBaselineSeparator);
    EXPECT_EQ(static_cast<int>(configuration->displayMode), 2);
}

TEST_F(PreferencesToolbarItemsTest, IdentifiersFollowTheFlags)
{
    struct Case
    {
        bool segmented;
        bool centred;
        const char* items;
        const char* selectable;
        qsizetype first;
    };
    const Case cases[]{
        {false, false, "general,menu bar,update", "general,menu bar,update", 0},
        {false, true, "FlexibleSpace,general,menu bar,update,FlexibleSpace", "general,menu bar,update", 1},
        {true, false, "PreferencesToolbarSegmentedControl", "", 0},
        {true, true, "FlexibleSpace,PreferencesToolbarSegmentedControl,FlexibleSpace", "", 1},
    };
    for (const Case& row : cases) {
        PreferencesToolbarFlags flags;
        flags.showToolbarItemsAsSegmentedControl = row.segmented;
        flags.centerToolbarItems = row.centred;
        EXPECT_EQ(text(toolbarItemIdentifiers(panes, flags)), QString::fromLatin1(row.items));
        EXPECT_EQ(text(toolbarSelectableItemIdentifiers(panes, flags)), QString::fromLatin1(row.selectable));
        EXPECT_EQ(firstPaneItemIndex(flags), row.first);
    }
}

TEST_F(PreferencesToolbarItemsTest, APanesItemCarriesWhatThePaneAnswers)
{
    general.toolTip = QStringLiteral("Everyday settings");
    const auto item = toolbarItem(panes, QStringLiteral("general"));
    ASSERT_TRUE(item);
    EXPECT_EQ(item->kind, ToolbarItem::Kind::Pane);
    EXPECT_EQ(item->identifier, QStringLiteral("general"));
    EXPECT_EQ(item->label, QStringLiteral("General"));
    EXPECT_EQ(item->paletteLabel, QStringLiteral("General"));
    EXPECT_EQ(item->toolTip, QStringLiteral("Everyday settings"));
    EXPECT_EQ(toolbarItem(panes, QStringLiteral("update"))->toolTip, std::nullopt);
}

TEST_F(PreferencesToolbarItemsTest, OtherIdentifiersAreFixedItemsOrNone)
{
    EXPECT_EQ(toolbarItem(panes, segmentedControlIdentifier())->kind, ToolbarItem::Kind::SegmentedControl);
    EXPECT_EQ(toolbarItem(panes, flexibleSpaceIdentifier())->kind, ToolbarItem::Kind::FlexibleSpace);
    EXPECT_FALSE(toolbarItem(panes, QStringLiteral("General"))) << "identifiers are case-sensitive";
    EXPECT_FALSE(toolbarItem(panes, QString()));
    EXPECT_EQ(paneWithIdentifier(panes, QStringLiteral("menu bar")), &menuBar);
    EXPECT_EQ(paneWithIdentifier(panes, QStringLiteral("nothing")), nullptr);
}

TEST(TitlesWithMnemonics, TakeTheFirstFreeLetter)
{
    struct Case
    {
        const char* titles;
        const char* marked;
    };
    const Case cases[]{
        {"General|Menu Bar|Update", "&General|&Menu Bar|&Update"},
        {"Menu Bar|Manager|Mm", "&Menu Bar|M&anager|Mm"},
        {"Save & Load|save", "&Save && Load|s&ave"},
        {"& Co", "&& &Co"},
        {"", ""},
        {"...", "..."},
    };
    for (const Case& row : cases)
        EXPECT_EQ(titlesWithMnemonics(QString::fromLatin1(row.titles).split(QLatin1Char('|')))
                      .join(QLatin1Char('|')),
                  QString::fromLatin1(row.marked));
}

TEST(TitlesWithMnemonics, LeaveOutLettersThatNoKeyHas)
{
    const QStringList japanese{QStringLiteral(u"\u4E00\u822C"), QStringLiteral(u"\u30E1\u30CB\u30E5\u30FC"),
                               QStringLiteral(u"\uC5C5 Update")};
    EXPECT_EQ(titlesWithMnemonics(japanese),
              (QStringList{japanese.at(0), japanese.at(1), QStringLiteral(u"\uC5C5 &Update")}));
    EXPECT_EQ(titlesWithMnemonics({QStringLiteral(u"\u0639\u0627\u0645")}),
              QStringList{QStringLiteral(u"&\u0639\u0627\u0645")});
}

} // namespace
