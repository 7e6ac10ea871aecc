#include "preferences/window/QDPreferencesWindowController.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QRadioButton>
#include <QScreen>
#include <gtest/gtest.h>

#include "preferences/window/PreferencesToolbar.h"
#include "preferences/window/QDPreferencesWindow.h"
#include "preferences/window/WindowFrame.h"
#include "tests/preferences/TestPane.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/QtPrinters.h"
#include "widgets/SegmentedControl.h"

using namespace quindle;

namespace {

class QDPreferencesWindowControllerTest : public testing::Test
{
protected:
    MemoryUserDefaults defaults;
    FakeApplication application;
    test::TestPane general{QStringLiteral("General"), QSize(500, 300)};
    test::TestPane menuBar{QStringLiteral("Menu Bar"), QSize(600, 200)};
    test::TestPane update{QStringLiteral("Update"), QSize(500, 150)};
    bool reducesMotion = true;
    bool placesWindows = true;
    std::unique_ptr<QDPreferencesWindowController> controller = makeController();

    std::unique_ptr<QDPreferencesWindowController> makeController()
    {
        auto made = std::make_unique<QDPreferencesWindowController>(
            defaults, application, PreferencesDesktop{placesWindows, [this] { return reducesMotion; }});
        made->setViewControllers({&general, &menuBar, &update});
        return made;
    }

    void show()
    {
        controller->showPreferencesWindow();
        QApplication::processEvents();
    }

    QDPreferencesWindow& window() const { return *controller->window(); }
    PreferencesToolbar* toolbar() const { return window().toolbar(); }
    SegmentedControl& segments() const { return *toolbar()->segmentedControl(); }

    void clickSegment(int tag) const
    {
        qobject_cast<QRadioButton*>(segments().segment(tag))->click();
        QApplication::processEvents();
    }

    void expectShown(test::TestPane& pane)
    {
        EXPECT_EQ(controller->shownViewController(), &pane);
        EXPECT_EQ(window().windowTitle(), pane.preferencesTitle());
        EXPECT_TRUE(pane.view().isVisible());
        EXPECT_TRUE(window().isAncestorOf(&pane.view()));
        for (test::TestPane* each : {&general, &menuBar, &update})
            EXPECT_EQ(each->view().parentWidget() != nullptr, each == &pane);
    }

