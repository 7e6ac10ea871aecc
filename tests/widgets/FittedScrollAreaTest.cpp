#include "widgets/FittedScrollArea.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>

#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

/// A window that has the size of what it shows, as wide as 200 pixels.
struct FittedScrollAreaTest : testing::Test
{
    FittedScrollAreaTest()
    {
        auto* layout = new QVBoxLayout(&window);
        layout->setSizeConstraint(QLayout::SetFixedSize);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(area);
        new QVBoxLayout(content);
        content->layout()->setContentsMargins(0, 0, 0, 0);
        content->layout()->addWidget(inside);
        area->setWidget(content);
    }

    void show(int height)
    {
        inside->setFixedSize(200, height);
        window.show();
        QApplication::processEvents();
    }

    QWidget window;
    FittedScrollArea* area = new FittedScrollArea(&window);
    QWidget* content = new QWidget;
    QWidget* inside = new QWidget;
    const int screenHeight = area->screen()->availableGeometry().height();
};

TEST_F(FittedScrollAreaTest, ShowsItsWidgetWholeWhereThereIsRoom)
{
    show(screenHeight / 2);
    EXPECT_EQ(window.size(), QSize(200, screenHeight / 2));
    EXPECT_FALSE(area->verticalScrollBar()->isVisible());
}

TEST_F(FittedScrollAreaTest, ScrollsOnAScreenThatIsLower)
{
    show(screenHeight * 2);
    EXPECT_LT(window.height(), screenHeight);
    EXPECT_GT(window.height(), screenHeight / 2);
    EXPECT_TRUE(area->verticalScrollBar()->isVisible());
    // Nothing is hidden behind the scroll bar.
    EXPECT_GE(area->viewport()->width(), 200);
}

TEST_F(FittedScrollAreaTest, GrowsAndShrinksWithItsWidget)
{
    show(100);
    show(300);
    EXPECT_EQ(window.height(), 300);
    show(screenHeight * 2);
    EXPECT_LT(window.height(), screenHeight);
    show(100);
    EXPECT_EQ(window.size(), QSize(200, 100));
}

TEST_F(FittedScrollAreaTest, IsNoStopOfTheKeyboard)
{
    EXPECT_EQ(area->focusPolicy(), Qt::NoFocus);
}

} // namespace
