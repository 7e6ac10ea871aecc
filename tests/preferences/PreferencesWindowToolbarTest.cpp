#include <QAction>

#include "tests/preferences/PreferencesWindowFixture.h"

using namespace quindle;

namespace {

class PreferencesWindowToolbarTest : public test::PreferencesWindowFixture
{
};

TEST_F(PreferencesWindowToolbarTest, AToolbarItemShowsItsPane)
{
    show();
    toolbar()->actions().at(2)->trigger();
    expectShown(update);
    EXPECT_EQ(update.appeared, 1);
    EXPECT_FALSE(update.wasVisibleWhenAppearing);
    controller->toolbarItemAction(QStringLiteral("menu bar"));
    expectShown(menuBar);
    controller->toolbarItemAction(QStringLiteral("nothing"));
    expectShown(menuBar);
}

TEST_F(PreferencesWindowToolbarTest, ASegmentShowsItsPane)
{
    controller->setShowToolbarItemsAsSegmentedControl(true);
    show();
    EXPECT_EQ(segments().selectedTag(), 0);
    clickSegment(1);
    expectShown(menuBar);
    clickSegment(2);
    expectShown(update);
    clickSegment(2);
    expectShown(update);
    EXPECT_EQ(update.appeared, 1) << "the pane that is shown already stays as it is";
}

TEST_F(PreferencesWindowToolbarTest, IsNeverNarrowerThanItsToolbar)
{
    controller->setShowToolbarItemsAsSegmentedControl(true);
    update.sizedView().want({20, 150});
    show();
    clickSegment(2);
    EXPECT_EQ(window().width(), toolbar()->sizeHint().width());
    EXPECT_EQ(update.view().width(), window().width());
}

TEST_F(PreferencesWindowToolbarTest, ReopeningAHiddenWindowSelectsTheFirstControlAndKeepsThePane)
{
    for (const bool segmented : {false, true})
        for (const bool centred : {false, true}) {
            controller = makeController();
            controller->setShowToolbarItemsAsSegmentedControl(segmented);
            controller->setCenterToolbarItems(centred);
            show();
            controller->toolbarItemAction(QStringLiteral("update"));
            const int appeared = update.appeared;
            controller->dismissPreferencesWindow();
            EXPECT_FALSE(window().isVisible());
            show();
            expectShown(update);
            EXPECT_EQ(update.appeared, appeared + 1);
            EXPECT_FALSE(update.wasVisibleWhenAppearing);
            if (segmented)
                EXPECT_EQ(segments().selectedTag(), 0);
            else
                EXPECT_EQ(toolbar()->selectedItemIdentifier(), QStringLiteral("general"));
            EXPECT_EQ(window().windowOpacity(), 1.0);
        }
}

TEST_F(PreferencesWindowToolbarTest, AReopenedWindowShowsTheFirstPaneWhenItsControlIsClicked)
{
    controller->setShowToolbarItemsAsSegmentedControl(true);
    show();
    clickSegment(2);
    controller->dismissPreferencesWindow();
    show();
    clickSegment(0);
    expectShown(general);
}

TEST_F(PreferencesWindowToolbarTest, ASinglePaneHasNoToolbarUnlessItIsWanted)
{
    controller->setViewControllers({&general});
    show();
    EXPECT_EQ(toolbar(), nullptr);
    EXPECT_EQ(window().size(), QSize(500, 300));
    controller->setShowToolbarWithSingleViewController(true);
    QApplication::processEvents();
    ASSERT_NE(toolbar(), nullptr);
    EXPECT_EQ(window().height(), 300 + toolbar()->height());
    controller->setViewControllers({&general, &update});
    EXPECT_EQ(toolbar()->actions().size(), 2);
}

TEST_F(PreferencesWindowToolbarTest, EachFlagRebuildsTheToolbar)
{
    using Setter = void (QDPreferencesWindowController::*)(bool);
    using Getter = bool (QDPreferencesWindowController::*)() const;
    struct Flag
    {
        const char* name;
        Setter set;
        Getter get;
    };
    using C = QDPreferencesWindowController;
    const Flag flags[]{
        {"titleAppearsTransparent", &C::setTitleAppearsTransparent, &C::titleAppearsTransparent},
        {"showToolbarSeparator", &C::setShowToolbarSeparator, &C::showToolbarSeparator},
        {"showToolbarWithSingleViewController", &C::setShowToolbarWithSingleViewController,
         &C::showToolbarWithSingleViewController},
        {"showToolbarItemsAsSegmentedControl", &C::setShowToolbarItemsAsSegmentedControl,
         &C::showToolbarItemsAsSegmentedControl},
        {"centerToolbarItems", &C::setCenterToolbarItems, &C::centerToolbarItems},
        {"allowsVibrancy", &C::setAllowsVibrancy, &C::allowsVibrancy},
    };
    show();
    for (const Flag& flag : flags) {
        EXPECT_FALSE((controller.get()->*flag.get)()) << flag.name;
        for (const bool value : {true, true, false}) {
            const PreferencesToolbar* before = toolbar();
            (controller.get()->*flag.set)(value);
            EXPECT_NE(toolbar(), before) << flag.name;
            EXPECT_EQ((controller.get()->*flag.get)(), value) << flag.name;
        }
    }
}

TEST_F(PreferencesWindowToolbarTest, ARebuiltToolbarSelectsThePaneThatIsShown)
{
    show();
    controller->toolbarItemAction(QStringLiteral("update"));
    controller->setCenterToolbarItems(true);
    EXPECT_EQ(toolbar()->selectedItemIdentifier(), QStringLiteral("update"));
    controller->setShowToolbarItemsAsSegmentedControl(true);
    EXPECT_EQ(segments().selectedTag(), 2);
    expectShown(update);
    EXPECT_EQ(update.appeared, 1);
}

TEST_F(PreferencesWindowToolbarTest, AnswersForItsToolbar)
{
    controller->setCenterToolbarItems(true);
    const QStringList items{flexibleSpaceIdentifier(), QStringLiteral("general"), QStringLiteral("menu bar"),
                            QStringLiteral("update"), flexibleSpaceIdentifier()};
    EXPECT_EQ(controller->toolbarDefaultItemIdentifiers(), items);
    EXPECT_EQ(controller->toolbarAllowedItemIdentifiers(), items);
    EXPECT_EQ(controller->toolbarSelectableItemIdentifiers(), items.mid(1, 3));
    EXPECT_EQ(controller->itemForItemIdentifier(QStringLiteral("menu bar"))->label,
              QStringLiteral("Menu Bar"));
    EXPECT_FALSE(controller->itemForItemIdentifier(QStringLiteral("nothing")));
}

} // namespace