    QString storedFrame() const
    {
        return defaults.values.value(QStringLiteral("PreferencesWindowFrameAutoSaveName")).toString();
    }
};

TEST_F(QDPreferencesWindowControllerTest, CostsNothingBeforeItIsShown)
{
    controller->setCenterToolbarItems(true);
    EXPECT_EQ(controller->window(), nullptr);
    EXPECT_EQ(controller->shownViewController(), nullptr);
    controller->dismissPreferencesWindow();
    EXPECT_EQ(controller->window(), nullptr);
    EXPECT_TRUE(defaults.writes.isEmpty());
}

TEST_F(QDPreferencesWindowControllerTest, ShowsTheFirstPane)
{
    show();
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(window().windowOpacity(), 1.0);
    EXPECT_EQ(application.activated, 1);
    expectShown(general);
    EXPECT_EQ(general.appeared, 1);
    EXPECT_FALSE(general.wasVisibleWhenAppearing);
    EXPECT_EQ(toolbar()->selectedItemIdentifier(), QStringLiteral("general"));
    EXPECT_EQ(menuBar.appeared + update.appeared, 0);
}

TEST_F(QDPreferencesWindowControllerTest, CentresTheFirstPane)
{
    show();
    const QRect screen = window().screen()->availableGeometry();
    EXPECT_EQ(window().frameGeometry(), centredFrame(window().frameGeometry().size(), screen));
}

TEST_F(QDPreferencesWindowControllerTest, WithoutPanesTheWindowIsEmpty)
{
    controller->setViewControllers({});
    show();
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(toolbar(), nullptr);
    EXPECT_EQ(controller->shownViewController(), nullptr);
}

TEST_F(QDPreferencesWindowControllerTest, AToolbarItemShowsItsPane)
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

TEST_F(QDPreferencesWindowControllerTest, ASegmentShowsItsPane)
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

TEST_F(QDPreferencesWindowControllerTest, TheWindowIsAsLargeAsThePaneAndKeepsItsTopLeft)
{
    show();
    const QPoint place = window().pos();
    const int bar = toolbar()->height();
    EXPECT_EQ(window().size(), QSize(500, 300 + bar));
    EXPECT_EQ(general.view().size(), QSize(500, 300));
    controller->toolbarItemAction(QStringLiteral("menu bar"));
    EXPECT_EQ(window().size(), QSize(600, 200 + bar));
    EXPECT_EQ(window().minimumSize(), window().maximumSize());
    menuBar.sizedView().want({700, 350});
    QApplication::processEvents();
    EXPECT_EQ(window().size(), QSize(700, 350 + bar));
    EXPECT_EQ(menuBar.view().size(), QSize(700, 350));
    EXPECT_EQ(window().pos(), place);
}

TEST_F(QDPreferencesWindowControllerTest, IsNeverNarrowerThanItsToolbar)
{
    controller->setShowToolbarItemsAsSegmentedControl(true);
    update.sizedView().want({20, 150});
    show();
    clickSegment(2);
    EXPECT_EQ(window().width(), toolbar()->sizeHint().width());
    EXPECT_EQ(update.view().width(), window().width());
}

TEST_F(QDPreferencesWindowControllerTest, ReopeningAVisibleWindowDoesNotResetItsPane)
{
    controller->setShowToolbarItemsAsSegmentedControl(true);
    show();
    clickSegment(1);
    const int activated = application.activated;
    show();
    expectShown(menuBar);
    EXPECT_EQ(segments().selectedTag(), 1);
    EXPECT_EQ(menuBar.appeared, 1);
    EXPECT_EQ(application.activated, activated);
}

TEST_F(QDPreferencesWindowControllerTest, ReopeningAHiddenWindowSelectsTheFirstControlAndKeepsThePane)
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

TEST_F(QDPreferencesWindowControllerTest, AReopenedWindowShowsTheFirstPaneWhenItsControlIsClicked)
{
    controller->setShowToolbarItemsAsSegmentedControl(true);
    show();
    clickSegment(2);
    controller->dismissPreferencesWindow();
    show();
    clickSegment(0);
    expectShown(general);
}

TEST_F(QDPreferencesWindowControllerTest, ASinglePaneHasNoToolbarUnlessItIsWanted)
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

TEST_F(QDPreferencesWindowControllerTest, APaneThatIsTakenAwayIsForgotten)
{
    show();
    controller->setViewControllers({&menuBar, &update});
    QApplication::processEvents();
    expectShown(menuBar);
    EXPECT_EQ(toolbar()->selectedItemIdentifier(), QStringLiteral("menu bar"));
    controller->dismissPreferencesWindow();
    controller->setViewControllers({&update});
    EXPECT_EQ(controller->shownViewController(), nullptr);
    show();
    expectShown(update);
    EXPECT_EQ(menuBar.appeared, 1);
    controller->setViewControllers({});
    EXPECT_EQ(controller->shownViewController(), nullptr);
    EXPECT_EQ(update.view().parentWidget(), nullptr);
}

TEST_F(QDPreferencesWindowControllerTest, EachFlagRebuildsTheToolbar)
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

TEST_F(QDPreferencesWindowControllerTest, ARebuiltToolbarSelectsThePaneThatIsShown)
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

TEST_F(QDPreferencesWindowControllerTest, AnswersForItsToolbar)
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

TEST_F(QDPreferencesWindowControllerTest, PutsAViewBetweenWhenVibrancyIsAllowed)
{
    controller->setAllowsVibrancy(true);
    show();
    EXPECT_EQ(general.view().parentWidget()->objectName(), QStringLiteral("visualEffectView"));
    controller->toolbarItemAction(QStringLiteral("update"));
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(window().findChildren<QWidget*>(QStringLiteral("visualEffectView")).size(), 1);
    controller->setAllowsVibrancy(false);
    controller->toolbarItemAction(QStringLiteral("general"));
    EXPECT_EQ(general.view().parentWidget(), window().contentView());
}

TEST_F(QDPreferencesWindowControllerTest, GivesTheFocusToThePanesFirstResponder)
{
    general.hasFirstResponder = true;
    update.hasFirstResponder = true;
    update.field->setEnabled(false);
    show();
    EXPECT_EQ(window().focusWidget(), general.field);
    controller->toolbarItemAction(QStringLiteral("update"));
    EXPECT_NE(window().focusWidget(), update.field) << "it cannot be one";
}

TEST_F(QDPreferencesWindowControllerTest, FadesAndResizesForAQuarterOfASecond)
{
    reducesMotion = false;
    show();
    EXPECT_EQ(window().width(), 500) << "the first pane has its size at once";
    EXPECT_NE(general.view().graphicsEffect(), nullptr);
    controller->toolbarItemAction(QStringLiteral("menu bar"));
    EXPECT_EQ(general.view().graphicsEffect(), nullptr);
    EXPECT_NE(menuBar.view().graphicsEffect(), nullptr);
    EXPECT_EQ(window().width(), 500);
    EXPECT_EQ(window().windowTitle(), QStringLiteral("Menu Bar"));
}

TEST_F(QDPreferencesWindowControllerTest, MovesNothingForThoseWhoWantItSo)
{
    show();
    controller->toolbarItemAction(QStringLiteral("menu bar"));
    EXPECT_EQ(menuBar.view().graphicsEffect(), nullptr);
    EXPECT_EQ(window().width(), 600);
}

TEST_F(QDPreferencesWindowControllerTest, ClosesOnControlW)
{
    show();
    const QKeyEvent other(QEvent::KeyPress, Qt::Key_W, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_FALSE(controller->keyDown(other));
    EXPECT_TRUE(window().isVisible());
    const QKeyEvent close(QEvent::KeyPress, Qt::Key_W, Qt::ControlModifier);
    EXPECT_TRUE(controller->keyDown(close));
    EXPECT_FALSE(window().isVisible());
}

TEST_F(QDPreferencesWindowControllerTest, TheFrameIsRestoredOnTheNextLaunch)
{
    show();
    window().move(33, 44);
    controller->dismissPreferencesWindow();
    EXPECT_TRUE(storedFrame().startsWith(QStringLiteral("33 44 %1 ").arg(window().frameGeometry().width())))
        << storedFrame().toStdString();

    controller = makeController();
    show();
    EXPECT_EQ(window().frameGeometry().topLeft(), QPoint(33, 44));
    EXPECT_EQ(window().width(), 500);
}

TEST_F(QDPreferencesWindowControllerTest, TheFrameOfAScreenThatIsGoneComesBackOntoThisOne)
{
    defaults.values.insert(QStringLiteral("PreferencesWindowFrameAutoSaveName"),
                           QStringLiteral("5700 900 100 100 5000 0 1920 1080"));
    show();
    EXPECT_TRUE(window().screen()->availableGeometry().contains(window().frameGeometry()));
}

TEST_F(QDPreferencesWindowControllerTest, WithoutPositionsTheDesktopPlacesTheWindow)
{
    defaults.values.insert(QStringLiteral("PreferencesWindowFrameAutoSaveName"),
                           QStringLiteral("33 44 100 100 0 0 800 800"));
    placesWindows = false;
    controller = makeController();
    show();
    EXPECT_EQ(window().pos(), QPoint(0, 0));
    EXPECT_EQ(window().width(), 500);
}

TEST_F(QDPreferencesWindowControllerTest, ViewsArePanesAgainWhenItEnds)
{
    show();
    QWidget& view = general.view();
    controller.reset();
    EXPECT_EQ(view.parentWidget(), nullptr);
    EXPECT_FALSE(view.isVisible());
}

TEST_F(QDPreferencesWindowControllerTest, AMinimizedWindowComesBack)
{
    show();
    window().showMinimized();
    QApplication::processEvents();
    show();
    EXPECT_FALSE(window().isMinimized());
    EXPECT_TRUE(window().isVisible());
}

} // namespace
