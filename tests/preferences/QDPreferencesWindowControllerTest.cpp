#include "preferences/window/QDPreferencesWindowController.h"

#include <QKeyEvent>
#include <QScreen>

#include "preferences/window/WindowFrame.h"
#include "tests/preferences/PreferencesWindowFixture.h"

using namespace quindle;

namespace {

class QDPreferencesWindowControllerTest : public test::PreferencesWindowFixture
{
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
